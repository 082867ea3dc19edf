#pragma once

#include <functional>

#include "tests/support/scripted_front_end.h"

namespace frostmark::test {

// A desktop that looks on while a box stands.
class WatchfulFrontEnd : public ScriptedFrontEnd {
 public:
  Answer ShowBox(const MessageBox& box) override {
    if (OnBox) OnBox();
    return ScriptedFrontEnd::ShowBox(box);
  }
  std::function<void()> OnBox;
};

}  // namespace frostmark::test
