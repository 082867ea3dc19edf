#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "tests/replay/doings.h"
#include "tests/replay/replay.h"
#include "tests/replay/rosters.h"
#include "tests/replay/seeds.h"

// Drafts of the program beside the reference, on rosters of all kinds.

namespace frostmark::test {

namespace {

std::string NoOlderThan(int oldest, const std::string& record) {
  reference::Lines parts = reference::SplitAt(record, ',');
  parts[7] = std::to_string(std::min(oldest, reference::NumberField(record, "Age")));
  return reference::JoinWith(parts, ',');
}

class DraftReplay : public testing::TestWithParam<std::uint64_t> {
 protected:
  DraftReplay() : whim(GetParam()), replay(GetParam()) {}

  // Puts a world of TEAMS teams per league into the folder; the user's is in the league OWN.
  // Nobody is older than OLDEST.
  void PutWorld(int teams, int own, int fewest, int most, int oldest = 45) {
    for (int rank = 0; rank < kRankCount; ++rank) {
      for (int team = 0; team < teams; ++team) {
        const std::string name =
            std::string(1, static_cast<char>('A' + team)) + " of " + std::to_string(rank);
        reference::Lines roster = OddRoster(whim, fewest, most);
        for (std::string& record : roster) record = NoOlderThan(oldest, record);
        replay.PutTeam(kRanks.at(static_cast<std::size_t>(rank)), name, roster);
      }
    }
    const std::string own_team = "B of " + std::to_string(own);
    const char* const own_rank = kRanks.at(static_cast<std::size_t>(own));
    replay.program().franchise.TeamName.SetCaption(own_team);
    replay.program().franchise.MyRank.SetCaption(own_rank);
    replay.reference().captions["Franchise.TeamName"] = own_team;
    replay.reference().captions["Franchise.MyRank"] = own_rank;
  }

  Whim whim;
  Replay replay;
};

TEST_P(DraftReplay, ElevenOfAnyKind) {
  PutWorld(6, Between(whim, 0, 5), 11, 11);
  DoDraft(replay);
  DoNewSeason(replay);
  DoDraft(replay);
  replay.Run();
}

// Rosters that are short take more from the pool than it holds in some years: the program then
// ends.
TEST_P(DraftReplay, ShortAndLongRosters) {
  PutWorld(4, Between(whim, 0, 5), 8, 14);
  DoDraft(replay);
  DoNewSeason(replay);
  replay.Run();
}

TEST_P(DraftReplay, RostersTooShortForTheRule) {
  PutWorld(2, Between(whim, 0, 5), 5, 11);
  DoDraft(replay);
  replay.Run();
}

// Nobody is old enough for the release rule to stop at: with fewer than eight it runs off the
// roster.
TEST_P(DraftReplay, YoungRostersTooShortForTheRule) {
  PutWorld(2, Between(whim, 0, 5), 7, 9, 24);
  DoDraft(replay);
  replay.Run();
}

TEST_P(DraftReplay, APoolThatRunsOut) {
  PutWorld(6, Between(whim, 0, 5), 11, 11);
  for (const auto& [path, content] : std::map(replay.reference().shelf.files)) {
    reference::Lines roster;
    replay.reference().LoadPlayerFile(roster, path);
    std::string without_goalie;
    for (const std::string& record : roster) {
      if (reference::GetField(record, "Position") != "GO") without_goalie += record + "\r\n";
    }
    replay.PutFile(path, without_goalie);
  }
  DoDraft(replay);
  replay.Run();
  EXPECT_TRUE(replay.Over());
}

TEST_P(DraftReplay, AddDrafteeToAnyList) {
  for (int round = 0; round < 60 && !replay.Over(); ++round) {
    const reference::Lines positions = {"GO", "LD", "RD", "LF", "CF", "RF", "XX", "Go"};
    const std::string record =
        AnyPlayer(whim, reference::ItemOf(positions, Between(whim, 0, 7)), "Y");
    replay.Do(
        "AddDraftee",
        [record](Program& program) {
          std::string given = record;
          program.f_draft.AddDraftee(given);
          EXPECT_EQ(given, "");
        },
        [record](reference::ReferenceGame& rules) {
          std::string given = record;
          rules.AddDraftee(given);
        });
    replay.Run();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, DraftReplay, Seeds(12));

}  // namespace

}  // namespace frostmark::test
