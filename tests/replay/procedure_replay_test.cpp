#include <gtest/gtest.h>

#include "tests/replay/replay.h"
#include "tests/replay/rosters.h"
#include "tests/replay/seeds.h"

// Single procedures beside the reference, on rosters of all kinds.

namespace frostmark::test {

namespace {

using reference::ReferenceGame;

class ProcedureReplay : public testing::TestWithParam<std::uint64_t> {
 protected:
  ProcedureReplay() : whim(GetParam()), replay(GetParam()) {}

  // Gives both sides the same roster in Franchise.Team1.
  void GiveTeam(const reference::Lines& roster) {
    FillList(replay.program().franchise.Team1, roster);
    replay.reference().lists["Franchise.Team1"] = roster;
  }
  void GiveSecondTeam(const reference::Lines& roster) {
    FillList(replay.program().franchise.Team2, roster);
    replay.reference().lists["Franchise.Team2"] = roster;
  }
  void SetCaption(Label& label, const std::string& name, const std::string& text) {
    label.SetCaption(text);
    replay.reference().captions[name] = text;
  }
  void DoTogether(const std::string& what, Replay::InProgram in_program,
                  Replay::InReference in_reference) {
    replay.Do(what, std::move(in_program), std::move(in_reference));
    replay.Run();
  }
  void CompareText(const std::string& what, const std::string& text, const std::string& expected) {
    EXPECT_EQ(text, expected) << "seed " << GetParam() << ", " << what;
  }

  Whim whim;
  Replay replay;
};

TEST_P(ProcedureReplay, TrainThemInAnyWeek) {
  Franchise& franchise = replay.program().franchise;
  for (int round = 0; round < 40 && !replay.Over(); ++round) {
    GiveTeam(round % 2 == 0 ? ProperRoster(whim) : OddRoster(whim, 0, 14));
    SetCaption(franchise.TeamName, "Franchise.TeamName",
               Between(whim, 0, 2) == 0 ? "Boston Braves" : "Denver Blizzard");
    SetCaption(franchise.NextWeek, "Franchise.NextWeek",
               Between(whim, 0, 1) == 0 ? "Week 10" : "Week 1");
    const std::string path = replay.reference().TeamPath("Rank C", "Boston Braves");
    DoTogether(
        "TrainThem, round " + std::to_string(round),
        [path](Program& program) { program.franchise.TrainThem(program.franchise.Team1, path); },
        [path](ReferenceGame& rules) { rules.TrainThem(rules.lists["Franchise.Team1"], path); });
  }
}

TEST_P(ProcedureReplay, RatingSortingAndFlags) {
  for (int round = 0; round < 60 && !replay.Over(); ++round) {
    reference::Lines roster = OddRoster(whim, 0, 20);
    if (round % 5 == 0 && !roster.empty()) roster[roster.size() / 2].clear();
    GiveTeam(roster);
    DoTogether(
        "RateTeam",
        [](Program& program) { program.hockey_naming.RateTeam(program.franchise.Team1); },
        [](ReferenceGame& rules) { rules.naming.RateTeam(rules.lists["Franchise.Team1"]); });
    DoTogether(
        "SortByOverall",
        [](Program& program) { HockeyNaming::SortByOverall(program.franchise.Team1); },
        [](ReferenceGame& rules) { reference::SortByOverall(rules.lists["Franchise.Team1"]); });
    GiveTeam(OddRoster(whim, 0, 14));
    DoTogether(
        "SetTrainingFlags",
        [](Program& program) { program.hockey_naming.SetTrainingFlags(program.franchise.Team1); },
        [](ReferenceGame& rules) {
          rules.naming.SetTrainingFlags(rules.lists["Franchise.Team1"]);
        });
  }
}

TEST_P(ProcedureReplay, SetFieldOfAnyField) {
  const reference::Lines fields = {"Name",    "Position", "Overall", "Passing",  "Shooting", "Age",
                                   "Defense", "Agility",  "Age",     "Training", "Height",   ""};
  const reference::Lines values = {"3", "-2", "0", "40", "-0.5", "1.9", " 7", "", "x", "Y", "-130"};
  for (int round = 0; round < 300 && !replay.Over(); ++round) {
    const std::string position = Between(whim, 0, 9) == 0 ? "XX" : "CF";
    const std::string record = round % 7 == 0 ? "" : AnyPlayer(whim, position, "N");
    const std::string field = reference::ItemOf(fields, Between(whim, 0, 11));
    const std::string value = reference::ItemOf(values, Between(whim, 0, 10));
    std::string changed;
    DoTogether(
        "SetField",
        [&](Program& program) { changed = program.hockey_naming.SetField(record, field, value); },
        [&](ReferenceGame& rules) {
          CompareText(record + " " + field + " " + value, changed,
                      rules.naming.SetField(record, field, value));
        });
    CompareText(record + " " + field, HockeyNaming::GetField(record, field),
                reference::GetField(record, field));
  }
}

TEST_P(ProcedureReplay, StandingsOfAnyRecords) {
  for (int round = 0; round < 100 && !replay.Over(); ++round) {
    reference::Lines standings;
    for (int team = 0; team < Between(whim, 0, 8); ++team) {
      standings.push_back("(" + std::to_string(Between(whim, 0, 11)) + "-" +
                          std::to_string(Between(whim, 0, 11)) + "-" +
                          std::to_string(Between(whim, 0, 3)) + ") Team " + std::to_string(team));
    }
    FillList(replay.program().franchise.StatRankC, standings);
    replay.reference().lists["Franchise.StatRankC"] = standings;
    DoTogether(
        "SortRankList",
        [](Program& program) { HockeyNaming::SortRankList(program.franchise.StatRankC); },
        [](ReferenceGame& rules) { reference::SortRankList(rules.lists["Franchise.StatRankC"]); });

    // "Team" is a part of every name.
    const std::string name1 = "Team " + std::to_string(Between(whim, 0, 8));
    const std::string name2 = Between(whim, 0, 3) == 0 ? "Team" : "Team 3";
    const int score1 = Between(whim, 0, 3);
    const int score2 = Between(whim, 0, 3);
    DoTogether(
        "SetStandings",
        [=](Program& program) {
          program.franchise.Score1 = score1;
          program.franchise.Score2 = score2;
          program.franchise.SetStandings(program.franchise.StatRankC, name1, name2);
        },
        [=](ReferenceGame& rules) {
          rules.score1 = score1;
          rules.score2 = score2;
          rules.SetStandings(rules.lists["Franchise.StatRankC"], name1, name2);
        });
  }
}

void SimulateGame(Program& program) {
  program.game_simulation.LoadGameLines(program.franchise.Team1, program.franchise.Team2);
  program.game_simulation.SimulateGame();
}

void SimulateGameByRules(ReferenceGame& rules) {
  rules.unwatched.LoadGameLines(rules.lists["Franchise.Team1"], rules.lists["Franchise.Team2"]);
  rules.unwatched.SimulateGame(rules.rolls);
  rules.score1 = rules.unwatched.goals_team1;
  rules.score2 = rules.unwatched.goals_team2;
}

TEST_P(ProcedureReplay, UnwatchedGamesOfOddLines) {
  for (int round = 0; round < 8 && !replay.Over(); ++round) {
    reference::Lines team1 = OddRoster(whim, 8, 14);
    if (round == 7) SpoilOne(whim, team1);
    GiveTeam(team1);
    GiveSecondTeam(OddRoster(whim, 8, 14));
    DoTogether("SimulateGame, round " + std::to_string(round), SimulateGame, SimulateGameByRules);
  }
}

// A team that wins a face-off without a player for it has the puck and no carrier.
TEST_P(ProcedureReplay, UnwatchedGamesWithoutPlayersForTheFaceOff) {
  for (int round = 0; round < 8 && !replay.Over(); ++round) {
    GiveTeam(WithoutPositions(ProperRoster(whim), {"CF", "RF"}));
    GiveSecondTeam(round % 2 == 0 ? WithoutPositions(ProperRoster(whim), {"CF"})
                                  : WithoutPositions(ProperRoster(whim), {"CF", "RF", "LD"}));
    DoTogether("SimulateGame, round " + std::to_string(round), SimulateGame, SimulateGameByRules);
  }
}

TEST_P(ProcedureReplay, TrimAlertsOfAnyLength) {
  for (int count = 0; count < 90 && !replay.Over(); ++count) {
    reference::Lines alerts;
    for (int i = 0; i < count; ++i) {
      alerts.push_back(Between(whim, 0, 9) == 0 ? "" : "news " + std::to_string(i));
    }
    FillList(replay.program().franchise.Alerts, alerts);
    replay.reference().lists["Franchise.Alerts"] = alerts;
    DoTogether(
        "TrimAlerts of " + std::to_string(count),
        [](Program& program) { program.franchise.TrimAlerts(); },
        [](ReferenceGame& rules) { rules.TrimAlerts(); });
  }
}

// Files as they come from editors: broken lines, blanks, quotes, no end.
TEST_P(ProcedureReplay, FilesOfAnyShape) {
  const std::string letters = "ab,,,, \r\n\"";
  for (int round = 0; round < 60 && !replay.Over(); ++round) {
    std::string content;
    for (int left = Between(whim, 0, 60); left > 0; --left) {
      content += letters[whim() % letters.size()];
      // Nothing is said of what stands between a closing quote and the end of its item.
      if (content.back() == '"') content += "q q,q\"\r\n";
    }
    const std::string path = replay.reference().SettingsPath("Alerts.fmk");
    replay.PutFile(path, content);
    DoTogether(
        "reading a file",
        [path](Program& program) {
          program.franchise.Alerts.Clear();
          program.ordvik.LoadSettingsList(program.franchise.Alerts, "Alerts.fmk");
          program.ordvik.LoadPlayerFile(program.franchise.Team1, path);
        },
        [path](ReferenceGame& rules) {
          rules.lists["Franchise.Alerts"].clear();
          rules.LoadSettingsList(rules.lists["Franchise.Alerts"], "Alerts.fmk");
          rules.LoadPlayerFile(rules.lists["Franchise.Team1"], path);
        });
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ProcedureReplay, Seeds(12));

}  // namespace

}  // namespace frostmark::test
