#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

namespace fs = std::filesystem;

class FilesTest : public GameFixture {
 protected:
  std::string TeamFile() const { return world.TeamPath("Rank C", "Boston Braves"); }

  void Save(const Lines& items) {
    RecordList list;
    FillList(list, items);
    ordvik().SaveListFile(list, TeamFile());
  }
  Lines LoadTeam(const std::string& content) {
    WriteText(TeamFile(), content);
    RecordList list;
    ordvik().LoadPlayerFile(list, TeamFile());
    return ItemsOf(list);
  }
  Lines LoadAlerts(const std::string& content) {
    WriteText(world.SettingsPath("Alerts.fmk"), content);
    RecordList list;
    ordvik().LoadSettingsList(list, "Alerts.fmk");
    return ItemsOf(list);
  }
};

constexpr const char* kRecord = "James Smith,CF,85,82,91,70,83,23,N";

TEST_F(FilesTest, SavesALineAnItemEachWithItsEnd) {
  Save({"one", "", "three"});
  EXPECT_EQ(ReadText(TeamFile()), "one\r\n\r\nthree\r\n");
}

TEST_F(FilesTest, SavesAnEmptyListAsAnEmptyFile) {
  Save({"old"});
  Save({});
  ASSERT_TRUE(fs::exists(TeamFile()));
  EXPECT_EQ(ReadText(TeamFile()), "");
  EXPECT_TRUE(LoadAlerts("").empty());
}

TEST_F(FilesTest, SavingYieldsAfterEachLineAndTheFileStaysTheOldOneUntilTheEnd) {
  Save({"old"});
  const auto before = front_end().Yields();
  int looks = 0;
  for (int i = 0; i < 3; ++i) {
    front_end().AtYield([&] {
      EXPECT_EQ(ReadText(TeamFile()), "old\r\n");
      ++looks;
    });
  }
  Save({"a", "b", "c"});
  EXPECT_EQ(front_end().Yields() - before, 3);
  EXPECT_EQ(looks, 3);
  EXPECT_EQ(ReadText(TeamFile()), "a\r\nb\r\nc\r\n");
}

TEST_F(FilesTest, SavingReplacesTheFileAndLeavesNothingBesideIt) {
  Save(MakeRoster(80));
  const auto first = fs::status(TeamFile()).type();
  const fs::path kept = fs::path(world.path()) / "kept";
  fs::create_hard_link(TeamFile(), kept);
  Save(MakeRoster(90));
  // Somebody who has the old file open goes on reading the old file.
  EXPECT_EQ(ReadText(kept.string()), JoinLines(MakeRoster(80)));
  EXPECT_EQ(ReadText(TeamFile()), JoinLines(MakeRoster(90)));
  EXPECT_EQ(fs::status(TeamFile()).type(), first);
  EXPECT_EQ(world.FileNames("Rank C"), (Lines{"Boston Braves"}));
  EXPECT_TRUE(world.SettingsNames().empty());
}

TEST_F(FilesTest, AFileLeftUnfinishedByAKilledProgramGoesWithTheNextWrite) {
  WriteText(world.SettingsPath("unfinished.tmp"), "half a te");
  Save({"whole"});
  EXPECT_EQ(ReadText(TeamFile()), "whole\r\n");
  EXPECT_TRUE(world.SettingsNames().empty());
}

TEST_F(FilesTest, ElevenLinesGiveElevenEqualRecords) {
  const Lines roster = MakeRoster(83);
  EXPECT_EQ(LoadTeam(JoinLines(roster)), roster);
}

TEST_F(FilesTest, WhatIsSavedIsWhatIsLoaded) {
  const Lines roster = MakeRoster(77);
  Save(roster);
  RecordList list;
  ordvik().LoadPlayerFile(list, TeamFile());
  EXPECT_EQ(ItemsOf(list), roster);
}

TEST_F(FilesTest, LoadingAppends) {
  WriteText(TeamFile(), std::string(kRecord) + "\r\n");
  RecordList list;
  list.AddItem("first");
  ordvik().LoadPlayerFile(list, TeamFile());
  EXPECT_EQ(ItemsOf(list), (Lines{"first", kRecord}));
  WriteText(world.SettingsPath("Alerts.fmk"), "news\r\n");
  ordvik().LoadSettingsList(list, "Alerts.fmk");
  EXPECT_EQ(ItemsOf(list), (Lines{"first", kRecord, "news"}));
}

TEST_F(FilesTest, LoadingYieldsAfterEachItem) {
  const std::string content = JoinLines(MakeRoster(80));
  WriteText(TeamFile(), content);
  RecordList list;
  const auto before = front_end().Yields();
  // The record is in the list when its ninth field has been read.
  for (int i = 1; i <= 9; ++i) {
    front_end().AtYield([&list, i] { EXPECT_EQ(list.ListCount(), i == 9 ? 1 : 0) << i; });
  }
  ordvik().LoadPlayerFile(list, TeamFile());
  EXPECT_EQ(front_end().Yields() - before, 99);
  LoadAlerts("a\r\nb,c\r\n");
  EXPECT_EQ(front_end().Yields() - before, 102);
}

TEST_F(FilesTest, ABlankLastLineChangesNothing) {
  EXPECT_EQ(LoadTeam(std::string(kRecord) + "\r\n\r\n"), (Lines{kRecord}));
  EXPECT_EQ(LoadTeam(std::string(kRecord) + "\r\n   \r\n"), (Lines{kRecord}));
}

TEST_F(FilesTest, ALastLineWithoutAnEndIsRead) { EXPECT_EQ(LoadTeam(kRecord), (Lines{kRecord})); }

TEST_F(FilesTest, BlanksAtTheStartOfAFieldDoNotReachTheRecord) {
  EXPECT_EQ(LoadTeam("  James Smith, CF,85,  82,91,70,83,23, N\r\n"), (Lines{kRecord}));
  EXPECT_EQ(LoadTeam("James Smith ,CF,85,82,91,70,83,23,N\r\n"),
            (Lines{"James Smith ,CF,85,82,91,70,83,23,N"}));
}

TEST_F(FilesTest, NineFieldsMakeARecordWhateverTheLines) {
  EXPECT_EQ(LoadTeam("James Smith,CF,85,82\r\n91,70,83,23,N\r\n"), (Lines{kRecord}));
  EXPECT_EQ(LoadTeam(std::string(kRecord) + "," + kRecord + "\r\n"), (Lines{kRecord, kRecord}));
  EXPECT_EQ(LoadTeam("a\r\nb\nc\rd\r\ne\nf\rg\r\nh\ni"), (Lines{"a,b,c,d,e,f,g,h,i"}));
}

TEST_F(FilesTest, AnIncompleteLastRecordIsLostInSilence) {
  EXPECT_EQ(LoadTeam(std::string(kRecord) + "\r\nJohn Doe,CF,85,82,91,70,83,23\r\n"),
            (Lines{kRecord}));
  EXPECT_TRUE(LoadTeam("John Doe,CF").empty());
  EXPECT_TRUE(front_end().Boxes().empty());
}

TEST_F(FilesTest, AQuotedFieldRunsToTheNextQuote) {
  EXPECT_EQ(LoadAlerts("\"a, b\r\nc\",d\r\n"), (Lines{"a, b\r\nc", "d"}));
  EXPECT_EQ(LoadAlerts("  \"quoted\"  ,next\r\n"), (Lines{"quoted", "next"}));
  EXPECT_EQ(LoadAlerts("no \"quote\" inside\r\n"), (Lines{"no \"quote\" inside"}));
  EXPECT_EQ(LoadAlerts("\"never closed, to the end\r\n"), (Lines{"never closed, to the end\r\n"}));
  EXPECT_EQ(LoadAlerts("\"\"\r\n\"\""), (Lines{"", ""}));
}

TEST_F(FilesTest, ASettingsListTakesACommaAsAnEndToo) {
  EXPECT_EQ(LoadAlerts("one, two\r\nthree\r\n"), (Lines{"one", "two", "three"}));
  EXPECT_EQ(LoadAlerts("one\r\n\r\n  three\r\n"), (Lines{"one", "", "three"}));
}

TEST_F(FilesTest, LoadingAPlayerFileThatIsNotThereNeverEnds) {
  RecordList list;
  struct Enough {};
  int waits = 0;
  for (int i = 0; i < 30; ++i) front_end().AtWait([&waits] { ++waits; });
  front_end().AtWait([] { throw Enough(); });
  EXPECT_THROW(ordvik().LoadPlayerFile(list, world.TeamPath("Rank F", "Nobody")), Enough);
  EXPECT_EQ(waits, 30);
  EXPECT_EQ(ItemsOf(list), (Lines{",,,,,,,,", ",,,,,,,,", ",,,,,,,,"}));  // one every nine items
}

TEST_F(FilesTest, LoadingASettingsListThatIsNotThereNeverEnds) {
  RecordList list;
  struct Enough {};
  for (int i = 0; i < 4; ++i) front_end().AtWait([] {});
  front_end().AtWait([] { throw Enough(); });
  EXPECT_THROW(ordvik().LoadSettingsList(list, "StatRankF.fmk"), Enough);
  EXPECT_EQ(ItemsOf(list), (Lines{"", "", "", "", ""}));
}

TEST_F(FilesTest, AnEndlessLoadStopsGrowingItsListWhenThatIsFull) {
  RecordList list;
  struct Enough {};
  for (int i = 0; i < 33000; ++i) front_end().AtWait([] {});
  front_end().AtWait([] { throw Enough(); });
  EXPECT_THROW(ordvik().LoadSettingsList(list, "nothing"), Enough);
  EXPECT_EQ(list.ListCount(), 32767);
}

TEST_F(FilesTest, CountsWhatItReadsAndWrites) {
  Save({"a"});
  LoadAlerts("");
  ordvik().ReadSetting("Team");
  EXPECT_EQ(ordvik().counts().file_writes, 1);
  EXPECT_EQ(ordvik().counts().file_reads, 2);
}

TEST_F(FilesTest, DeletesFilesAndNothingElse) {
  Save({"a"});
  Ordvik::DeleteFile(TeamFile());
  EXPECT_FALSE(Ordvik::FileExists(TeamFile()));
  Ordvik::DeleteFile(TeamFile());
  Ordvik::DeleteFile(ordvik().RankFolder("Rank A"));
  EXPECT_TRUE(fs::is_directory(ordvik().RankFolder("Rank A")));
}

TEST_F(FilesTest, MovesATeamOverOneThatMayBeThere) {
  Save({"moved"});
  world.WriteTeam("Rank B", "Boston Braves", {"was there"});
  EXPECT_TRUE(Ordvik::MoveFile(TeamFile(), world.TeamPath("Rank B", "Boston Braves")));
  EXPECT_TRUE(world.FileNames("Rank C").empty());
  EXPECT_EQ(ReadLines(world.TeamPath("Rank B", "Boston Braves")), (Lines{"moved"}));
}

TEST_F(FilesTest, AMoveThatCannotBeMadeFailsAndLosesNothing) {
  Save({"stays"});
  EXPECT_FALSE(Ordvik::MoveFile(TeamFile(), world.TeamPath("Rank X", "Boston Braves")));
  EXPECT_EQ(ReadLines(TeamFile()), (Lines{"stays"}));
  EXPECT_FALSE(Ordvik::MoveFile(world.TeamPath("Rank A", "Nobody"), TeamFile()));
  EXPECT_EQ(ReadLines(TeamFile()), (Lines{"stays"}));
}

TEST_F(FilesTest, PathsAreBuiltFromTheProgramsFolder) {
  EXPECT_EQ(ordvik().RankFolder("Rank F"), world.path() + "/Teams/Rank F");
  EXPECT_EQ(ordvik().TeamPath("Rank A", "Ice Cats"), world.path() + "/Teams/Rank A/Ice Cats");
}

TEST_F(FilesTest, OnlyBlanksAreSkippedAtTheStartOfAnItem) {
  EXPECT_EQ(LoadAlerts("  one,\ttwo, \tthree,\x0b"
                       "four\r\n"),
            (Lines{"one", "\ttwo", "\tthree",
                   "\x0b"
                   "four"}));
  EXPECT_EQ(LoadAlerts("\t\"quoted, no\"\r\n"), (Lines{"\t\"quoted", "no\""}));
}

}  // namespace
}  // namespace frostmark::test
