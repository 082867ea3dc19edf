#include "console/drawing.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "console/hints.h"
#include "console/list_drawing.h"

namespace frostmark {
namespace {

constexpr std::size_t kBarWidth = 40;
constexpr std::size_t kShortValue = 3;
constexpr std::size_t kIndent = 4;

// Draws the controls of one screen in the order in which they are declared, which is the order in
// which they are read. A label that ends in a colon waits for what it names; short values gather on
// one line, neighbboring lists beside one another.
class ScreenDrawing {
 public:
  explicit ScreenDrawing(const Page& page) : page_(page) {}

  TextLines Draw(const Screen& screen) {
    DrawTitle(screen);
    for (Control* control : screen.Controls()) {
      if (!InSight(*control)) continue;
      if (page_.for_menu) GatherFrames(*control);
      DrawControl(*control);
    }
    FlushAll();
    PutFrames();
    if (!buttons_.empty()) Line("  " + buttons_);
    return std::move(lines_);
  }

 private:
  void Line(const std::string& text);
  void GatherFrames(const Control& next);
  void PutFrames();
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

  // Where lines are broken, the margin and the gaps count.
  std::size_t RoomForValues() const { return page_.for_menu ? page_.width - 5 : page_.width; }

  std::string Heading(const Control& control) {
    std::string heading = !name_.empty() ? name_ : HeadingOf(control);
    name_.clear();
    return heading;
  }

  const Page page_;
  TextLines lines_;
  std::vector<TextLines> frames_;  // neighbboring frames, gathered; the last one goes on
  std::string name_;               // of what comes next
  std::string values_;             // short values, gathered
  std::vector<TextLines> lists_;   // neighbboring lists, gathered
  std::string buttons_;
};

void ScreenDrawing::Line(const std::string& text) {
  TextLines& lines = frames_.empty() ? lines_ : frames_.back();
  if (!page_.for_menu) return lines.push_back(text);
  const TextLines wrapped = Wrapped(text, page_.width, kIndent);
  lines.insert(lines.end(), wrapped.begin(), wrapped.end());
}

// Frames stand beside one another until something outside of them comes.
void ScreenDrawing::GatherFrames(const Control& next) {
  if (next.Kind() == ControlKind::kFrame) {
    FlushAll();
    frames_.emplace_back();
  } else if (next.place().frame == nullptr && !frames_.empty()) {
    FlushAll();
    PutFrames();
  }
}

void ScreenDrawing::PutFrames() {
  TextLines lines = PutSideBySide(frames_, page_.width);
  std::move(lines.begin(), lines.end(), std::back_inserter(lines_));
  frames_.clear();
}

void ScreenDrawing::DrawTitle(const Screen& screen) {
  std::string title = "== " + screen.Title() + (screen.Minimized() ? " (minimized) " : " ");
  title.append(page_.width - std::min(page_.width, WidthOf(title)), '=');
  Line(title);
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
      return Line(" -- " + static_cast<Frame&>(control).Caption());
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
  const char* const in_drawing = label.called().in_drawing;
  if (LeftOut(label) || label.OnClick) return;  // what can be clicked is offered below the screens
  if (caption.ends_with(':')) {
    if (!name_.empty()) DrawValue("");
    name_ = caption;
    return;
  }
  FlushLists();
  if (name_.empty() && in_drawing != nullptr) name_ = in_drawing;
  if (!name_.empty() || !caption.empty()) DrawValue(caption);
}

void ScreenDrawing::DrawValue(const std::string& value) {
  std::string line = name_.empty() ? Printable(value) : name_ + " " + Printable(value);
  const bool is_short = !name_.empty() && !value.empty() && value.size() <= kShortValue;
  name_.clear();
  if (!is_short || values_.size() + line.size() > RoomForValues()) FlushValues();
  if (!is_short) return Line("  " + line);
  values_ += (values_.empty() ? "" : "   ") + line;
}

void ScreenDrawing::DrawTabs(const TabStrip& strip) {
  FlushAll();
  if (strip.Tabs().size() == 1) return;
  std::string line = " ";
  for (const std::string& tab : strip.Tabs()) {
    line += tab == strip.FrontTab() ? " [" + tab + "]" : "  " + tab + " ";
  }
  Line(line);
}

void ScreenDrawing::DrawBar(const ProgressBar& bar) {
  FlushAll();
  const auto full = static_cast<std::size_t>(bar.Value() * kBarWidth / bar.Max());
  Line("  " + Heading(bar) + " [" + std::string(full, '#') + std::string(kBarWidth - full, '.') +
       "] " + std::to_string(bar.Value()) + "/" + std::to_string(bar.Max()));
}

void ScreenDrawing::AddButton(const Button& button) {
  if (page_.for_menu && button.Enabled()) return;
  const std::string caption =
      button.Enabled() ? "<" + button.Caption() + ">" : "(" + button.Caption() + ")";
  buttons_ += (buttons_.empty() ? "" : " ") + caption;
}

void ScreenDrawing::AddList(const ListBox& list) {
  if (LeftOut(list)) return;
  FlushValues();
  lists_.push_back(DrawList(list, Heading(list), page_.list_rows));
}

void ScreenDrawing::FlushValues() {
  if (!values_.empty()) Line("  " + values_);
  values_.clear();
}

void ScreenDrawing::FlushLists() {
  for (const std::string& line : PutSideBySide(lists_, page_.lists_width)) Line("  " + line);
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

TextLines DrawScreen(const Screen& screen, const Page& page) {
  return ScreenDrawing(page).Draw(screen);
}

TextLines DrawScreens(const ScreenList& screens, const Page& page) {
  TextLines all;
  for (const Screen* screen : screens.VisibleOnes()) {
    TextLines lines = DrawScreen(*screen, page);
    std::move(lines.begin(), lines.end(), std::back_inserter(all));
  }
  return all;
}

}  // namespace frostmark
