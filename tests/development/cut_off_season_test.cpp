#include <gtest/gtest.h>

#include "records/lines/standings_line.h"
#include "tests/support/game_fixture.h"

// A program that ends in the middle of a season's end, or of the save after it, and what the next
// season's end makes of the folders and tables that it finds.
namespace frostmark::test {
namespace {

class CutOffSeasonTest : public GameFixture {
 protected:
  void SetUp() override {
    world.FillWorld();
    TakeOver("Rank C", "C3 Wolves");
    franchise().NextWeek.SetCaption("Off Season");
    franchise().SaveGame();
  }

  // The moves of a season's end over tables in folder order, in their order.
  struct Step {
    std::size_t from;
    std::size_t to;
    int number;
  };
  static std::vector<Step> Steps() {
    std::vector<Step> steps;
    for (std::size_t league = 0; league < 6; ++league) {
      if (league < 5) steps.push_back({league, league + 1, 0});
      if (league > 0) steps.push_back({league, league - 1, 5});
    }
    return steps;
  }
  void Take(const Step& step) {
    const std::string team = WolvesOf(kRanks[step.from], step.number);
    Ordvik::MoveFile(world.TeamPath(kRanks[step.from], team),
                     world.TeamPath(kRanks[step.to], team));
  }

  void EndSeasonOnTheNextDay() {
    Restart();
    program().Start();
    startup().PressLoad();
    ASSERT_TRUE(franchise().Visible());
    franchise().theOffSeason();
  }

  std::vector<Lines> Leagues() const {
    std::vector<Lines> leagues;
    for (const char* rank : kRanks) leagues.push_back(world.FileNames(rank));
    return leagues;
  }
};

TEST_F(CutOffSeasonTest, IsEndedOverTheMovesThatAreDone) {
  const std::vector<Step> steps = Steps();
  ASSERT_EQ(steps.size(), 10U);
  std::vector<Lines> whole;
  for (std::size_t done = 0; done <= steps.size(); ++done) {
    for (const char* rank : kRanks) {
      for (const std::string& team : world.FileNames(rank)) {
        Ordvik::DeleteFile(world.TeamPath(rank, team));
      }
    }
    world.FillWorld();
    for (std::size_t i = 0; i < done; ++i) Take(steps[i]);
    EndSeasonOnTheNextDay();
    if (done == 0) whole = Leagues();
    EXPECT_EQ(Leagues(), whole) << done << " moves done";
  }
  EXPECT_EQ(whole[0],
            (Lines{"E5 Wolves", "F1 Wolves", "F2 Wolves", "F3 Wolves", "F4 Wolves", "F5 Wolves"}));
}

TEST_F(CutOffSeasonTest, TablesOfTwoSeasonsLeaveNoLeagueOfFive) {
  const auto table = [this](const char* rank) {
    return world.SettingsPath(std::string("StatRank") + rank[5] + ".fmk");
  };
  for (const Step& step : Steps()) Take(step);
  // The save after the draft was cut off after some of the tables.
  for (const char* rank : kRanks) {
    Lines fresh;
    for (const std::string& team : world.FileNames(rank))
      fresh.push_back(FormatFreshStandingsLine(team));
    WriteText(table(rank), JoinLines(fresh));
    const Lines before = world.Everything();
    EndSeasonOnTheNextDay();
    for (const char* each : kRanks) EXPECT_EQ(world.FileNames(each).size(), 6U) << rank << each;
    // Back to the folders of the cut-off save.
    for (const char* each : kRanks) {
      for (const std::string& team : world.FileNames(each)) {
        Ordvik::DeleteFile(world.TeamPath(each, team));
      }
    }
    for (const std::string& file : before) {
      const std::size_t end = file.find(": ");
      WriteText(world.path() + "/" + file.substr(0, end), file.substr(end + 2));
    }
  }
}

}  // namespace
}  // namespace frostmark::test
