#include "desktop/binder.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTabWidget>

#include "desktop/bindings.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/widget_name.h"
#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {
namespace {

template <class Widget>
Widget* Find(ScreenForm& form, const Control& control) {
  return form.findChild<Widget*>(WidgetName(control));
}

// The binding of CONTROL, or none when FORM has no fitting widget for it.
std::unique_ptr<Binding> Bind(Control& control, ScreenForm& form, Guard& guard) {
  const BindingContext context{form, guard};
  switch (control.Kind()) {
    case ControlKind::kLabel: {
      auto& label = static_cast<Label&>(control);
      if (auto* text = Find<QLabel>(form, control)) {
        return std::make_unique<LabelBinding>(label, *text, context);
      }
      if (auto* button = Find<QAbstractButton>(form, control)) {
        return std::make_unique<ButtonBinding>(label, label.OnClick, *button, context);
      }
      break;
    }
    case ControlKind::kButton:
      if (auto* button = Find<QAbstractButton>(form, control)) {
        auto& pressed = static_cast<Button&>(control);
        return std::make_unique<ButtonBinding>(pressed, pressed.OnClick, *button, context);
      }
      break;
    case ControlKind::kListBox:
    case ControlKind::kFileListBox:
      if (auto* view = Find<ListView>(form, control)) {
        return std::make_unique<ListBinding>(static_cast<ListBox&>(control), *view, context);
      }
      break;
    case ControlKind::kTextBox:
      if (auto* edit = Find<QLineEdit>(form, control)) {
        return std::make_unique<TextBinding>(static_cast<TextBox&>(control), *edit, context);
      }
      break;
    case ControlKind::kComboBox:
      if (auto* combo = Find<QComboBox>(form, control)) {
        return std::make_unique<ComboBinding>(static_cast<ComboBox&>(control), *combo, context);
      }
      break;
    case ControlKind::kFrame:
      if (auto* box = Find<QGroupBox>(form, control)) {
        return std::make_unique<FrameBinding>(static_cast<Frame&>(control), *box, context);
      }
      break;
    case ControlKind::kTabStrip:
      if (auto* tabs = Find<QTabWidget>(form, control)) {
        return std::make_unique<TabBinding>(static_cast<TabStrip&>(control), *tabs, context);
      }
      break;
    case ControlKind::kProgressBar:
      if (auto* bar = Find<QProgressBar>(form, control)) {
        return std::make_unique<BarBinding>(static_cast<ProgressBar&>(control), *bar, context);
      }
      break;
    case ControlKind::kPicture:
      if (auto* picture = Find<QWidget>(form, control)) {
        return std::make_unique<Binding>(control, *picture, context);
      }
      break;
    case ControlKind::kCheckBox:
    case ControlKind::kScrollBar:
    case ControlKind::kTimer:
      break;
  }
  return nullptr;
}

}  // namespace

Binder::Binder(Screen& screen, ScreenForm& form, Guard& guard) {
  for (Control* control : screen.Controls()) {
    if (!NeedsWidget(*control)) continue;
    if (auto binding = Bind(*control, form, guard)) {
      binding->Start();
      bindings_.push_back(std::move(binding));
    } else {
      qCritical("%s has no widget on its form", control->FullName().c_str());
    }
  }
}

Binder::~Binder() = default;

bool Binder::NeedsWidget(const Control& control) {
  return control.Kind() != ControlKind::kTimer && !control.NeverShown() && !control.Outside();
}

}  // namespace frostmark
