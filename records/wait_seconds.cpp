#include <algorithm>
#include <chrono>

#include "records/numbers.h"
#include "records/ordvik.h"

namespace frostmark {

void Ordvik::WaitSeconds(const std::string& seconds) {
  // Nothing waits longer than a day: by then the clock has been round.
  constexpr double kSecondsOfDay = 24 * 60 * 60;
  const std::chrono::duration<double> wanted(
      std::clamp(LenientNumber(seconds), 0.0, kSecondsOfDay));
  auto length = std::chrono::duration_cast<std::chrono::microseconds>(wanted);
  const auto start = queue_.SinceMidnight();
  std::chrono::microseconds passed{0};
  while (passed < length) {
    queue_.WaitFor(length - passed);
    passed = queue_.SinceMidnight() - start;
    // The clock begins again at midnight and is not corrected for it: the difference is then
    // negative, and the wait lasts until the time of its start has come round again.
    if (passed.count() < 0) length = std::chrono::microseconds(0);
  }
}

}  // namespace frostmark
