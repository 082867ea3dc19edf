#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "records/runtime_error.h"
#include "tests/support/full_disk.h"
#include "tests/support/game_fixture.h"

// Files and folders as nobody should leave them: nothing may crash, hang or get lost.
namespace frostmark::test {
namespace {

namespace fs = std::filesystem;

class BadInputTest : public GameFixture {
 protected:
  std::string TeamFile() const { return world.TeamPath("Rank F", "Boston Braves"); }
  void Load(RecordList& list, const std::string& content) {
    WriteText(TeamFile(), content);
    ordvik().LoadPlayerFile(list, TeamFile());
  }
  void Save(const Lines& items, const std::string& path) {
    RecordList list;
    FillList(list, items);
    ordvik().SaveListFile(list, path);
  }
};

TEST_F(BadInputTest, ATeamFileCutAtAnyByteGivesItsWholeRecords) {
  const Lines roster = MakeRoster(80);
  const std::string content = JoinLines(roster);
  for (std::size_t length = 0; length <= content.size(); ++length) {
    RecordList list;
    Load(list, content.substr(0, length));
    // The last field is one letter, so a record is whole as soon as that is there.
    std::size_t whole = 0;
    for (std::size_t end = 0; whole < roster.size() && end + roster[whole].size() <= length;) {
      end += roster[whole++].size() + 2;
    }
    ASSERT_EQ(ItemsOf(list), Lines(roster.begin(), roster.begin() + static_cast<int>(whole)))
        << length;
  }
}

TEST_F(BadInputTest, TenMegabytesOfCommasFillTheListAndEnd) {
  RecordList list;
  Load(list, std::string(10 * 1024 * 1024, ','));
  EXPECT_EQ(list.ListCount(), 32767);
  EXPECT_EQ(list.List(32766), ",,,,,,,,");
}

TEST_F(BadInputTest, BinaryBytesAreTakenAsTheyAre) {
  std::string bytes;
  for (int i = 1; i < 256; ++i) {
    const char c = static_cast<char>(i);
    if (c != ',' && c != '\r' && c != '\n' && c != '"' && c != ' ') bytes += c;
  }
  bytes += std::string(3, '\0');
  RecordList list;
  Load(list, bytes + ",CF,85,82,91,70,83,23,N\r\n");
  ASSERT_EQ(list.ListCount(), 1);
  EXPECT_EQ(HockeyNaming::GetField(list.List(0), "Name"), bytes);
  ordvik().SaveListFile(list, TeamFile());
  EXPECT_EQ(ReadText(TeamFile()), bytes + ",CF,85,82,91,70,83,23,N\r\n");
}

TEST_F(BadInputTest, QuotesLoseNothing) {
  RecordList list;
  Load(list, "\"Smith, James\",CF,85,82,91,70,83,23,N\r\n");
  ASSERT_EQ(list.ListCount(), 1);
  EXPECT_EQ(list.List(0), "Smith, James,CF,85,82,91,70,83,23,N");
  // The comma shifts all fields by one, but none is dropped.
  EXPECT_EQ(naming().SetField(list.List(0), "Training", "Y"), "Smith, James,CF,85,82,91,70,83,Y,N");
}

TEST_F(BadInputTest, AFolderInATeamFilesPlaceIsNotATeamAndStays) {
  fs::create_directories(TeamFile() + "/within");
  startup().File1.SetPath(ordvik().RankFolder("Rank F"));
  EXPECT_EQ(startup().File1.ListCount(), 0);
  Save(MakeRoster(80), TeamFile());
  EXPECT_TRUE(fs::is_directory(TeamFile() + "/within"));
  EXPECT_TRUE(world.SettingsNames().empty());
  Ordvik::DeleteFile(TeamFile());
  EXPECT_TRUE(fs::is_directory(TeamFile()));
  // Reading it is reading a file that is not there.
  RecordList list;
  struct Enough {};
  front_end().AtWait([] { throw Enough(); });
  EXPECT_THROW(ordvik().LoadPlayerFile(list, TeamFile()), Enough);
}

TEST_F(BadInputTest, AMissingFolderTakesNothingAndIsNotMade) {
  fs::remove_all(world.path() + "/Teams/Rank F");
  Save(MakeRoster(80), TeamFile());
  EXPECT_FALSE(fs::exists(world.path() + "/Teams/Rank F"));
  EXPECT_TRUE(world.SettingsNames().empty());
  EXPECT_TRUE(front_end().Boxes().empty());
  startup().File1.SetPath(ordvik().RankFolder("Rank F"));
  EXPECT_EQ(startup().File1.ListCount(), 0);
}

TEST_F(BadInputTest, AFileInAFoldersPlaceTakesNothing) {
  fs::remove_all(world.path() + "/Teams/Rank F");
  WriteText(world.path() + "/Teams/Rank F", "a file");
  Save(MakeRoster(80), TeamFile());
  EXPECT_EQ(ReadText(world.path() + "/Teams/Rank F"), "a file");
  EXPECT_TRUE(world.SettingsNames().empty());
}

TEST_F(BadInputTest, WithoutASettingsFolderTeamsAreStillWritten) {
  fs::remove_all(world.path() + "/Settings");
  Save(MakeRoster(80), TeamFile());
  EXPECT_EQ(ReadLines(TeamFile()), MakeRoster(80));
  EXPECT_EQ(world.FileNames("Rank F"), (Lines{"Boston Braves"}));
}

TEST_F(BadInputTest, AFullDiskLeavesTheOldFile) {
  Save(MakeRoster(80), TeamFile());
  for (const rlim_t room : {0, 1, 100}) {
    const FullDisk full(room);
    Save(MakeRoster(90), TeamFile());
  }
  EXPECT_EQ(ReadLines(TeamFile()), MakeRoster(80));
  EXPECT_EQ(world.FileNames("Rank F"), (Lines{"Boston Braves"}));
  EXPECT_TRUE(world.SettingsNames().empty());
}

TEST_F(BadInputTest, AnUnfinishedFileThatIsAFolderIsGoneRound) {
  const std::string own = "unfinished." + std::to_string(getpid());
  for (const char* rest : {".0.tmp", ".1.tmp"}) {
    fs::create_directories(world.SettingsPath(own + rest) + "/within");
  }
  Save(MakeRoster(80), TeamFile());
  EXPECT_EQ(ReadLines(TeamFile()), MakeRoster(80));
}

TEST_F(BadInputTest, StandingsOfAHundredThousandLinesAreCutAtAFullListAndSorted) {
  std::string content;
  for (int i = 0; i < 100000; ++i) {
    content += "(" + std::to_string(i % 11) + "-0-0) Team " + std::to_string(i) + "\r\n";
  }
  WriteText(world.SettingsPath("StatRankF.fmk"), content);
  ordvik().LoadSettingsList(franchise().StatRankF, "StatRankF.fmk");
  ASSERT_EQ(franchise().StatRankF.ListCount(), 32767);
  HockeyNaming::SortRankList(franchise().StatRankF);
  EXPECT_EQ(franchise().StatRankF.List(0).substr(0, 4), "(10-");
  EXPECT_EQ(franchise().StatRankF.List(32766).substr(0, 4), "(0-0");
}

TEST_F(BadInputTest, ASkillThatIsTextEndsAGameWithAnErrorAndWritesNothing) {
  world.FillWorld();
  Lines roster = MakeRoster(80);
  for (std::string& record : roster) {
    record = HockeyNaming::GetField(record, "Name") + "," +
             HockeyNaming::GetField(record, "Position") + ",80,x,x,x,x,20,N";
  }
  world.WriteTeam("Rank F", "F0 Wolves", roster);
  const Lines before = world.Everything();
  franchise().LoadNewTeams();
  franchise().SimRunning = true;
  EXPECT_THROW(franchise().PlayGame("F0 Wolves", "F1 Wolves", "F"), RuntimeError);
  EXPECT_EQ(world.Everything(), before);
}

}  // namespace
}  // namespace frostmark::test
