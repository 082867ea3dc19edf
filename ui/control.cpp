#include "ui/control.h"

#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

Place::Place(Screen& on_screen) : screen(&on_screen) {}

Place::Place(Frame& in_frame) : screen(in_frame.place().screen), frame(&in_frame) {}

Control::Control(Place place, ControlKind kind, std::string name, Start start, Called called)
    : place_(place),
      kind_(kind),
      name_(std::move(name)),
      start_(start),
      called_(called),
      visible_(start != Start::kHidden && start != Start::kNeverShown),
      enabled_(start != Start::kDisabled) {
  place_.screen->Add(*this);
}

std::string Control::FullName() const { return place_.screen->Name() + "." + name_; }

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  Changed();
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Changed();
}

bool Control::OnView() const {
  if (!visible_ || !place_.screen->Visible()) return false;
  return place_.frame == nullptr || place_.frame->OnView();
}

}  // namespace frostmark
