#include "console/menu.h"

#include "console/drawing.h"
#include "console/hints.h"
#include "console/names.h"
#include "console/text_layout.h"

namespace frostmark {
namespace {

using Asks = MenuEntry::Asks;

std::string WithoutColon(std::string words) {
  if (words.ends_with(':')) words.pop_back();
  return words;
}

// What a list or a box is called: as the label in front of it says, or as its screen does.
std::string NameOf(const Screen& screen, const Control& control) {
  const Control* before = nullptr;
  for (Control* other : screen.Controls()) {
    if (other == &control) break;
    before = other;
  }
  if (before != nullptr && before->Kind() == ControlKind::kLabel) {
    const std::string& caption = static_cast<const Label*>(before)->Caption();
    if (caption.ends_with(':')) return WithoutColon(caption);
  }
  return WithoutColon(HeadingOf(control));
}

void AddControl(const Screen& screen, Control& control, std::vector<MenuEntry>& menu) {
  const std::string name = control.FullName();
  if (const Handler* handler = ClickHandler(control)) {
    const CaptionedControl* const captioned = AsCaptioned(control);
    const std::string caption = captioned == nullptr ? control.Name() : captioned->Caption();
    if (!*handler) return;
    menu.push_back({Printable(OfferedAs(control, caption)), "click " + name, Asks::kNothing});
  } else if (const ListBox* list = AsList(control)) {
    const std::string words = NameOf(screen, control);
    if (list->ListCount() == 0) return;
    if (list->OnClick || SelectionCounts(control)) {
      menu.push_back({words + ": select", "select " + name, Asks::kItem});
    }
    if (list->OnDoubleClick) {
      menu.push_back({words + ": double click", "dblclick " + name, Asks::kItem});
    }
  } else if (control.Kind() == ControlKind::kTextBox) {
    menu.push_back({NameOf(screen, control) + ": type", "type " + name, Asks::kText});
  } else if (control.Kind() == ControlKind::kComboBox) {
    for (const std::string& item : static_cast<ComboBox&>(control).Items()) {
      menu.push_back(
          {NameOf(screen, control) + ": " + item, "choose " + name + " " + item, Asks::kNothing});
    }
  } else if (control.Kind() == ControlKind::kTabStrip) {
    const auto& strip = static_cast<TabStrip&>(control);
    for (const std::string& tab : strip.Tabs()) {
      if (tab != strip.FrontTab()) {
        menu.push_back({"Tab " + tab, "tab " + name + " " + tab, Asks::kNothing});
      }
    }
  }
}

}  // namespace

std::vector<MenuEntry> MenuOf(const Screen& screen) {
  std::vector<MenuEntry> menu;
  for (Control* control : screen.Controls()) {
    if (InSight(*control) && control->Enabled()) AddControl(screen, *control, menu);
  }
  if (screen.border() == Screen::Border::kTitleBar) {
    menu.push_back({"Close", "close " + screen.Name(), Asks::kNothing});
  }
  return menu;
}

}  // namespace frostmark
