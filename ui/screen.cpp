#include "ui/screen.h"

#include <algorithm>

#include "records/ordvik.h"

namespace frostmark {

Screen* ScreenList::Find(std::string_view name) const {
  const auto found = std::find_if(all_.begin(), all_.end(),
                                  [&](const Screen* screen) { return screen->Name() == name; });
  return found == all_.end() ? nullptr : *found;
}

Screen::Screen(ScreenList& screens, std::string name, std::string caption, Border border,
               OnClose on_close, Called called)
    : screens_(screens),
      name_(std::move(name)),
      caption_(std::move(caption)),
      border_(border),
      on_close_(on_close),
      called_(called) {
  screens_.all_.push_back(this);
}

void Screen::Show() {
  minimized_ = false;
  if (!visible_) {
    visible_ = true;
    screens_.visible_.push_back(this);
  }
  Changed();
}

void Screen::Hide() {
  if (!visible_) return;
  visible_ = false;
  std::erase(screens_.visible_, this);
  Changed();
}

void Screen::Minimize() {
  minimized_ = true;
  Changed();
}

void Screen::Restore() {
  if (!minimized_) return;
  minimized_ = false;
  Changed();
}

Control* Screen::Find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return control->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void Screen::RequestDrag() {
  if (observer_ != nullptr) observer_->DragRequested(*this);
}

void Screen::Changed() {
  if (observer_ != nullptr) observer_->ScreenChanged(*this);
}

void Ordvik::DragWindow(Screen& form) { form.RequestDrag(); }

}  // namespace frostmark
