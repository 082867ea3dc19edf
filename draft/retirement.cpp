#include "draft/retirement.h"

#include <cmath>

#include "records/lines/player_record.h"
#include "records/numbers.h"

namespace frostmark {
namespace {

constexpr int kRetirementDie = 10;
constexpr int kRetireFrom = 31;  // years
constexpr int kRetireOf10 = 3;
constexpr int kLastYearsFrom = 35;  // from here on few go on
constexpr int kRetireOf10InLastYears = 8;

}  // namespace

int RollRetirement(Ordvik& ordvik, UiQueue& queue, const RecordList& roster) {
  const int count = roster.ListCount();
  for (int i = 0; i < count; ++i) {
    const double age = std::floor(LenientNumber(FieldView(roster.List(i), Field::kAge)));
    if (age >= kRetireFrom) {
      const int retire = age >= kLastYearsFrom ? kRetireOf10InLastYears : kRetireOf10;
      if (ordvik.RollUpTo(kRetirementDie) <= retire) return i;
    }
    queue.Yield();
  }
  return -1;
}

}  // namespace frostmark
