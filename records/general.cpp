#include "records/ordvik.h"

namespace frostmark {

Ordvik::Ordvik(UiQueue& queue, Dice& dice, std::string app_path)
    : queue_(queue), dice_(dice), app_path_(std::move(app_path)), files_(app_path_ + "/Settings") {}

int Ordvik::RollUpTo(int n) {
  ++counts_.rolls;
  return dice_.Roll(n);
}

bool Ordvik::ContainsText(int start, std::string_view text, std::string_view sought) {
  const std::size_t from = start < 1 ? 0 : static_cast<std::size_t>(start) - 1;
  return text.find(sought, from) != std::string_view::npos;
}

}  // namespace frostmark
