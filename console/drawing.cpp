#include "console/drawing.h"

#include <string>
#include <vector>

#include "console/hints.h"
#include "console/list_drawing.h"

namespace frostmark {
namespace {

constexpr std::size_t kLineWidth = 78;
constexpr int kBarWidth = 40;
constexpr std::size_t kShortValue = 3;

bool LeftOut(const Control& control) {
  const char* const hint = HintFor(control);
  return hint != nullptr && *hint == '\0';
}

// Draws the controls of one screen in the order in which they are declared, which is the order in
// which they are read. A label that ends in a colon waits for what it names; short values gather on
// one line, neighbouring lists beside one another.
class ScreenDrawing {
 public:
  explicit ScreenDrawing(Transcript& transcript) : transcript_(transcript) {}

  void Draw(const Screen& screen) {
    DrawTitle(screen);
    for (Control* control : screen.Controls()) {
      if (InSight(*control)) DrawControl(*control);
    }
    FlushAll();
    if (!buttons_.empty()) transcript_.Line("  " + buttons_);
  }

 private:
  void DrawTitle(const Screen& screen);
  void DrawControl(Control& control);
  void DrawLabel(const Label& label);
  void DrawTabs(const TabStrip& strip);
  void DrawBar(const ProgressBar& bar);
  void AddButton(const Button& button);
  void AddList(const ListBox& list);
  void DrawValue(const std::string& value);
  void FlushValues();
  void FlushLists();
  void FlushAll();

  std::string Heading(const Control& control) {
    const char* const hint = HintFor(control);
    std::string heading = !name_.empty() ? name_ : hint != nullptr ? hint : control.Name() + ":";
    name_.clear();
    return heading;
  }

  Transcript& transcript_;
  std::string name_;              // of what comes next
  std::string values_;            // short values, gathered
  std::vector<TextLines> lists_;  // neighbouring lists, gathered
  std::string buttons_;
};

void ScreenDrawing::DrawTitle(const Screen& screen) {
  std::string title = "== " + TitleFor(screen) + (screen.Minimized() ? " (minimized) " : " ");
  title.append(kLineWidth - std::min(kLineWidth, WidthOf(title)), '=');
  transcript_.Line(title);
}

void ScreenDrawing::DrawControl(Control& control) {
  switch (control.Kind()) {
    case ControlKind::kLabel:
      return DrawLabel(static_cast<Label&>(control));
    case ControlKind::kButton:
      return AddButton(static_cast<Button&>(control));
    case ControlKind::kListBox:
    case ControlKind::kFileListBox:
      return AddList(static_cast<ListBox&>(control));
    case ControlKind::kTextBox:
    case ControlKind::kComboBox:
      FlushLists();
      if (name_.empty()) name_ = Heading(control);
      return DrawValue("[" + static_cast<CaptionedControl&>(control).Caption() + "]");
    case ControlKind::kFrame:
      FlushAll();
      return transcript_.Line(" -- " + static_cast<Frame&>(control).Caption());
    case ControlKind::kTabStrip:
      return DrawTabs(static_cast<TabStrip&>(control));
    case ControlKind::kProgressBar:
      return DrawBar(static_cast<ProgressBar&>(control));
    case ControlKind::kCheckBox:
    case ControlKind::kPicture:
    case ControlKind::kScrollBar:
    case ControlKind::kTimer:
      return;
  }
}

void ScreenDrawing::DrawLabel(const Label& label) {
  const std::string& caption = label.Caption();
  const char* const hint = HintFor(label);
  if (LeftOut(label) || label.OnClick) return;  // what can be clicked is offered below the screens
  if (caption.ends_with(':')) {
    if (!name_.empty()) DrawValue("");
    name_ = caption;
    return;
  }
  FlushLists();
  if (name_.empty() && hint != nullptr) name_ = hint;
  if (!name_.empty() || !caption.empty()) DrawValue(caption);
}

void ScreenDrawing::DrawValue(const std::string& value) {
  std::string line = name_.empty() ? Printable(value) : name_ + " " + Printable(value);
  const bool is_short = !name_.empty() && !value.empty() && value.size() <= kShortValue;
  name_.clear();
  if (!is_short || values_.size() + line.size() > kLineWidth) FlushValues();
  if (!is_short) return transcript_.Line("  " + line);
  values_ += (values_.empty() ? "" : "   ") + line;
}

void ScreenDrawing::DrawTabs(const TabStrip& strip) {
  FlushAll();
  if (strip.Tabs().size() == 1) return;
  std::string line = " ";
  for (const std::string& tab : strip.Tabs()) {
    line += tab == strip.FrontTab() ? " [" + tab + "]" : "  " + tab + " ";
  }
  transcript_.Line(line);
}

void ScreenDrawing::DrawBar(const ProgressBar& bar) {
  FlushAll();
  const auto full = static_cast<std::size_t>(bar.Value() * kBarWidth / bar.Max());
  transcript_.Line("  " + Heading(bar) + " [" + std::string(full, '#') +
                   std::string(kBarWidth - full, '.') + "] " + std::to_string(bar.Value()) + "/" +
                   std::to_string(bar.Max()));
}

void ScreenDrawing::AddButton(const Button& button) {
  const std::string caption =
      button.Enabled() ? "<" + button.Caption() + ">" : "(" + button.Caption() + ")";
  buttons_ += (buttons_.empty() ? "" : " ") + caption;
}

void ScreenDrawing::AddList(const ListBox& list) {
  if (LeftOut(list)) return;
  FlushValues();
  lists_.push_back(DrawList(list, Heading(list)));
}

void ScreenDrawing::FlushValues() {
  if (!values_.empty()) transcript_.Line("  " + values_);
  values_.clear();
}

void ScreenDrawing::FlushLists() {
  for (const std::string& line : PutSideBySide(lists_)) transcript_.Line("  " + line);
  lists_.clear();
}

void ScreenDrawing::FlushAll() {
  FlushLists();
  if (!name_.empty()) DrawValue("");
  FlushValues();
}

}  // namespace

bool InSight(const Control& control) {
  if (!control.Visible() || control.Outside()) return false;
  const Place& place = control.place();
  if (place.frame != nullptr && !InSight(*place.frame)) return false;
  if (place.tab_strip == nullptr) return true;
  return place.tab_strip->Front() == place.page && InSight(*place.tab_strip);
}

void DrawScreens(const ScreenList& screens, Transcript& transcript) {
  for (const Screen* screen : screens.VisibleOnes()) ScreenDrawing(transcript).Draw(*screen);
}

}  // namespace frostmark
