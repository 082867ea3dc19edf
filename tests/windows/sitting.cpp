#include "tests/windows/sitting.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QListView>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace frostmark::test {
namespace {

using std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience(60);
constexpr std::chrono::milliseconds kBetweenLooks(2);

// Ends a script whose test has failed.
struct GaveUp {};

QWidget* Box() {
  QWidget* box = QApplication::activeModalWidget();
  return box != nullptr && box->isVisible() ? box : nullptr;
}

// The place of a part of WIDGET on the screen, in the screen's pixels.
QRect OnScreen(const QWidget& widget, const QRect& part) {
  const qreal scale = widget.devicePixelRatioF();
  return QRect((QPointF(widget.mapToGlobal(part.topLeft())) * scale).toPoint(),
               (QSizeF(part.size()) * scale).toSize());
}

// Where a pixel of the layout is one and a half of the screen, places are rounded.
bool Near(QPoint one, QPoint other) { return (one - other).manhattanLength() <= 2; }

std::string NameOf(const QWidget* widget) {
  return widget == nullptr ? "nothing" : widget->objectName().toStdString();
}

bool Pressable(const QWidget& widget) {
  return widget.isVisible() && widget.isEnabled() && !widget.window()->isMinimized() &&
         (Box() == nullptr || Box() == widget.window());
}

}  // namespace

void Sitting::OnWindows(const std::function<void()>& job) {
  QMetaObject::invokeMethod(qApp, job, Qt::BlockingQueuedConnection);
}

void Sitting::Until(const std::string& what, const std::function<bool()>& truth) {
  const auto last = steady_clock::now() + kPatience;
  while (!truth()) {
    if (steady_clock::now() > last) {
      ADD_FAILURE() << "this never happened: " << what << "\n" << x_.Described();
      throw GaveUp{};
    }
    std::this_thread::sleep_for(kBetweenLooks);
  }
}

void Sitting::UntilGame(const std::string& what, const std::function<bool()>& truth) {
  Until(what, [&] { return Ask(truth); });
}

XWindow Sitting::Window(const Screen& screen) {
  const auto id = Ask([&] {
    const ScreenWindow* window = game_.front_end().Window(screen);
    return window == nullptr ? 0 : static_cast<std::uint32_t>(window->internalWinId());
  });
  return x_.Window(id);
}

void Sitting::UntilInFront(const Screen& screen) {
  Until(screen.Name() + " in front", [&] {
    const XWindow window = Window(screen);
    if (!window.mapped || window.iconic || x_.Active() != window.id) return false;
    // The application learns a little later where its window is, and that it has the keyboard.
    bool active = false;
    const QRect known = Ask([&] {
      const ScreenWindow& own = game_.Window(screen);
      active = QApplication::activeWindow() == &own;
      return OnScreen(own, own.rect());
    });
    return active && Near(known.topLeft(), window.place.topLeft()) &&
           Near(known.bottomRight(), window.place.bottomRight());
  });
  Keep(screen.Name());
}

void Sitting::Keep(const std::string& what) {
  const QString folder = qEnvironmentVariable("FROSTMARK_TEST_PICTURES");
  if (folder.isEmpty()) return;
  Ask([] { QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); });
  QDir().mkpath(folder);
  const QString number = QString::number(++pictures_).rightJustified(3, '0');
  x_.Picture(QRect(QPoint(), x_.Screen()))
      .save(folder + "/" + number + "-" + QString::fromStdString(what) + ".png");
}

void Sitting::UntilAt(const Screen& screen, const std::string& name) {
  UntilInFront(screen);
  std::string last;
  const auto there = [&] {
    last = Ask([&] { return NameOf(QApplication::focusWidget()); });
    return last == name;
  };
  const auto until = steady_clock::now() + kPatience;
  while (!there() && steady_clock::now() < until) std::this_thread::sleep_for(kBetweenLooks);
  if (last == name) return;
  ADD_FAILURE() << "the keyboard is at " << last << " of " << screen.Name() << " and not at "
                << name << "; the window would give it to "
                << Ask([&] { return NameOf(game_.Window(screen).focusWidget()); }) << ", active is "
                << Ask([] { return NameOf(QApplication::activeWindow()); }) << "\n"
                << x_.Described();
  throw GaveUp{};
}

void Sitting::TabTo(const std::string& name) {
  const auto focus = [this] { return Ask([] { return NameOf(QApplication::focusWidget()); }); };
  std::string now = focus();
  const std::string first = now;
  while (now != name) {
    x_.Key("Tab");
    const std::string before = now;
    Until("Tab to go on from " + before, [&] { return (now = focus()) != before; });
    if (now != first) continue;
    ADD_FAILURE() << "Tab never reaches " << name;
    throw GaveUp{};
  }
}

QRect Sitting::Place(const Screen& screen, const char* name) {
  return Ask([&] {
    const auto& widget = game_.On<QWidget>(screen, name);
    return OnScreen(widget, widget.rect());
  });
}

void Sitting::Click(const Screen& screen, const char* name, int button) {
  UntilGame(screen.Name() + "." + name + " to click", [&] {
    return game_.front_end().Window(screen) != nullptr && screen.Visible() &&
           Pressable(game_.On<QWidget>(screen, name));
  });
  UntilInFront(screen);
  x_.Click(Place(screen, name).center(), button);
}

void Sitting::ClickRow(const Screen& screen, const char* list, int row, int button) {
  QRect place;
  UntilGame("row " + std::to_string(row) + " of " + list, [&] {
    auto& view = game_.On<QListView>(screen, list);
    const QModelIndex index = view.model()->index(row, 0);
    if (!index.isValid() || !Pressable(view)) return false;
    view.scrollTo(index);
    place = OnScreen(*view.viewport(), view.visualRect(index));
    return true;
  });
  UntilInFront(screen);
  x_.Click(place.center(), button);
}

void Sitting::DoubleClickRow(const Screen& screen, const char* list, int row) {
  ClickRow(screen, list, row);
  x_.Press();
  x_.Release();
}

void Sitting::AnswerBox(const std::string& key, const std::string& text) {
  QWidget* box = nullptr;
  Until("a box with the keyboard", [&] {
    box = Ask([] { return Box() != nullptr && Box()->isActiveWindow() ? Box() : nullptr; });
    if (box == nullptr) return false;
    const auto id = Ask([&] { return static_cast<std::uint32_t>(box->internalWinId()); });
    return x_.Active() == id;
  });
  x_.Type(text);
  Keep("box");
  x_.Key(key);
  UntilGame("the box gone", [box] { return Box() != box; });
}

void Sitting::StartFranchise() {
  const Startup& startup = program().startup;
  Click(startup, "HighButton2");
  Click(startup, "HighButton4");
  AnswerBox("Return");  // a new world takes a while
  Click(startup, "HighButton7");
  Click(startup, "HighButton6");
  AnswerBox("Return");  // the file is saved
  UntilInFront(program().franchise);
}

void Sitting::PlayToResults() {
  const Franchise& franchise = program().franchise;
  Click(franchise, "Command2");
  AnswerBox("Return", "11");
  UntilGame("a week after the others", [&] { return !franchise.SimRunning; });
  while (!Ask([&] { return program().f_results.Visible(); })) {
    Click(franchise, "HighButton1");
    UntilGame("the week played",
              [&] { return program().f_results.Visible() || franchise.HighButton1.Enabled(); });
  }
  UntilInFront(program().f_results);
}

void Sitting::ChooseInDraft() {
  FDraft& draft = program().f_draft;
  const FSelectDraft& choice = program().f_select_draft;
  if (Ask([&] { return choice.Visible(); })) {
    DoubleClickRow(choice, "List1", 3);
    AnswerBox("alt+y");
    UntilGame("the choice made", [&] { return !choice.Visible(); });
  }
  const std::string open = Ask([&] {
    for (ListPair* list : draft.Pool()) {
      if (list->shown.Enabled()) return list->shown.Name();
    }
    return std::string();
  });
  std::string name = open;
  name.replace(name.find('('), 2, "_").pop_back();
  DoubleClickRow(draft, (name + "0").c_str(), 0);
  AnswerBox("alt+y");
}

void Sitting::PlayDraft(const std::function<void()>& at_first_choice) {
  FDraft& draft = program().f_draft;
  Click(program().f_results, "Command1");
  const auto waits = [&] { return draft.AwaitingPick || draft.Command1.Enabled(); };
  UntilGame("the draft", [&] { return draft.Visible(); });
  bool first = true;
  for (UntilGame("the turn", waits); Ask([&] { return draft.AwaitingPick; });
       UntilGame("the turn", waits)) {
    if (first && at_first_choice && Ask([&] { return program().f_select_draft.Visible(); })) {
      at_first_choice();
      first = false;
    }
    ChooseInDraft();
  }
}

void Sitting::StartSeason() {
  Click(program().f_draft, "Command1");
  AnswerBox("Return");  // the file is saved
  UntilInFront(program().franchise);
}

void Sit(const std::function<void(Sitting&)>& script) {
  WindowGame game;
  game.Start();
  bool over = false;
  std::thread person([&] {
    try {
      Sitting sitting(game);
      sitting.UntilInFront(game.program().startup);
      script(sitting);
    } catch (const GaveUp&) {
    }
    XDisplay().Release();  // nothing of this test is to reach the next
    QMetaObject::invokeMethod(
        qApp,
        [&] {
          over = true;
          game.front_end().guard().Call([&] { game.front_end().EndProgram(); });
        },
        Qt::QueuedConnection);
  });
  while (!over) QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  person.join();
}

}  // namespace frostmark::test
