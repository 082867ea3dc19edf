#pragma once

#include <memory>
#include <vector>

namespace frostmark {

class Binding;
class Control;
class Guard;
class Screen;
class ScreenForm;

// Connects the widgets of a form to the controls of its screen by name, for as long as the form
// lives. The form is deleted after the screen or with it, never while the screen goes on.
class Binder {
 public:
  Binder(Screen& screen, ScreenForm& form, Guard& guard);
  ~Binder();
  Binder(const Binder&) = delete;
  Binder& operator=(const Binder&) = delete;

  // Whether a person can get to CONTROL at all, so that the form must have a widget for it.
  static bool NeedsWidget(const Control& control);

 private:
  std::vector<std::unique_ptr<Binding>> bindings_;
};

}  // namespace frostmark
