#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

class LoadTest : public GameFixture {
 protected:
  void SetUp() override {
    world.FillWorld();
    SaveSettings("F2 Wolves", "Rank F", "Week 3");
    for (const char letter : {'F', 'E', 'D', 'C', 'B', 'A'}) {
      WriteText(
          world.SettingsPath(std::string("StatRank") + letter + ".fmk"),
          std::string("(2-0-0) ") + letter + "1 Wolves\r\n(0-2-0) " + letter + "0 Wolves\r\n");
    }
    WriteText(world.SettingsPath("Alerts.fmk"), "newest\r\noldest\r\n");
    program().Start();
    startup().HighButton2.Click();
  }

  void SaveSettings(const std::string& team, const std::string& rank, const std::string& week) {
    WriteText(world.SettingsPath("settings.fmk"), "[Frostmark]\r\nTeam=" + team +
                                                      "\r\nRank=" + rank + "\r\nWeek=" + week +
                                                      "\r\nSeason=4\r\nChampion=1\r\n");
  }
  void Load() { startup().HighButton5.Click(); }

  // The captions of all labels of all screens.
  Lines Captions() {
    Lines captions;
    for (Screen* screen : program().screens.All()) {
      for (Control* control : screen->Controls()) {
        if (const auto* label = dynamic_cast<CaptionedControl*>(control)) {
          captions.push_back(label->FullName() + " " + label->Caption());
        }
      }
    }
    return captions;
  }
  void ExpectNothingHappens() {
    const Lines before = Captions();
    Load();
    EXPECT_EQ(Captions(), before);
    EXPECT_TRUE(startup().Visible());
    EXPECT_FALSE(franchise().Visible());
    EXPECT_TRUE(startup().HighButton4.Visible());
    EXPECT_EQ(franchise().MainList.ListCount(), 0);
    EXPECT_EQ(franchise().RankF.ListCount(), 0);
    EXPECT_EQ(franchise().Alerts.ListCount(), 0);
    EXPECT_TRUE(front_end().Boxes().empty());
    EXPECT_EQ(front_end().Waits(), 0);
  }
};

TEST_F(LoadTest, FillsTheScreenAndShowsIt) {
  startup().Frame1.Show();
  Load();
  EXPECT_EQ(franchise().TeamName.Caption(), "F2 Wolves");
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank F");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 3");
  EXPECT_EQ(franchise().Season.Caption(), "4");
  EXPECT_EQ(franchise().Champion.Caption(), "1");
  const Lines roster = ReadLines(world.TeamPath("Rank F", "F2 Wolves"));
  EXPECT_EQ(ItemsOf(franchise().MainList), Lines(roster.begin(), roster.begin() + 6));
  EXPECT_EQ(ItemsOf(franchise().TrainList), Lines(roster.begin() + 6, roster.end()));
  EXPECT_EQ(franchise().MainRoster.List(0), "GO - Adam Player (76/20)");
  EXPECT_EQ(franchise().TrainingRoster.List(0), "RD - Glen Player (76/20)");
  EXPECT_EQ(franchise().RankE.List(3), "E3 Wolves");
  EXPECT_EQ(ItemsOf(franchise().StatRankF), (Lines{"(2-0-0) F1 Wolves", "(0-2-0) F0 Wolves"}));
  EXPECT_EQ(ItemsOf(franchise().StatRankA), (Lines{"(2-0-0) A1 Wolves", "(0-2-0) A0 Wolves"}));
  EXPECT_EQ(ItemsOf(franchise().Alerts), (Lines{"newest", "oldest"}));
  EXPECT_EQ(franchise().Label9.Caption(), "76");
  EXPECT_EQ(franchise().Label12.Caption(), "76");
  EXPECT_EQ(franchise().Label15.Caption(), "76");
  EXPECT_EQ(franchise().OppTeam.Caption(), "F3 Wolves");  // week 3 plays (2, 3)
  EXPECT_EQ(franchise().OppOverall.Caption(), "77");
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "");
  EXPECT_EQ(franchise().Label19.Caption(), "");
  EXPECT_FALSE(startup().Frame1.Visible());
  EXPECT_FALSE(startup().HighButton4.Visible());
  EXPECT_FALSE(startup().HighButton5.Visible());
  EXPECT_FALSE(startup().Visible());
  EXPECT_TRUE(franchise().Visible());
  EXPECT_TRUE(front_end().Boxes().empty());
}

TEST_F(LoadTest, WritesNothing) {
  const Lines before = world.Everything();
  Load();
  EXPECT_EQ(world.Everything(), before);
}

TEST_F(LoadTest, TheStartScreenStaysUntilTheEnd) {
  int looks = 0;
  // Roster (99 items and 11 records), folders (36), standings (12), alerts (2), roster again.
  for (int i = 0; i < 99 + 11 + 36 + 12 + 2 + 99 + 11; ++i) {
    front_end().AtYield([&, i] {
      EXPECT_TRUE(startup().Visible());
      EXPECT_FALSE(franchise().Visible());
      EXPECT_EQ(startup().HighButton4.Visible(), i < 99 + 11 + 36 + 12 + 2);
      EXPECT_EQ(franchise().TeamName.Caption(), "F2 Wolves");
      ++looks;
    });
  }
  Load();
  EXPECT_EQ(looks, 270);
  EXPECT_EQ(front_end().Yields(), 270 + 99 + 11);  // and the opponent, read and rated
}

TEST_F(LoadTest, RestoresTheOffSeason) {
  SaveSettings("F2 Wolves", "Rank F", "Off Season");
  Load();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Off Season");
  EXPECT_EQ(franchise().OppTeam.Caption(), "");
  EXPECT_EQ(franchise().OppOverall.Caption(), "76");  // the user's own roster is what is rated
}

TEST_F(LoadTest, ASecondLoadInOneRunDoublesRostersAndAlertsButNotTheLeagues) {
  Load();
  franchise().HighButton2.Click();
  EXPECT_FALSE(startup().HighButton5.Visible());
  startup().HighButton2.Click();
  Load();
  EXPECT_EQ(franchise().MainList.ListCount(), 12);
  EXPECT_EQ(franchise().MainRoster.ListCount(), 12);
  EXPECT_EQ(franchise().TrainList.ListCount(), 10);
  EXPECT_EQ(franchise().TrainingRoster.ListCount(), 10);
  EXPECT_EQ(ItemsOf(franchise().Alerts), (Lines{"newest", "oldest", "newest", "oldest"}));
  EXPECT_EQ(franchise().RankF.ListCount(), 6);
  EXPECT_EQ(franchise().StatRankF.ListCount(), 2);
}

TEST_F(LoadTest, RecordsOnNeitherLineAreLeftOut) {
  Lines roster = MakeRoster(80);
  roster[3].back() = 'X';
  world.WriteTeam("Rank F", "F2 Wolves", roster);
  Load();
  EXPECT_EQ(franchise().MainList.ListCount(), 5);
  EXPECT_EQ(franchise().TrainList.ListCount(), 5);
  const std::string name = HockeyNaming::GetField(roster[3], "Name");
  for (const ListBox* list : {&franchise().MainList, &franchise().MainRoster,
                              &franchise().TrainList, &franchise().TrainingRoster}) {
    for (const std::string& item : ItemsOf(*list)) {
      EXPECT_EQ(item.find(name), std::string::npos) << list->Name();
    }
  }
  EXPECT_EQ(ReadLines(world.TeamPath("Rank F", "F2 Wolves")), roster);
}

TEST_F(LoadTest, TheLeagueIsWhereTheTeamFileLies) {
  // The name in two leagues: the folders are walked upwards, and the last one that has it counts.
  world.WriteTeam("Rank C", "F2 Wolves", MakeRoster(99));
  Load();
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank C");
  EXPECT_EQ(franchise().Label9.Caption(), "99");
  EXPECT_EQ(franchise().MainRoster.List(0), "GO - Adam Player (76/20)");
}

TEST_F(LoadTest, WithoutSettingsNothingHappens) {
  std::filesystem::remove(world.SettingsPath("settings.fmk"));
  ExpectNothingHappens();
}

TEST_F(LoadTest, WithEmptySettingsNothingHappens) {
  WriteText(world.SettingsPath("settings.fmk"), "");
  ExpectNothingHappens();
}

TEST_F(LoadTest, WithATeamThatIsNotThereNothingHappens) {
  SaveSettings("Gone", "Rank F", "Week 3");
  ExpectNothingHappens();
}

TEST_F(LoadTest, ATeamThatHasMovedSinceTheSaveIsFoundInItsNewLeague) {
  Ordvik::MoveFile(world.TeamPath("Rank F", "F2 Wolves"), world.TeamPath("Rank E", "F2 Wolves"));
  Load();
  EXPECT_TRUE(franchise().Visible());
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank E");
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
}

TEST_F(LoadTest, WithOnlyALeagueNothingHappens) {
  SaveSettings("", "Rank F", "Week 3");
  ExpectNothingHappens();
}

TEST_F(LoadTest, WithAFolderInTheTeamFilesPlaceNothingHappens) {
  std::filesystem::create_directory(world.TeamPath("Rank F", "Folder"));
  SaveSettings("Folder", "Rank F", "Week 3");
  ExpectNothingHappens();
}

TEST_F(LoadTest, WithGarbledSettingsNothingHappens) {
  std::string bytes;
  for (int i = 0; i < 5000; ++i) bytes += static_cast<char>(i * 37 % 256);
  WriteText(world.SettingsPath("settings.fmk"), bytes);
  ExpectNothingHappens();
}

TEST_F(LoadTest, AListWithoutAFileIsTakenAsEmpty) {
  std::filesystem::remove(world.SettingsPath("StatRankD.fmk"));
  std::filesystem::remove(world.SettingsPath("Alerts.fmk"));
  Load();
  EXPECT_TRUE(franchise().Visible());
  EXPECT_EQ(franchise().StatRankE.ListCount(), 2);
  EXPECT_EQ(franchise().StatRankD.ListCount(), 0);
  EXPECT_EQ(franchise().Alerts.ListCount(), 0);
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
  EXPECT_EQ(front_end().Waits(), 0);
}

TEST_F(LoadTest, AFileThatCannotBeReadStopsItWithoutATrace) {
  for (const char* name : {"StatRankD.fmk", "Alerts.fmk", "settings.fmk"}) {
    const std::string path = world.SettingsPath(name);
    const std::string content = ReadText(path);
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    ExpectNothingHappens();
    std::filesystem::remove(path);
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    ExpectNothingHappens();
    std::filesystem::remove(path);
    std::filesystem::create_symlink("/dev/zero", path);
    ExpectNothingHappens();
    std::filesystem::remove(path);
    std::filesystem::create_symlink("nowhere", path);
    ExpectNothingHappens();
    std::filesystem::remove(path);
    WriteText(path, content);
    std::filesystem::resize_file(path, (std::size_t{16} << 20U) + 1);
    ExpectNothingHappens();
    WriteText(path, content);
  }
  Load();
  EXPECT_TRUE(franchise().Visible());
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
}

TEST_F(LoadTest, ATeamThatIsNotAnEntryOfALeagueIsNeitherLoadedNorWritten) {
  WriteText(world.path() + "/letter", "to a friend");
  for (const char* team : {"../../letter", "../Rank F/F2 Wolves", "..", "."}) {
    SaveSettings(team, "Rank F", "Week 3");
    ExpectNothingHappens();
  }
  WriteText(world.path() + "/F2 Wolves", "outside");
  SaveSettings("F2 Wolves", "../..", "Week 3");
  Load();
  // The league is none of the six, so the team is looked for in their folders.
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank F");
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
  franchise().SaveGame();
  EXPECT_EQ(ReadText(world.path() + "/F2 Wolves"), "outside");
}

// A world from a stranger may have a link for a folder: the user's own files would be its teams.
TEST_F(LoadTest, AFolderThatLeadsOutOfTheWorldIsNoPartOfIt) {
  const TemporaryWorld elsewhere;
  const std::string outside = elsewhere.path();
  for (const char* folder : {"Teams/Rank C", "Teams", "Settings"}) {
    const std::string inside = world.path() + "/" + folder;
    std::filesystem::remove_all(outside + "/taken");
    std::filesystem::rename(inside, outside + "/taken");
    std::filesystem::create_directory_symlink(outside + "/taken", inside);
    ExpectNothingHappens();
    const Lines before = elsewhere.Everything();
    startup().HighButton4.Click();
    EXPECT_FALSE(startup().Frame1.Visible());
    EXPECT_EQ(elsewhere.Everything(), before);
    std::filesystem::remove(inside);
    std::filesystem::rename(outside + "/taken", inside);
  }
  // How the world itself has been reached does not matter, nor a way within it.
  std::filesystem::rename(world.path() + "/Teams/Rank C", world.path() + "/third");
  std::filesystem::create_directory_symlink("../third", world.path() + "/Teams/Rank C");
  std::filesystem::create_directory_symlink(world.path(), outside + "/way");
  Session session(outside + "/way");
  session.program.startup.PressLoad();
  EXPECT_TRUE(session.program.franchise.Visible());
}

TEST_F(LoadTest, ReadsTheSettingsOnce) {
  Load();
  // Settings, roster, six tables, news, roster, opponent.
  EXPECT_EQ(ordvik().counts().file_reads, 1 + 1 + 6 + 1 + 1 + 1);
}

}  // namespace
}  // namespace frostmark::test
