#pragma once

#include <string>

#include "tests/replay/replay.h"

namespace frostmark::test {

// What a user does from day to day.
void DoNew(Replay& replay);
void DoGenerate(Replay& replay);
void DoCreateTeam(Replay& replay, const std::string& city, const std::string& nickname);
void DoBegin(Replay& replay);
void DoSim(Replay& replay, const std::string& until);
void DoSave(Replay& replay);
void DoLoad(Replay& replay);
void DoDraft(Replay& replay);
void DoNewSeason(Replay& replay);
// The developer's shortcut to the off-season.
void DoTesting(Replay& replay);
// Gives the lead line one player of each position, with the arrows.
void DoMendLineUp(Replay& replay);

}  // namespace frostmark::test
