#pragma once

#include <string>
#include <string_view>

#include "records/ordvik.h"

namespace frostmark {

// What both match machines play by. Each plays its steps by itself.

// PassesLeft when it is not a number of passes.
inline constexpr int kFaceOffDue = -2;
inline constexpr int kOutletDue = -1;
inline constexpr int kShotDue = 0;

inline constexpr int kToss = 2;  // between two teams or two players

// The passes that follow a face-off, and those that follow an outlet pass.
inline constexpr int kFaceOffPassesDie = 6;
inline constexpr int kOutletPassesDie = 4;

// A shot gets away from the carrier, is stolen and is saved when the die is at most the rating
// asked for. A skill stops at 99, so not even the best defender steals every shot.
inline constexpr int kShotDie = 100;   // the carrier's Shooting
inline constexpr int kStealDie = 110;  // the defender's Defense
inline constexpr int kSaveDie = 105;   // the goalie's Defense
// On its way to the goalie the puck is rolled for, and the roll is used by nothing.
inline constexpr int kFlightDie = 100;
// Above the goalie's Defense the puck slips away, neither saved nor in, and is shot again.
inline constexpr int kSlipDie = 100;

// Where the next pass goes from POSITION: from a forward to one of the other two by SIDE, a toss;
// from a defender to any of the three, by a roll. Before the first outlet pass of a run there is no
// position: the roll then counts for nothing.
void AimPass(Ordvik& ordvik, int side, std::string& position);

// Where the outlet pass goes: from the goalie to a defender, from anybody else to a forward.
void AimOutletPass(Ordvik& ordvik, bool from_goalie, std::string& position);

// The defender whom a shot meets, by a toss.
const char* RollDefender(Ordvik& ordvik);

}  // namespace frostmark
