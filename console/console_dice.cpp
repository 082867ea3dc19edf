#include "console/console_dice.h"

#include <string>

#include "records/runtime_error.h"

namespace frostmark {

int ConsoleDice::Roll(int n) {
  const int result = queued_.empty() ? clock_.Roll(n) : Take(n);
  if (traced_) {
    transcript_.Line("roll " + std::to_string(n) + " -> " + std::to_string(result));
  }
  return result;
}

int ConsoleDice::Take(int n) {
  const int result = queued_.front();
  queued_.pop_front();
  if (result < 1 || result > n) {
    throw RuntimeError("a roll of 1 to " + std::to_string(n) + " cannot give " +
                       std::to_string(result));
  }
  return result;
}

}  // namespace frostmark
