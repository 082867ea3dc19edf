#include <gtest/gtest.h>

#include "records/runtime_error.h"
#include "tests/support/game_fixture.h"

// Saved games as nobody should leave them, resumed and played on.
namespace frostmark::test {
namespace {

class BadSaveTest : public GameFixture {
 protected:
  void SetUp() override {
    world.FillWorld();
    TakeOver("Rank F", "F2 Wolves");
    FillList(franchise().Alerts, {"newest", "oldest"});
    franchise().SaveGame();
    Restart();
    dice().KeepRolls(false);
  }
  void Put(const char* file, const std::string& content) {
    WriteText(world.SettingsPath(file), content);
  }
  void LoadAndPlayAWeek() {
    startup().PressLoad();
    ASSERT_TRUE(franchise().Visible());
    franchise().SimRunning = true;
    franchise().PressBegin();
    franchise().SaveGame();
    EXPECT_EQ(front_end().Boxes().back().text, "File saved!");
  }
  static std::string Garbage() {
    std::string bytes;
    for (int i = 0; i < 100000; ++i) bytes += static_cast<char>(i * 37 % 251);
    return bytes;
  }
  // Every league has its six teams of eleven and nothing else.
  void ExpectWorldWhole() {
    for (const char* rank : kRanks) {
      ASSERT_EQ(world.FileNames(rank).size(), 6U);
      for (const std::string& team : world.FileNames(rank)) {
        EXPECT_EQ(ReadLines(world.TeamPath(rank, team)).size(), 11U) << team;
      }
    }
  }
};

TEST_F(BadSaveTest, StandingsCutInTheMiddlePlayOnAsFarAsLinesHold) {
  const std::string content = ReadText(world.SettingsPath("StatRankE.fmk"));
  Put("StatRankE.fmk", content.substr(0, content.size() / 2 + 12));
  LoadAndPlayAWeek();
  ExpectWorldWhole();
}

TEST_F(BadSaveTest, EmptyStandingsDoNoHarm) {
  for (const char letter : {'F', 'E', 'D', 'C', 'B', 'A'}) {
    Put((std::string("StatRank") + letter + ".fmk").c_str(), "");
  }
  LoadAndPlayAWeek();
  EXPECT_EQ(franchise().StatRankF.ListCount(), 0);
  ExpectWorldWhole();
}

TEST_F(BadSaveTest, StandingsWithoutTeamsOfTheWorldArePassedOver) {
  Put("StatRankF.fmk", Garbage());
  Put("StatRankE.fmk", ",,,,,\r\n,\r\n");
  LoadAndPlayAWeek();
  ExpectWorldWhole();
}

TEST_F(BadSaveTest, AStandingsLineThatNamesATeamWithoutARecordEndsWithAnError) {
  Put("StatRankE.fmk", "E0 Wolves\r\n");
  startup().PressLoad();
  franchise().SimRunning = true;
  EXPECT_THROW(franchise().PressBegin(), RuntimeError);
  ExpectWorldWhole();
}

TEST_F(BadSaveTest, AHundredThousandLinesOfStandingsAndAlerts) {
  std::string content;
  for (int i = 0; i < 100000; ++i) content += "(0-0-0) Nobody, nowhere\r\n";
  Put("StatRankB.fmk", content);
  Put("Alerts.fmk", content);
  LoadAndPlayAWeek();
  EXPECT_EQ(franchise().StatRankB.ListCount(), 32767);
  ExpectWorldWhole();
}

TEST_F(BadSaveTest, GarbledAlertsAreCarriedAlong) {
  Put("Alerts.fmk", Garbage());
  LoadAndPlayAWeek();
  ExpectWorldWhole();
}

TEST_F(BadSaveTest, AMarkerThatIsNotAWeekPlaysNothing) {
  for (const char* week : {"", "Week 0", "Week 11", "week 3", "Week 03", "nonsense", "Draft2"}) {
    Put("settings.fmk",
        std::string("[Frostmark]\r\nTeam=F2 Wolves\r\nRank=Rank F\r\nWeek=") + week + "\r\n");
    startup().PressLoad();
    franchise().ClearRoster();
    for (const std::string& record : MakeRoster(80)) franchise().AddToRoster(record);
    const auto rolls = ordvik().counts().rolls;
    franchise().PressBegin();
    EXPECT_EQ(ordvik().counts().rolls, rolls) << week;
    EXPECT_EQ(franchise().NextWeek.Caption(), week);
  }
}

TEST_F(BadSaveTest, SettingsOfAHundredThousandLinesAreReadAndWritten) {
  std::string content;
  for (int i = 0; i < 100000; ++i) content += "[Other]\r\nWeek=x,y\r\n";
  Put("settings.fmk",
      content + "[Frostmark]\r\nTeam=F2 Wolves\r\nRank=Rank F\r\nWeek=Week 2\r\n" + content);
  LoadAndPlayAWeek();
  EXPECT_EQ(ordvik().ReadSetting("Week"), "Week 3");
  ExpectWorldWhole();
}

TEST_F(BadSaveTest, ATeamFileCutInTheMiddleGivesFewerPlayers) {
  const std::string content = ReadText(world.TeamPath("Rank F", "F2 Wolves"));
  WriteText(world.TeamPath("Rank F", "F2 Wolves"), content.substr(0, content.size() / 2));
  startup().PressLoad();
  EXPECT_EQ(franchise().MainList.ListCount() + franchise().TrainList.ListCount(), 5);
  franchise().PressBegin();
  EXPECT_EQ(front_end().Boxes().back().text, "You are missing a position!");
}

TEST_F(BadSaveTest, ARosterWithTextForNumbersIsShownAsItStands) {
  Lines roster = MakeRoster(80);
  roster[0] = "Adam Player,GO,good,x,y,z,fast,old,N";
  world.WriteTeam("Rank F", "F2 Wolves", roster);
  startup().PressLoad();
  EXPECT_EQ(franchise().MainRoster.List(0), "GO - Adam Player (good/old)");
  EXPECT_EQ(franchise().Label15.Caption(), "64");  // they count as nothing in the rating
}

}  // namespace
}  // namespace frostmark::test
