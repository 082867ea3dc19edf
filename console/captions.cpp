#include "console/captions.h"

#include <vector>

#include "console/drawing.h"
#include "console/names.h"
#include "console/refusal.h"

namespace frostmark {
namespace {

bool Bears(Control& control, std::string_view caption) {
  const CaptionedControl* const captioned = AsCaptioned(control);
  if (captioned != nullptr && captioned->Caption() == caption) return true;
  return !caption.empty() && control.called().words == caption;
}

const char* KindWord(ControlKind kind) {
  switch (kind) {
    case ControlKind::kLabel:
      return "label";
    case ControlKind::kButton:
      return "button";
    case ControlKind::kListBox:
      return "list";
    case ControlKind::kFileListBox:
      return "file list";
    case ControlKind::kTextBox:
      return "text box";
    case ControlKind::kComboBox:
      return "combo box";
    case ControlKind::kCheckBox:
      return "check box";
    case ControlKind::kPicture:
      return "picture";
    case ControlKind::kFrame:
      return "frame";
    case ControlKind::kTabStrip:
      return "tab strip";
    case ControlKind::kProgressBar:
      return "progress bar";
    case ControlKind::kScrollBar:
      return "scroll bar";
    case ControlKind::kTimer:
      return "timer";
  }
  return "";
}

}  // namespace

bool CanBePressed(Control& control) {
  const Handler* const handler = ClickHandler(control);
  return handler != nullptr && *handler && InSight(control) && control.Enabled();
}

std::string CaptionToPress(Control& control) {
  if (*control.called().words != '\0') return control.called().words;
  const CaptionedControl* const captioned = AsCaptioned(control);
  return captioned == nullptr ? "" : captioned->Caption();
}

Control& FindByCaption(const ScreenList& screens, std::string_view caption) {
  const std::vector<Screen*> visible = screens.VisibleOnes();
  for (auto screen = visible.rbegin(); screen != visible.rend(); ++screen) {
    Control* found = nullptr;
    for (Control* control : (*screen)->Controls()) {
      if (!Bears(*control, caption) || !CanBePressed(*control)) continue;
      if (found != nullptr) throw Refusal{"several controls bear " + std::string(caption)};
      found = control;
    }
    if (found != nullptr) return *found;
  }
  throw Refusal{"nothing that can be pressed bears " + std::string(caption)};
}

std::string Described(Control& control) {
  std::string text = control.FullName() + ": " + KindWord(control.Kind()) +
                     (control.Visible() ? " visible" : " hidden") +
                     (control.Enabled() ? " enabled" : " disabled");
  Named named;
  named.control = &control;
  const auto caption = TextOf(named);
  const std::string words = control.called().words;
  if (!words.empty() && words != caption) text += " (" + words + ")";
  if (const ListBox* list = AsList(control)) {
    return text + ": " + std::to_string(list->ListCount()) + " items";
  }
  return caption && !caption->empty() ? text + ": " + *caption : text;
}

}  // namespace frostmark
