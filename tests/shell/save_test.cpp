#include <gtest/gtest.h>

#include <filesystem>

#include "records/lines/standings_line.h"
#include "tests/support/full_disk.h"
#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

class SaveTest : public GameFixture {
 protected:
  void SetUp() override {
    world.FillWorld();
    TakeOver("Rank F", "F2 Wolves");
    franchise().NextWeek.SetCaption("Week 3");
    franchise().Season.SetCaption("2");
    franchise().Champion.SetCaption("1");
    for (int league = 0; league < 6; ++league) {
      FillList(*franchise().StatRankLists()[static_cast<std::size_t>(league)],
               {"(" + std::to_string(league) + "-1-0) One", "(0-1-0) Two"});
    }
    FillList(franchise().Alerts, {"newest", "oldest"});
  }
};

TEST_F(SaveTest, WritesSettingsRosterStandingsAndAlerts) {
  FillList(franchise().MainList, {"m1", "m2"});
  FillList(franchise().TrainList, {"t1"});
  franchise().HighButton3.Click();
  EXPECT_EQ(ReadText(world.SettingsPath("settings.fmk")),
            "[Frostmark]\r\nTeam=F2 Wolves\r\nRank=Rank F\r\nWeek=Week 3\r\nSeason=2\r\n"
            "Champion=1\r\n");
  EXPECT_EQ(ReadText(world.TeamPath("Rank F", "F2 Wolves")), "m1\r\nm2\r\nt1\r\n");
  EXPECT_EQ(ItemsOf(franchise().tempList), (Lines{"m1", "m2", "t1"}));
  const std::string leagues = "FEDCBA";
  for (std::size_t league = 0; league < leagues.size(); ++league) {
    EXPECT_EQ(ReadText(world.SettingsPath(std::string("StatRank") + leagues[league] + ".fmk")),
              "(" + std::to_string(league) + "-1-0) One\r\n(0-1-0) Two\r\n");
  }
  EXPECT_EQ(ReadText(world.SettingsPath("Alerts.fmk")), "newest\r\noldest\r\n");
  EXPECT_EQ(world.SettingsNames(),
            (Lines{"Alerts.fmk", "StatRankA.fmk", "StatRankB.fmk", "StatRankC.fmk", "StatRankD.fmk",
                   "StatRankE.fmk", "StatRankF.fmk", "settings.fmk"}));
}

TEST_F(SaveTest, EndsWithItsMessage) {
  franchise().SaveGame();
  ASSERT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_EQ(front_end().Boxes()[0].text, "File saved!");
  EXPECT_EQ(front_end().Boxes()[0].icon, BoxIcon::kInformation);
  EXPECT_EQ(front_end().Boxes()[0].buttons, BoxButtons::kOk);
}

TEST_F(SaveTest, SaysSoAlsoWhenNothingCouldBeWritten) {
  std::filesystem::remove_all(world.path());
  franchise().SaveGame();
  EXPECT_EQ(front_end().Boxes().back().text, "File saved!");
  EXPECT_FALSE(std::filesystem::exists(world.path()));
}

// A handler that runs in the middle of a save finds what has been saved so far, as if it were on
// the disk; there it all appears at once, but for the roster.
TEST_F(SaveTest, TakesTheSettingsFirstThenTheRosterThenTheStandingsThenTheAlerts) {
  const auto taken = [this](const std::string& name) {
    return ordvik().files().Read(world.SettingsPath(name)).has_value();
  };
  const Lines roster = ReadLines(world.TeamPath("Rank F", "F2 Wolves"));
  franchise().MainList.SetList(0, "changed");
  // Eleven yields gather the roster and eleven write it, then two a league and two for the news.
  for (int i = 0; i < 22; ++i) {
    front_end().AtYield([=, this] {
      EXPECT_TRUE(taken("settings.fmk"));
      EXPECT_EQ(ordvik().ReadSetting("Week"), "Week 3");
      EXPECT_EQ(ReadLines(world.TeamPath("Rank F", "F2 Wolves")), roster);
      EXPECT_EQ(franchise().tempList.ListCount(), i < 11 ? i + 1 : 11);
    });
  }
  const std::string leagues = "FEDCBA";
  for (std::size_t league = 0; league < leagues.size(); ++league) {
    for (int line = 0; line < 2; ++line) {
      front_end().AtYield([=, this] {
        EXPECT_EQ(ReadLines(world.TeamPath("Rank F", "F2 Wolves"))[0], "changed");
        for (std::size_t other = 0; other < leagues.size(); ++other) {
          EXPECT_EQ(taken(std::string("StatRank") + leagues[other] + ".fmk"), other < league);
        }
      });
    }
  }
  for (int line = 0; line < 2; ++line) {
    front_end().AtYield([=, this] {
      EXPECT_TRUE(taken("StatRankA.fmk"));
      EXPECT_FALSE(taken("Alerts.fmk"));
      EXPECT_TRUE(world.SettingsNames().empty());
    });
  }
  const auto before = front_end().Yields();
  franchise().SaveGame();
  EXPECT_EQ(front_end().Yields() - before, 22 + 12 + 2);
  EXPECT_EQ(world.SettingsNames().size(), 8U);
}

// A press of "Save" inside the yields of another one, at each of them: what is on the disk in the
// end is what would be there if each file had been written at its step.
TEST_F(SaveTest, ASaveWithinASaveIsTheLaterOne) {
  for (int yield = 0; yield < 22 + 12 + 2; ++yield) {
    franchise().NextWeek.SetCaption("Week 3");
    FillList(franchise().Alerts, {"newest", "oldest"});
    for (int i = 0; i < yield; ++i) front_end().AtYield([] {});
    front_end().AtYield([this] {
      franchise().NextWeek.SetCaption("Week 4");
      FillList(franchise().Alerts, {"inner one", "inner two"});
      franchise().SaveGame();
    });
    franchise().SaveGame();
    EXPECT_EQ(ordvik().ReadSetting("Week"), "Week 4") << yield;
    const Lines news = ReadLines(world.SettingsPath("Alerts.fmk"));
    // At the last yield the outer save has its news whole and is about to write them.
    EXPECT_EQ(news.back(), yield < 22 + 12 + 2 - 1 ? "inner two" : "oldest") << yield;
    EXPECT_EQ(world.SettingsNames().size(), 8U) << yield;
  }
}

TEST_F(SaveTest, ASettingWrittenWithinASaveStays) {
  front_end().AtYield([this] { ordvik().WriteSetting("Week", "Week 9"); });
  franchise().SaveGame();
  EXPECT_EQ(ordvik().ReadSetting("Week"), "Week 9");
  EXPECT_EQ(ordvik().ReadSetting("Team"), "F2 Wolves");
}

TEST_F(SaveTest, IsAllOrNothingWhereverTheRoomEnds) {
  franchise().SaveGame();
  const auto settings = [this] {
    Lines files;
    for (const std::string& file : world.Everything()) {
      if (file.starts_with("Settings/")) files.push_back(file);
    }
    return files;
  };
  const Lines before = settings();
  FillList(franchise().Alerts, {std::string(5000, 'x')});
  franchise().NextWeek.SetCaption("Week 4");
  for (const rlim_t room : {0, 1, 30, 100, 4000}) {
    const FullDisk full(room);
    franchise().SaveGame();
    EXPECT_EQ(settings(), before) << room;
  }
  franchise().SaveGame();
  EXPECT_EQ(ordvik().ReadSetting("Week"), "Week 4");
}

TEST_F(SaveTest, KeepsThePermissionsOfItsFiles) {
  franchise().SaveGame();
  const auto mode = [](const std::string& path) {
    return std::filesystem::status(path).permissions();
  };
  constexpr auto kOwnerOnly =
      std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
  for (const std::string& path :
       {world.SettingsPath("settings.fmk"), world.SettingsPath("Alerts.fmk"),
        world.TeamPath("Rank F", "F2 Wolves")}) {
    std::filesystem::permissions(path, kOwnerOnly);
  }
  franchise().SaveGame();
  EXPECT_EQ(mode(world.SettingsPath("settings.fmk")), kOwnerOnly);
  EXPECT_EQ(mode(world.SettingsPath("Alerts.fmk")), kOwnerOnly);
  EXPECT_EQ(mode(world.TeamPath("Rank F", "F2 Wolves")), kOwnerOnly);
}

TEST_F(SaveTest, NamesWithBlanksAndQuotesAtTheirEndsComeBack) {
  for (const char* team :
       {" ", "Quebec ", " Quebec", "\"Quebec\" Ice", "'Quebec Ice'", "Ice\"", "\""}) {
    world.WriteTeam("Rank F", team, MakeRoster(80));
    franchise().TeamName.SetCaption(team);
    franchise().SaveGame();
    EXPECT_EQ(ordvik().ReadSetting("Team"), team);
    Session other(world.path());
    other.program.startup.PressLoad();
    EXPECT_TRUE(other.program.franchise.Visible()) << team;
    EXPECT_EQ(other.program.franchise.TeamName.Caption(), team);
  }
}

TEST_F(SaveTest, CloseSavesNothingAsksNothingAndKeepsTheLists) {
  program().Start();
  startup().Hide();
  franchise().Show();
  const Lines before = world.Everything();
  franchise().HighButton2.Click();
  EXPECT_FALSE(franchise().Visible());
  EXPECT_TRUE(startup().Visible());
  EXPECT_EQ(world.Everything(), before);
  EXPECT_TRUE(front_end().Boxes().empty());
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
  EXPECT_EQ(franchise().Alerts.ListCount(), 2);
}

TEST_F(SaveTest, WhatIsSavedComesBackInANewRun) {
  franchise().MainRoster.Select(0);
  franchise().Command3.Click();  // the goalie, so that the file's order is not that of positions
  franchise().TrainingRoster.Select(5);
  franchise().Command4.Click();
  const Lines lead = ItemsOf(franchise().MainList);
  const Lines training = ItemsOf(franchise().TrainList);
  const Lines shown = ItemsOf(franchise().MainRoster);
  franchise().HighButton3.Click();
  franchise().HighButton2.Click();
  Restart();
  program().Start();
  startup().HighButton2.Click();
  startup().HighButton5.Click();
  EXPECT_EQ(franchise().TeamName.Caption(), "F2 Wolves");
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank F");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 3");
  EXPECT_EQ(franchise().Season.Caption(), "2");
  EXPECT_EQ(franchise().Champion.Caption(), "1");
  EXPECT_EQ(ItemsOf(franchise().MainList), lead);
  EXPECT_EQ(ItemsOf(franchise().MainRoster), shown);
  EXPECT_EQ(shown[5], "GO - Adam Player (76/20)");
  EXPECT_EQ(ItemsOf(franchise().TrainList), training);
  EXPECT_EQ(ItemsOf(franchise().StatRankA), (Lines{"(5-1-0) One", "(0-1-0) Two"}));
  EXPECT_EQ(ItemsOf(franchise().Alerts), (Lines{"newest", "oldest"}));
}

TEST_F(SaveTest, AWeekThatIsNotSavedLosesItsMarkerButKeepsItsRosters) {
  franchise().NextWeek.SetCaption("Week 5");
  for (std::size_t league = 0; league < 6; ++league) {
    RecordList& standings = *franchise().StatRankLists()[league];
    standings.Clear();
    for (const std::string& name : ItemsOf(*franchise().RankLists()[league])) {
      standings.AddItem(FormatFreshStandingsLine(name));
    }
  }
  franchise().SaveGame();
  const std::string settings = ReadText(world.SettingsPath("settings.fmk"));
  const std::string standings = ReadText(world.SettingsPath("StatRankF.fmk"));
  const std::string roster = ReadText(world.TeamPath("Rank F", "F2 Wolves"));
  franchise().SimRunning = true;
  franchise().HighButton1.Click();
  franchise().HighButton2.Click();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 6");
  EXPECT_EQ(ReadText(world.SettingsPath("settings.fmk")), settings);
  EXPECT_EQ(ReadText(world.SettingsPath("StatRankF.fmk")), standings);
  EXPECT_NE(ReadText(world.TeamPath("Rank F", "F2 Wolves")), roster);
}

}  // namespace
}  // namespace frostmark::test
