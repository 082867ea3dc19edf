"""Somebody who plays by a screen reader: who knows what it says, and does what it can do.

Nothing is known of the game but its accessibility tree and the events in it. Every wait is for
something to be said, or to be no longer said, and all of them share one deadline.
"""

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 120  # seconds for everything
BETWEEN_LOOKS = 20  # milliseconds, where no event comes
BOXES = ("alert", "dialog")


class NeverHeard(Exception):
    pass


def _is(thing, state):
    return thing.get_state_set().contains(state)


def _children(thing):
    children = (thing.get_child_at_index(i) for i in range(thing.get_child_count()))
    return [child for child in children if child is not None]


def _showing(thing):
    """All that is showing of THING, from the top; the rows of lists are not looked at."""
    if not _is(thing, Atspi.StateType.SHOWING):
        return
    yield thing
    if thing.get_role_name() != "list":
        for child in _children(thing):
            yield from _showing(child)


class Listener:
    def __init__(self, program):
        self.heard = []  # the announcements
        self._last = time.monotonic() + PATIENCE
        self._context = GLib.MainContext.default()
        GLib.timeout_add(BETWEEN_LOOKS, lambda: True)
        self._events = Atspi.EventListener.new(self._hear)
        self._events.register("object:state-changed:showing")
        self._game = subprocess.Popen([program])
        self._application = self.until("the game among the programs", self._find_game)

    def _hear(self, event):
        try:
            if event.detail1 and event.source.get_role_name() == "notification":
                self.heard.append(event.source.get_name())
        except GLib.GError:  # it has gone again
            pass

    def _find_game(self):
        for program in _children(Atspi.get_desktop(0)):
            if program.get_process_id() == self._game.pid:
                program.set_cache_mask(Atspi.Cache.NONE)
                return program
        return None

    def stop(self):
        self._game.kill()
        self._game.wait()

    def until(self, what, look):
        """What LOOK returns, as soon as that is something."""
        while True:
            try:
                found = look()
            except GLib.GError:  # looked at what has just gone
                found = None
            if found:
                return found
            if self._game.poll() is not None:
                raise NeverHeard(f"the game has ended before this: {what}")
            if time.monotonic() > self._last:
                raise NeverHeard(f"this never happened: {what}")
            self._context.iteration(True)

    def exit_code(self):
        """The game's, when it has ended by itself."""
        while self._game.poll() is None:
            if time.monotonic() > self._last:
                raise NeverHeard("the game never ended")
            self._context.iteration(True)
        return self._game.returncode

    def windows(self):
        """The windows, or only the box where there is one: nothing else can be used then."""
        shown = [w for w in _children(self._application) if _is(w, Atspi.StateType.SHOWING)]
        return [w for w in shown if w.get_role_name() in BOXES] or shown

    def _find(self, role, fits, on):
        for window in self.windows():
            if on is not None and window.get_name() != on:
                continue
            for thing in _showing(window):
                if thing.get_role_name() == role and fits(thing.get_name()):
                    return thing
        return None

    def sees(self, role, name, on=None):
        return self._find(role, lambda said: said == name, on) is not None

    def value(self, caption, on=None):
        """What the label of CAPTION says after it."""
        start = caption + ": "
        label = self.until(caption, lambda: self._find("label", lambda n: n.startswith(start), on))
        return label.get_name()[len(start):]

    def bar(self, name, on=None):
        """The value of the progress bar NAME."""
        def find():
            return self._find("progress bar", lambda said: said == name, on)

        return self.until(f"bar {name!r}", find).get_current_value()

    def until_value(self, caption, fits, on=None):
        self.until(f"the right {caption}", lambda: fits(self.value(caption, on)))
        return self.value(caption, on)

    def _act(self, thing, action):
        names = [Atspi.Action.get_action_name(thing, i) for i in range(thing.get_n_actions())]
        thing.do_action(names.index(action))

    def press(self, name, on=None, role="push button"):
        def usable():
            found = self._find(role, lambda said: said == name, on)
            return found if found and _is(found, Atspi.StateType.ENABLED) else None

        self._act(self.until(f"{role} {name!r} to press", usable), "Press")

    def open_tab(self, name, on=None):
        self.press(name, on, "page tab")

    def rows(self, name, on=None):
        """The rows of the list NAME."""
        found = self.until(f"list {name!r}", lambda: self._find("list", lambda n: n == name, on))
        return _children(found)

    def texts(self, name, on=None):
        return [row.get_name() for row in self.rows(name, on)]

    def activate(self, row):
        self._act(row, "Activate")

    def choose(self, row):
        self._act(row, "Press")
        self.until("the row chosen", lambda: _is(row, Atspi.StateType.SELECTED))

    def answer(self, text, button, typed=None):
        """Presses BUTTON of the box that says TEXT, after typing into it."""
        self.until(f"the box {text!r}", lambda: self.sees("label", text))
        if typed is not None:
            field = self.until("a field", lambda: self._find("text", lambda n: True, None))
            field.set_text_contents(typed)
        self.press(button)
        self.until(f"{text!r} gone", lambda: not self.sees("label", text))

    def hears_until(self, what, fits):
        """The announcements up to the first that FITS, each of which is only returned once."""
        def find():
            return next((i + 1 for i, text in enumerate(self.heard) if fits(text)), None)

        count = self.until(f"hearing {what}", find)
        taken, self.heard = self.heard[:count], self.heard[count:]
        return taken

    def describe(self, out=sys.stderr):
        print("heard:", self.heard, file=out)
        try:
            for window in _children(self._application):
                for thing in _showing(window):
                    print(f"  {thing.get_role_name()} {thing.get_name()!r}", file=out)
        except GLib.GError:
            print("  and no more", file=out)
