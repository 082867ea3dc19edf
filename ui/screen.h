#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"

namespace frostmark {

class Screen;

// The screens of one program, in the order in which they were made.
class ScreenList {
 public:
  const std::vector<Screen*>& All() const { return all_; }
  // The visible ones, in the order in which they were shown.
  std::vector<Screen*> VisibleOnes() const { return visible_; }
  // The screen called NAME, or nullptr.
  Screen* Find(std::string_view name) const;

 private:
  friend class Screen;
  std::vector<Screen*> all_;
  std::vector<Screen*> visible_;
};

// One window of the game. Its public members are its controls; screens are shown and hidden but
// live as long as the program, so that they keep their contents between uses.
class Screen {
 public:
  class Observer {
   public:
    Observer() = default;
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;
    virtual ~Observer() = default;
    // Shown, hidden, minimized or restored; also when a visible screen is shown again.
    virtual void ScreenChanged(Screen& screen) = 0;
    // The mouse went down on it where that drags the window.
    virtual void DragRequested(Screen& screen) = 0;
  };

  // What closing its window through the window manager does.
  enum class OnClose {
    kEndsProgram,
    kHides,    // a popup
    kNothing,  // a popup that must be answered
    // A main screen in the middle of the turn of the year: nothing, since what has happened is
    // saved only with the new season. Leaving the program on purpose still works.
    kTurnsYear,
  };

  // A screen without a frame has no title bar; its caption then only names it.
  enum class Border { kTitleBar, kNone };

  // CALLED is for a screen whose caption says nothing.
  Screen(ScreenList& screens, std::string name, std::string caption, Border border,
         OnClose on_close, Called called = {});
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen() = default;

  const std::string& Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  // The caption, or what says more where a title is heard or read.
  std::string Title() const { return *called_.words != '\0' ? called_.words : caption_; }
  Border border() const { return border_; }
  OnClose on_close() const { return on_close_; }
  // From now on. A popup stays one, and a main screen too.
  void SetOnClose(OnClose on_close) { on_close_ = on_close; }
  // Whether it lies beside a main screen, and is not one of those that take turns.
  bool IsPopup() const { return on_close_ == OnClose::kHides || on_close_ == OnClose::kNothing; }

  // The screens of its program, this one among them.
  const ScreenList& Screens() const { return screens_; }

  bool Visible() const { return visible_; }
  // Shows the screen, in front of the others, without waiting for it.
  void Show();
  void Hide();

  bool Minimized() const { return minimized_; }
  void Minimize();
  void Restore();

  // Every control, in the order of declaration.
  const std::vector<Control*>& Controls() const { return controls_; }
  // The control called NAME ("Label1", "List1(0)"), or nullptr.
  Control* Find(std::string_view name) const;

  Handler OnMouseDown;  // on the screen's background
  void RequestDrag();

  void SetObserver(Observer* observer) { observer_ = observer; }

 private:
  friend class Control;
  void Add(Control& control) { controls_.push_back(&control); }
  void Changed();

  ScreenList& screens_;
  std::string name_;
  std::string caption_;
  Border border_;
  OnClose on_close_;
  Called called_;
  bool visible_ = false;
  bool minimized_ = false;
  std::vector<Control*> controls_;
  Observer* observer_ = nullptr;
};

}  // namespace frostmark
