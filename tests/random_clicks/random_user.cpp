#include "tests/random_clicks/random_user.h"

#include <algorithm>
#include <array>

namespace frostmark::test {
namespace {

using std::chrono::milliseconds;

constexpr std::array kTexts = {"",    "5",  "11",  "20",  "83",    "85",
                               "1e1", "-3", "7.9", "abc", "Quebec"};
constexpr std::array kHowSeldom = {3, 30, 300, 3000};  // yields, for one act

// Whether anything comes of an act on CONTROL.
bool IsWorthAnAct(const Control& control) {
  if (!control.OnView() || !control.Enabled()) return false;
  switch (control.Kind()) {
    case ControlKind::kLabel:
      return static_cast<bool>(static_cast<const Label&>(control).OnClick);
    case ControlKind::kButton:
      return static_cast<bool>(static_cast<const Button&>(control).OnClick);
    case ControlKind::kListBox:
      return static_cast<const ListBox&>(control).ListCount() > 0;
    case ControlKind::kFileListBox:
      return static_cast<const FileListBox&>(control).ListCount() > 0;
    case ControlKind::kTextBox:
    case ControlKind::kComboBox:
    case ControlKind::kTabStrip:
      return true;
    case ControlKind::kPicture:
      return static_cast<bool>(static_cast<const Picture&>(control).OnClick);
    default:
      return false;
  }
}

}  // namespace

RandomUser::RandomUser(std::uint32_t seed, int acts)
    : random_(seed), acts_left_(acts), yields_left_(2000 * acts) {
  one_yield_in_ = kHowSeldom[static_cast<std::size_t>(Up(static_cast<int>(kHowSeldom.size())))];
}

void RandomUser::ActOn() {
  while (true) Act();
}

void RandomUser::Yield() {
  CountYield();
  if (--yields_left_ <= 0) throw RoundOver();
  ActIfItSuits(one_yield_in_);
}

void RandomUser::WaitFor(Time at_most) {
  ActIfItSuits(2);
  // At the greatest depth nobody acts, and some waits never end.
  yields_left_ -= 100;
  if (yields_left_ <= 0) throw RoundOver();
  if (at_most == Time::max() && !NextDue()) return;
  ScriptedFrontEnd::WaitFor(at_most);
}

Answer RandomUser::ShowBox(const MessageBox& box) {
  if (OneIn(2)) PassTime(milliseconds(Up(3000)));
  if (box.buttons == BoxButtons::kOk) return Answer::kOk;
  return OneIn(2) ? Answer::kYes : Answer::kNo;
}

std::string RandomUser::AskText(const std::string& /*prompt*/) {
  if (OneIn(2)) PassTime(milliseconds(Up(3000)));
  return kTexts[static_cast<std::size_t>(Up(static_cast<int>(kTexts.size())))];
}

std::string RandomUser::LastActs() const {
  std::string text;
  const std::size_t first = acts_.size() > 60 ? acts_.size() - 60 : 0;
  for (std::size_t i = first; i < acts_.size(); ++i) text += acts_[i] + "\n";
  return text;
}

void RandomUser::ActIfItSuits(int one_in) {
  if (depth_ < kDeepest && OneIn(one_in)) Act();
}

void RandomUser::Act() {
  if (--acts_left_ <= 0) throw RoundOver();
  struct Deeper {
    explicit Deeper(int& d) : depth(d) { ++depth; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;
    ~Deeper() { --depth; }
    int& depth;
  };
  const Deeper deeper(depth_);
  deepest_ = std::max(deepest_, depth_);
  const std::vector<Screen*> screens = program_->screens.VisibleOnes();
  if (screens.empty()) {
    PassTime(milliseconds(Up(2000)));
    return;
  }
  ActOnScreen(*screens[static_cast<std::size_t>(Up(static_cast<int>(screens.size())))]);
}

void RandomUser::ActOnScreen(Screen& screen) {
  if (screen.Minimized()) {
    screen.Restore();
    return;
  }
  if (OneIn(10)) {
    PassTime(milliseconds(Up(2000)));
    return;
  }
  if (OneIn(50)) {
    Raise(screen.OnMouseDown);
    return;
  }
  if (OneIn(2000)) {
    CloseWindow(screen);
    return;
  }
  std::vector<Control*> controls;
  for (Control* control : screen.Controls()) {
    if (IsWorthAnAct(*control)) controls.push_back(control);
  }
  if (controls.empty()) return;
  ActOnControl(*controls[static_cast<std::size_t>(Up(static_cast<int>(controls.size())))]);
}

void RandomUser::ActOnControl(Control& control) {
  // They have not come to leave at once.
  if (&control == &program_->startup.HighButton3 && !OneIn(200)) return;
  Note(control.FullName());
  switch (control.Kind()) {
    case ControlKind::kLabel:
      return static_cast<Label&>(control).Click();
    case ControlKind::kButton:
      return static_cast<Button&>(control).Click();
    case ControlKind::kPicture:
      return static_cast<Picture&>(control).Click();
    case ControlKind::kListBox:
    case ControlKind::kFileListBox:
      return ActOnList(static_cast<ListBox&>(control));
    case ControlKind::kTextBox:
      return static_cast<TextBox&>(control).Type(AskText(""));
    case ControlKind::kComboBox: {
      auto& box = static_cast<ComboBox&>(control);
      const auto item = static_cast<std::size_t>(Up(static_cast<int>(box.Items().size())));
      return box.SetText(box.Items()[item]);
    }
    case ControlKind::kTabStrip: {
      auto& strip = static_cast<TabStrip&>(control);
      strip.SetFront(Up(static_cast<int>(strip.Tabs().size())));
      return Raise(strip.OnMouseDown);
    }
    default:
      return;
  }
}

void RandomUser::ActOnList(ListBox& list) {
  const int item = Up(list.ListCount());
  if (OneIn(2)) {
    list.Select(item);
  } else {
    list.DoubleClick(item);
  }
}

void RandomUser::CloseWindow(Screen& screen) {
  Note(screen.Name() + " closed");
  if (screen.on_close() == Screen::OnClose::kEndsProgram) EndProgram();
  if (screen.on_close() == Screen::OnClose::kHides) screen.Hide();
}

void RandomUser::Note(const std::string& act) {
  acts_.push_back(std::to_string(depth_) + " " + act);
}

}  // namespace frostmark::test
