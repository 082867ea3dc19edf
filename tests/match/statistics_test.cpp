#include "tests/match/match_scene.h"

// What many games result in. The bounds are wide and the dice seeded, so that only a change of a
// rule can fail here.

namespace frostmark::test {
namespace {

struct Tally {
  double goals_a_game;
  double ties;  // of 1
};

template <typename Machine>
class MatchStatisticsTest : public MatchMachine<Machine> {
 protected:
  static constexpr int kGames = MatchMachine<Machine>::kWatched ? 500 : 2000;
  static constexpr std::uint64_t kSeed = 2;

  Tally PlayGames(const LineSkills& skills) {
    this->LineUp(LeadLine(1, skills), LeadLine(2, skills));
    this->dice().KeepRolls(false);
    this->dice().ThenSeeded(kSeed);
    int goals = 0;
    int ties = 0;
    for (int game = 0; game < kGames; ++game) {
      PlayGame();
      goals += this->Goals(1) + this->Goals(2);
      ties += this->Goals(1) == this->Goals(2) ? 1 : 0;
    }
    return {static_cast<double>(goals) / kGames, static_cast<double>(ties) / kGames};
  }

 private:
  void PlayGame() {
    auto& machine = this->machine();
    if constexpr (std::is_same_v<Machine, Game>) {
      machine.Label3.SetCaption("0");
      machine.Label4.SetCaption("0");
      machine.Events.Clear();
      for (ProgressBar* bar : {&machine.Period1, &machine.Period2, &machine.Period3}) {
        bar->SetValue(0);
      }
      for (const auto tick : {&Game::TickPeriod1, &Game::TickPeriod2, &Game::TickPeriod3}) {
        machine.PressStart();
        for (int step = 0; step < 200; ++step) (machine.*tick)();
      }
    } else {
      machine.GoalsTeam1 = 0;
      machine.GoalsTeam2 = 0;
      machine.SimulateGame();
    }
  }
};

TYPED_TEST_SUITE(MatchStatisticsTest, Machines, MachineNames);

TYPED_TEST(MatchStatisticsTest, GoodTeamsScoreSixAGame) {
  const Tally tally = this->PlayGames({.shooting = 80, .defense = 80, .goalie = 85});
  EXPECT_GE(tally.goals_a_game, 5.4);
  EXPECT_LE(tally.goals_a_game, 6.0);
  EXPECT_GE(tally.ties, 0.15);
  EXPECT_LE(tally.ties, 0.20);
}

TYPED_TEST(MatchStatisticsTest, TheBestTeamsScoreTwoAGame) {
  const Tally tally = this->PlayGames({.shooting = 90, .defense = 90, .goalie = 95});
  EXPECT_GE(tally.goals_a_game, 1.9);
  EXPECT_LE(tally.goals_a_game, 2.4);
  EXPECT_GE(tally.ties, 0.27);
  EXPECT_LE(tally.ties, 0.34);
}

}  // namespace
}  // namespace frostmark::test
