#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace frostmark {

using Handler = std::function<void()>;

// Runs HANDLER if there is one.
inline void Raise(const Handler& handler) {
  if (handler) handler();
}

class Control;
class Frame;
class Screen;
class TabStrip;

// Where a control lies: on a screen, perhaps in one of its frames, perhaps on a page of a tab
// strip. A screen, a frame and a page each stand for themselves wherever a Place is asked for.
struct Place {
  Place(Screen& on_screen);  // NOLINT(google-explicit-constructor)
  Place(Frame& in_frame);    // NOLINT(google-explicit-constructor)
  Place(Screen& on_screen, TabStrip& strip, int on_page)
      : screen(&on_screen), tab_strip(&strip), page(on_page) {}

  Screen* screen;
  Frame* frame = nullptr;
  TabStrip* tab_strip = nullptr;
  int page = 0;  // of tab_strip
};

enum class ControlKind {
  kLabel,
  kButton,
  kListBox,
  kFileListBox,
  kTextBox,
  kComboBox,
  kCheckBox,
  kPicture,
  kFrame,
  kTabStrip,
  kProgressBar,
  kScrollBar,
  kTimer,
};

// What a control, or a screen, is where a person does not see its place and its colors: a screen
// reader says the words, with the caption after them where that is a value of its own; text names
// by them what can be done. A control whose caption says it all needs none.
struct Called {
  // "Your overall rating"; "" when the caption is enough.
  const char* words = "";
  // What stands beside the value where a whole screen is drawn as text; "" leaves the control out
  // of the drawing. Without it lists are headed by the words and a label's value stands alone.
  const char* in_drawing = nullptr;
};

// A row of heads over columns: it is read as it stands, and text has heads for its lists.
inline constexpr Called kColumnHeads{"", ""};

// How a control starts.
enum class Start {
  kShown,
  kHidden,      // until a procedure shows it
  kNeverShown,  // a working list or another control that no procedure ever shows
  kOutside,     // lies outside the visible area of its screen, where nobody gets to it
  kDisabled,
};

// Anything on a screen. Controls are public members of their screen, bear their names for good and
// live as long as it. The game changes them; a front end watches them through an observer and
// brings the user's doings back by the handlers of each kind.
class Control {
 public:
  // Told after any change of a control's state except a list's items, which have an observer of
  // their own.
  class Observer {
   public:
    Observer() = default;
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;
    virtual ~Observer() = default;
    virtual void ControlChanged(Control& control) = 0;
  };

  Control(Place place, ControlKind kind, std::string name, Start start, Called called = {});
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  ControlKind Kind() const { return kind_; }
  // "HighButton1"; an element of a pair is "List1(0)" or "List1(1)".
  const std::string& Name() const { return name_; }
  // "Startup.HighButton1".
  std::string FullName() const;
  const Place& place() const { return place_; }
  const Called& called() const { return called_; }

  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  void Show() { SetVisible(true); }
  void Hide() { SetVisible(false); }

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  void Enable() { SetEnabled(true); }
  void Disable() { SetEnabled(false); }

  // Whether no procedure ever shows it, and whether it lies where nobody gets to it.
  bool NeverShown() const { return start_ == Start::kNeverShown; }
  bool Outside() const { return start_ == Start::kOutside; }

  // Whether it, the frames it lies in and its screen are all visible. The page in front does not
  // matter.
  bool OnView() const;

  void SetObserver(Observer* observer) { observer_ = observer; }

 protected:
  void Changed() {
    if (observer_ != nullptr) observer_->ControlChanged(*this);
  }

 private:
  Place place_;
  ControlKind kind_;
  std::string name_;
  Start start_;
  Called called_;
  bool visible_;
  bool enabled_;
  Observer* observer_ = nullptr;
};

}  // namespace frostmark
