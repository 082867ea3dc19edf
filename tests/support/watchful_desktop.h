#pragma once

#include <functional>

#include "ui/headless_desktop.h"

namespace frostmark::test {

// A desktop that looks on while a box stands.
class WatchfulDesktop : public HeadlessDesktop {
 public:
  Answer ShowBox(const MessageBox& box) override {
    if (OnBox) OnBox();
    return HeadlessDesktop::ShowBox(box);
  }
  std::function<void()> OnBox;
};

}  // namespace frostmark::test
