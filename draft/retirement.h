#pragma once

#include "records/ordvik.h"

namespace frostmark {

// The index of the first player of ROSTER to retire this year, -1 if nobody does. Those nearest the
// head of the list are asked first, and one retirement per team and year is all. Yields after each
// who stays.
int RollRetirement(Ordvik& ordvik, UiQueue& queue, const RecordList& roster);

}  // namespace frostmark
