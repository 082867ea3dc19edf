#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <utility>

#include "records/lines/player_line.h"
#include "records/lines/standings_line.h"
#include "tests/support/full_disk.h"
#include "tests/support/game_fixture.h"
#include "tests/support/watchful_front_end.h"

namespace frostmark::test {
namespace {

class NewFranchiseTest : public GameFixture {
 protected:
  void SetUp() override {
    dice().KeepRolls(false);
    program().Start();
    startup().HighButton2.Click();
  }
  void FillRankF(int teams) {
    for (int i = 0; i < teams; ++i) {
      world.WriteTeam("Rank F", WolvesOf("Rank F", i), MakeRoster(80));
    }
  }
  void New() { startup().HighButton4.Click(); }
  void Generate() { startup().HighButton7.Click(); }
  void Begin() { startup().HighButton6.Click(); }
  TeamCreator& creator() { return program().team_creator; }
};

using PanelTest = NewFranchiseTest;

TEST_F(PanelTest, NewOnAFirstRunAsksNothingBuildsAndOpensThePanel) {
  New();
  ASSERT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_EQ(front_end().Boxes()[0].text, "Please wait as this may take some time...");
  EXPECT_EQ(world.FileNames("Rank F").size(), 5U);
  EXPECT_EQ(world.FileNames("Rank A").size(), 6U);
  EXPECT_TRUE(startup().Frame1.OnView());
}

TEST_F(PanelTest, NewOverARunningGameAsks) {
  FillRankF(6);
  front_end().QueueAnswer("no");
  New();
  ASSERT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_EQ(front_end().Boxes()[0].text,
            "There is already a loaded game in progress. Would you like to create a new game?\n"
            "Warning: Doing this will delete your last game.");
  EXPECT_EQ(front_end().Boxes()[0].icon, BoxIcon::kStop);
  EXPECT_EQ(front_end().Boxes()[0].buttons, BoxButtons::kYesNo);
}

TEST_F(PanelTest, NoLeavesEverythingAsItWas) {
  FillRankF(6);
  const Lines before = world.Everything();
  front_end().QueueAnswer("no");
  New();
  EXPECT_EQ(world.Everything(), before);
  EXPECT_FALSE(startup().Frame1.Visible());
  EXPECT_EQ(franchise().Season.Caption(), "00");
}

TEST_F(PanelTest, YesBuildsOnceAndOpensThePanel) {
  world.FillWorld();
  front_end().QueueAnswer("yes");
  New();
  EXPECT_EQ(front_end().Boxes().size(), 2U);
  const Lines teams = world.FileNames("Rank F");
  EXPECT_EQ(teams.size(), 5U);
  EXPECT_EQ(std::count(teams.begin(), teams.end(), "F0 Wolves"), 0);
  EXPECT_TRUE(startup().Frame1.Visible());
}

TEST_F(PanelTest, AfterTheBuildTheListingIsThatOfTheLastLeagueWhichMayBeEmpty) {
  // With a world only in "Rank F" the build lists an empty "Rank A" last, so it comes twice.
  FillRankF(6);
  front_end().QueueAnswer("yes");
  New();
  EXPECT_EQ(startup().File1.Path(), world.path() + "/Teams/Rank A");
  EXPECT_EQ(front_end().Boxes().size(), 3U);
}

TEST_F(PanelTest, ANumberOfTeamsThatIsNeitherNoneNorSixOpensThePanelAtOnce) {
  for (const int teams : {5, 1, 4, 7, 8}) {
    for (const std::string& name : world.FileNames("Rank F")) {
      Ordvik::DeleteFile(world.TeamPath("Rank F", name));
    }
    FillRankF(teams);
    startup().Frame1.Hide();
    const Lines before = world.Everything();
    New();
    EXPECT_TRUE(startup().Frame1.Visible());
    EXPECT_EQ(world.Everything(), before);
  }
  EXPECT_TRUE(front_end().Boxes().empty());
}

TEST_F(PanelTest, SettingsAreNotConsulted) {
  WriteText(world.SettingsPath("settings.fmk"), "[Frostmark]\r\nTeam=F0 Wolves\r\n");
  FillRankF(5);
  New();
  EXPECT_EQ(ordvik().counts().file_reads, 0);
  EXPECT_TRUE(front_end().Boxes().empty());
}

TEST_F(PanelTest, GenerateShowsEachLineInReverseWithItsRatings) {
  Generate();
  const Lines team = ItemsOf(creator().List1);
  Lines lead;
  Lines training;
  for (std::size_t i = team.size(); i-- > 0;)
    (i < 6 ? lead : training).push_back(FormatPanelLine(team[i]));
  EXPECT_EQ(ItemsOf(startup().List1), lead);
  EXPECT_EQ(ItemsOf(startup().List2), training);
  EXPECT_TRUE(startup().List1.List(5).starts_with("GO - "));
  EXPECT_TRUE(startup().List1.List(0).starts_with("LF - "));
  EXPECT_EQ(startup().Label10.Caption(), std::to_string(naming().TeamOffense));
  EXPECT_EQ(startup().Label9.Caption(), std::to_string(naming().TeamDefense));
  EXPECT_EQ(startup().Label8.Caption(), std::to_string(naming().TeamOverall));
}

TEST_F(PanelTest, ALineOfThePanelHasNoBrackets) {
  dice().Give({1, 1, 10, 11, 12, 13, 3});
  Generate();
  EXPECT_EQ(startup().List1.List(5), "GO - John Johnson 89/22");
}

TEST_F(PanelTest, GenerateTwiceShowsTheSecondTeamOnly) {
  Generate();
  const Lines first = ItemsOf(startup().List1);
  Generate();
  EXPECT_EQ(startup().List1.ListCount(), 6);
  EXPECT_EQ(startup().List2.ListCount(), 5);
  EXPECT_NE(ItemsOf(startup().List1), first);
}

TEST_F(PanelTest, NamesAreCutAtTwelveAndSixteenCharacters) {
  startup().Text1.Type("ABCDEFGHIJKLMNOP");
  startup().Text2.Type("ABCDEFGHIJKLMNOPQRST");
  EXPECT_EQ(startup().Text1.Text(), "ABCDEFGHIJKL");
  EXPECT_EQ(startup().Text2.Text(), "ABCDEFGHIJKLMNOP");
  startup().Text1.Type("M\u00FCnster M\u00FCnster");  // characters, not bytes
  EXPECT_EQ(startup().Text1.Text(), "M\u00FCnster M\u00FCns");
}

TEST_F(PanelTest, TheCrossClosesThePanelAndTheTeamStays) {
  Generate();
  startup().Frame1.Show();
  const Lines team = ItemsOf(creator().List1);
  startup().Label3.Click();
  EXPECT_FALSE(startup().Frame1.Visible());
  EXPECT_EQ(ItemsOf(creator().List1), team);
}

TEST_F(PanelTest, TheHotSpotRollsUntilTheWantedOverallComesUp) {
  front_end().QueueAnswer("86");
  startup().Label12.Click();
  EXPECT_EQ(front_end().Prompts(), (Lines{"Desired overall?"}));
  EXPECT_EQ(startup().Label8.Caption(), "86");
  EXPECT_EQ(startup().List1.ListCount(), 6);
}

TEST_F(PanelTest, TheWantedOverallIsComparedAsText) {
  struct Enough {};
  for (const char* wanted : {" 86", "86.0", "086", "cancel", "best", "200"}) {
    front_end().QueueAnswer(wanted);
    // Without end: the user is still there after many teams.
    constexpr int kYieldsOfATeam = 11 + 11 + 1;
    for (int i = 0; i < 60 * kYieldsOfATeam; ++i) front_end().AtYield([] {});
    front_end().AtYield([] { throw Enough(); });
    EXPECT_THROW(startup().Label12.Click(), Enough) << wanted;
  }
}

TEST_F(PanelTest, TheHotSpotYieldsAfterEachTeam) {
  dice().ThenAlways(30);  // every skill 70
  front_end().QueueAnswer("70");
  const auto before = front_end().Yields();
  startup().Label12.Click();
  EXPECT_EQ(front_end().Yields() - before, 11 + 11 + 1);
}

class BeginTest : public NewFranchiseTest {
 protected:
  void SetUp() override {
    NewFranchiseTest::SetUp();
    New();
    Generate();
  }
  Lines Team() { return ItemsOf(creator().List1); }
  // Whom the user's team meets in the first week, by its place in the league.
  std::string Opponent() {
    constexpr std::array<int, 6> kPartners = {3, 2, 1, 0, 5, 4};
    for (int place = 0; place < 6; ++place) {
      if (franchise().RankF.List(place) != franchise().TeamName.Caption()) continue;
      return franchise().RankF.List(kPartners[static_cast<std::size_t>(place)]);
    }
    return "not in the league";
  }
};

TEST_F(BeginTest, WritesTheTeamFillsTheScreenAndSaves) {
  const Lines team = Team();
  Begin();
  EXPECT_EQ(ReadLines(world.TeamPath("Rank F", "Montreal Breeze")), team);
  EXPECT_EQ(world.FileNames("Rank F").size(), 6U);
  EXPECT_FALSE(startup().Visible());
  EXPECT_TRUE(franchise().Visible());
  EXPECT_EQ(ItemsOf(franchise().MainList), Lines(team.begin(), team.begin() + 6));
  EXPECT_EQ(ItemsOf(franchise().TrainList), Lines(team.begin() + 6, team.end()));
  EXPECT_EQ(franchise().MainRoster.List(0), FormatRosterLine(team[0]));
  EXPECT_EQ(franchise().TrainingRoster.List(0), FormatRosterLine(team[6]));
  EXPECT_EQ(franchise().Label9.Caption(), startup().Label8.Caption());
  EXPECT_EQ(franchise().Label12.Caption(), startup().Label10.Caption());
  EXPECT_EQ(franchise().Label15.Caption(), startup().Label9.Caption());
  EXPECT_EQ(franchise().TeamName.Caption(), "Montreal Breeze");
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank F");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
  EXPECT_EQ(franchise().Season.Caption(), "0");
  EXPECT_EQ(franchise().Champion.Caption(), "0");
  EXPECT_EQ(franchise().RankF.ListCount(), 6);
  EXPECT_EQ(franchise().StatRankF.List(0), FormatFreshStandingsLine(franchise().RankF.List(0)));
  EXPECT_NE(franchise().OppTeam.Caption(), "");
  EXPECT_FALSE(startup().Frame1.Visible());
  EXPECT_FALSE(startup().HighButton4.Visible());
  EXPECT_FALSE(startup().HighButton5.Visible());
  EXPECT_EQ(front_end().Boxes().back().text, "File saved!");
  EXPECT_EQ(ordvik().ReadSetting("Team"), "Montreal Breeze");
  EXPECT_EQ(ordvik().ReadSetting("Week"), "Week 1");
}

TEST_F(BeginTest, TheNamesAreThoseOfThePanel) {
  startup().Text1.Type("Quebec");
  startup().Text2.Type("Ice Men");
  Begin();
  EXPECT_EQ(franchise().TeamName.Caption(), "Quebec Ice Men");
  EXPECT_EQ(ReadLines(world.TeamPath("Rank F", "Quebec Ice Men")).size(), 11U);
}

TEST_F(BeginTest, EmptyNamesAreNotRefused) {
  startup().Text1.Type("");
  startup().Text2.Type("");
  Begin();
  EXPECT_EQ(franchise().TeamName.Caption(), " ");
  EXPECT_EQ(ReadLines(world.TeamPath("Rank F", " ")).size(), 11U);
}

TEST_F(BeginTest, ATeamOfThatNameIsOverwrittenAndTheLeagueHasFive) {
  const std::string other = world.FileNames("Rank F")[2];
  const std::size_t blank = other.find(' ');
  startup().Text1.SetText(other.substr(0, blank));
  startup().Text2.SetText(other.substr(blank + 1));
  const Lines team = Team();
  Begin();
  EXPECT_EQ(world.FileNames("Rank F").size(), 5U);
  EXPECT_EQ(ReadLines(world.TeamPath("Rank F", other)), team);
  EXPECT_EQ(franchise().RankF.ListCount(), 5);
}

TEST_F(BeginTest, TheFranchiseIsOnViewWhileTheRosterFills) {
  for (int i = 0; i < 11; ++i) front_end().AtYield([] {});  // the team file
  for (int i = 1; i <= 11; ++i) {
    front_end().AtYield([this, i] {
      EXPECT_TRUE(franchise().Visible());
      EXPECT_FALSE(startup().Visible());
      EXPECT_EQ(franchise().MainList.ListCount() + franchise().TrainList.ListCount(), i);
      EXPECT_EQ(franchise().TeamName.Caption(), "");
      EXPECT_TRUE(startup().Frame1.Visible());
    });
  }
  Begin();
}

TEST_F(BeginTest, ASecondBeginInOneRunAddsToTheRoster) {
  Begin();
  franchise().HighButton2.Click();
  startup().HighButton2.Click();
  startup().Text1.Type("Quebec");
  Begin();
  EXPECT_EQ(franchise().MainList.ListCount(), 12);
  EXPECT_EQ(franchise().TrainList.ListCount(), 10);
  EXPECT_EQ(ReadLines(world.TeamPath("Rank F", "Quebec Breeze")).size(), 22U);
}

using BeginWithoutBuildTest = NewFranchiseTest;

// Whichever team it replaces, the league of five leaves one week in five without an opponent.
TEST_F(BeginWithoutBuildTest, WithTheNameOfAnotherTeamItEndsAndSaves) {
  for (int taken = 0; taken < 5; ++taken) {
    SCOPED_TRACE(taken);
    Restart();
    dice().KeepRolls(false);
    FillRankF(5);
    New();
    Generate();
    startup().Text1.Type("F" + std::to_string(taken));
    startup().Text2.Type("Wolves");
    Begin();
    EXPECT_EQ(front_end().Boxes().back().text, "File saved!");
    EXPECT_EQ(ordvik().ReadSetting("Team"), WolvesOf("Rank F", taken));
    EXPECT_EQ(front_end().Waits(), 0);
  }
}

TEST_F(BeginWithoutBuildTest, SeasonAndChampionshipsAreSavedAsTheScreenStarts) {
  FillRankF(5);
  New();
  Generate();
  Begin();
  EXPECT_EQ(ordvik().ReadSetting("Season"), "00");
  EXPECT_EQ(ordvik().ReadSetting("Champion"), "00");
}

TEST_F(BeginWithoutBuildTest, BeforeAnyGenerateTheTeamIsEmptyAndItGoesOnAllTheSame) {
  FillRankF(5);
  New();
  Begin();
  EXPECT_EQ(ReadText(world.TeamPath("Rank F", "Montreal Breeze")), "");
  EXPECT_TRUE(franchise().Visible());
  EXPECT_EQ(franchise().MainList.ListCount(), 0);
  EXPECT_EQ(front_end().Boxes().back().text, "File saved!");
}

TEST_F(BeginWithoutBuildTest, RightAfterABuildTheTeamIsTheOneThatTheBuildRolledLast) {
  New();
  const Lines last = ItemsOf(creator().List1);
  ASSERT_EQ(last.size(), 11U);
  Begin();
  EXPECT_EQ(ReadLines(world.TeamPath("Rank F", "Montreal Breeze")), last);
}

// Names of a team as no folder could hold them.
TEST_F(PanelTest, NamesTakeNoCharacterThatNoFileNameHolds) {
  for (TextBox* box : {&startup().Text1, &startup().Text2, &creator().Text1, &creator().Text2}) {
    box->Type("A/C/");
    EXPECT_EQ(box->Text(), "AC") << box->FullName();
    box->Type(
        std::string("a\0b\nc\rd\te\x7f"
                    "f\x1b[2Jg",
                    16));
    EXPECT_EQ(box->Text(), "abcdef[2Jg") << box->FullName();
    box->Type("x\u0085y\u009fz");  // controls of two bytes
    EXPECT_EQ(box->Text(), "xyz") << box->FullName();
    box->Type("M\u00FC \"n.\\'");  // all this is good for a name
    EXPECT_EQ(box->Text(), "M\u00FC \"n.\\'") << box->FullName();
    box->Type("////");
    EXPECT_EQ(box->Text(), "") << box->FullName();
  }
  // What is not taken does not count against the limit.
  startup().Text1.Type("AB/CDEF/GHIJKL");
  EXPECT_EQ(startup().Text1.Text(), "ABCDEFGHIJKL");
}

// The blank between the two boxes keeps every name from being that of a folder.
TEST_F(BeginTest, NoTwoNamesMakeAFileOutsideItsLeague) {
  const std::size_t settings = world.SettingsNames().size();
  for (const auto& [city, nickname] : {std::pair{"", ""},
                                       {".", ""},
                                       {"", "."},
                                       {"..", ""},
                                       {"", ".."},
                                       {".", "."},
                                       {"../Rank E", "x"},
                                       {"../..", "/etc"}}) {
    for (const std::string& name : world.FileNames("Rank F")) {
      Ordvik::DeleteFile(world.TeamPath("Rank F", name));
    }
    startup().Text1.Type(city);
    startup().Text2.Type(nickname);
    const std::string name = startup().Text1.Text() + " " + startup().Text2.Text();
    const Lines others = world.FileNames("Rank E");
    Begin();
    EXPECT_EQ(world.FileNames("Rank F"), Lines{name});
    EXPECT_EQ(world.FileNames("Rank E"), others);
    EXPECT_EQ(franchise().RankF.List(0), name);
    EXPECT_GE(world.SettingsNames().size(), settings);
  }
}

// Watches when the franchise comes up.
class OnShown : public Screen::Observer {
 public:
  explicit OnShown(std::function<void()> look) : look_(std::move(look)) {}
  void ScreenChanged(Screen& screen) override {
    if (screen.Visible()) look_();
  }
  void DragRequested(Screen& /*screen*/) override {}

 private:
  std::function<void()> look_;
};

TEST_F(BeginTest, FirstTheFileThenTheScreensAndTheSaveAtTheEnd) {
  int shown = 0;
  OnShown watch([&] {
    ++shown;
    EXPECT_EQ(ReadLines(world.TeamPath("Rank F", "Montreal Breeze")), Team());
    EXPECT_FALSE(startup().Visible());
    EXPECT_EQ(franchise().MainList.ListCount(), 0);
    EXPECT_TRUE(startup().Frame1.Visible());
    EXPECT_EQ(ordvik().ReadSetting("Team"), "");
  });
  franchise().SetObserver(&watch);
  for (int line = 0; line < 11; ++line) {
    front_end().AtYield([this] {
      EXPECT_TRUE(startup().Visible());
      EXPECT_FALSE(franchise().Visible());
    });
  }
  Begin();
  franchise().SetObserver(nullptr);
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(front_end().Boxes().back().text, "File saved!");
  EXPECT_EQ(ordvik().ReadSetting("Team"), "Montreal Breeze");
}

TEST_F(BeginTest, ThePanelAndTheTwoButtonsGoBeforeTheSave) {
  WatchfulFrontEnd watchful;
  Program other(watchful, dice(), world.path());
  other.team_creator.GenTeam();
  other.startup.HighButton2.Click();
  other.startup.Frame1.Show();
  int boxes = 0;
  watchful.OnBox = [&] {
    ++boxes;
    EXPECT_FALSE(other.startup.Frame1.Visible());
    EXPECT_FALSE(other.startup.HighButton4.Visible());
    EXPECT_FALSE(other.startup.HighButton5.Visible());
  };
  other.startup.PressBegin();
  EXPECT_EQ(boxes, 1);
}

TEST_F(BeginTest, TheNextOpponentIsFoundOnceMoreBeforeTheSave) {
  // In the schedule the league is written over; when it reads "Rank F" again, the schedule is over.
  bool in_schedule = false;
  bool again = false;
  std::function<void()> look = [&] {
    if (!in_schedule && franchise().RankA.ListCount() == 6 &&
        franchise().tempList.ListCount() == 11) {
      in_schedule = true;
      franchise().MyRank.SetCaption("not yet");
    } else if (in_schedule && !again && franchise().MyRank.Caption() == "Rank F") {
      again = true;
      franchise().OppTeam.SetCaption("not yet");
      EXPECT_TRUE(startup().Frame1.Visible());
    }
    if (!again) front_end().AtYield(look);
  };
  front_end().AtYield(look);
  Begin();
  ASSERT_TRUE(in_schedule);
  ASSERT_TRUE(again);
  EXPECT_EQ(franchise().OppTeam.Caption(), Opponent());
}

TEST_F(BeginTest, ATakenNameEndsInASaveWhateverPlaceTheTeamHas) {
  for (std::size_t place = 0; place < 5; ++place) {
    Restart();
    NewFranchiseTest::SetUp();
    front_end().QueueAnswer("yes");  // from the second time on a game is there
    New();
    front_end().ForgetAnswers();
    Generate();
    const std::string other = world.FileNames("Rank F")[place];
    const std::size_t blank = other.find(' ');
    startup().Text1.SetText(other.substr(0, blank));
    startup().Text2.SetText(other.substr(blank + 1));
    Begin();
    EXPECT_EQ(franchise().RankF.ListCount(), 5);
    EXPECT_EQ(front_end().Waits(), 0);
    EXPECT_EQ(front_end().Boxes().back().text, "File saved!");
    EXPECT_EQ(ordvik().ReadSetting("Team"), other);
    EXPECT_EQ(franchise().OppTeam.Caption(), Opponent());
  }
}

class CutOffNewTest : public NewFranchiseTest {
 protected:
  struct CutOff {};
  std::size_t TeamsIn(const char* rank) const { return world.FileNames(rank).size(); }
  bool IsMarked() const { return std::filesystem::exists(world.SettingsPath("unfinished.new")); }
  void NewInANewRun() {
    Restart();
    dice().KeepRolls(false);
    New();
  }
};

TEST_F(CutOffNewTest, ABuildThatWasCutOffIsMadeAgainWithoutAQuestion) {
  // Some teams are deleted, some are made; the counts in "Rank F" are 0 to 6.
  for (const int yields : {0, 3, 8, 36, 100, 1000, 3000}) {
    SCOPED_TRACE(yields);
    for (const char* rank : kRanks) {
      for (const std::string& team : world.FileNames(rank)) {
        Ordvik::DeleteFile(world.TeamPath(rank, team));
      }
    }
    world.FillWorld();
    front_end().QueueAnswer("yes");
    for (int i = 0; i < yields; ++i) front_end().AtYield([] {});
    front_end().AtYield([] { throw CutOff(); });
    EXPECT_THROW(New(), CutOff);
    EXPECT_TRUE(IsMarked());
    NewInANewRun();
    // Twice when the folders were empty by then, as after a Yes.
    ASSERT_FALSE(front_end().Boxes().empty());
    for (const MessageBox& box : front_end().Boxes()) {
      EXPECT_EQ(box.text, "Please wait as this may take some time...");
    }
    EXPECT_EQ(TeamsIn("Rank F"), 5U);
    for (const char* rank : {"Rank E", "Rank D", "Rank C", "Rank B", "Rank A"}) {
      EXPECT_EQ(TeamsIn(rank), 6U);
    }
    EXPECT_TRUE(startup().Frame1.Visible());
    EXPECT_FALSE(IsMarked());
  }
}

TEST_F(CutOffNewTest, TheGameBeforeIsNoneAnyMore) {
  New();
  Begin();
  front_end().QueueAnswer("yes");
  front_end().AtYield([] { throw CutOff(); });
  EXPECT_THROW(New(), CutOff);
  Restart();
  startup().PressLoad();
  EXPECT_FALSE(franchise().Visible());
  EXPECT_EQ(franchise().TeamName.Caption(), "");
}

TEST_F(CutOffNewTest, AfterABuildThePanelOpensAtOnce) {
  New();
  NewInANewRun();
  EXPECT_TRUE(front_end().Boxes().empty());
  EXPECT_TRUE(startup().Frame1.Visible());
}

TEST_F(CutOffNewTest, ABeginningThatWasCutOffBeforeItsSaveIsBuiltOver) {
  New();
  Generate();
  for (int i = 0; i < 40; ++i) front_end().AtYield([] {});  // the team is in "Rank F" by now
  front_end().AtYield([] { throw CutOff(); });
  EXPECT_THROW(Begin(), CutOff);
  EXPECT_EQ(TeamsIn("Rank F"), 6U);
  NewInANewRun();
  EXPECT_EQ(front_end().Boxes().size(), 1U);  // no question
  EXPECT_EQ(TeamsIn("Rank F"), 5U);
}

// A press of "New" in one of its yields, and a kill in the yields after that.
TEST_F(CutOffNewTest, ABuildWithinABuildLeavesTheMarkToTheOuterOne) {
  bool nested = false;
  front_end().AtYield([this, &nested] {
    startup().BuildLeague();
    nested = true;
    EXPECT_TRUE(IsMarked());
    front_end().AtYield([] { throw CutOff(); });
  });
  EXPECT_THROW(New(), CutOff);
  EXPECT_TRUE(nested);
  EXPECT_TRUE(IsMarked());
  NewInANewRun();
  EXPECT_FALSE(IsMarked());
  for (const char* rank : kRanks) {
    EXPECT_EQ(TeamsIn(rank), std::string(rank) == "Rank F" ? 5U : 6U);
  }
}

TEST_F(CutOffNewTest, ABuildWithinABuildLeavesNoMarkWhenBothAreOver) {
  front_end().AtYield([this] { startup().BuildLeague(); });
  New();
  EXPECT_FALSE(IsMarked());
}

// One that could not be made whole leaves it, however the others around it have ended.
TEST_F(CutOffNewTest, ABuildWithinABuildThatIsNotWholeKeepsTheMark) {
  front_end().AtYield([this] {
    const FullDisk full(0);
    startup().BuildLeague();
  });
  New();
  EXPECT_TRUE(IsMarked());
}

// The mark of this program's own work is not a sign of a cut: the count of teams decides as ever.
TEST_F(CutOffNewTest, NewWithinABuildAsksByTheCountOfTeams) {
  world.FillWorld();
  for (const char* rank : {"Rank E", "Rank D", "Rank C", "Rank B", "Rank A"}) {
    for (const std::string& team : world.FileNames(rank)) {
      Ordvik::DeleteFile(world.TeamPath(rank, team));
    }
  }
  front_end().QueueAnswer("yes");
  front_end().AtYield([this] {
    EXPECT_EQ(TeamsIn("Rank F"), 5U);
    New();
    EXPECT_EQ(front_end().Boxes().size(), 2U);  // the question, and that it takes time
  });
  New();
}

TEST_F(CutOffNewTest, ASaveWithinABeginningLeavesItTheMark) {
  New();
  Generate();
  for (int i = 0; i < 15; ++i) front_end().AtYield([] {});  // the roster is being filled
  front_end().AtYield([this] {
    ASSERT_TRUE(franchise().Visible());
    franchise().HighButton3.Click();
    EXPECT_TRUE(IsMarked());
  });
  Begin();
  EXPECT_FALSE(IsMarked());
}

TEST_F(CutOffNewTest, ABuildWithinABeginningLeavesItTheMarkOfABeginning) {
  New();
  Generate();
  front_end().AtYield([this] {
    startup().BuildLeague();
    EXPECT_EQ(ReadText(world.SettingsPath("unfinished.new")), "begin\r\n");
  });
  Begin();
  EXPECT_FALSE(IsMarked());
}

TEST_F(CutOffNewTest, ABeginningWithinABeginningLeavesTheMarkToTheOuterOne) {
  New();
  Generate();
  front_end().AtYield([this] {
    Begin();
    EXPECT_TRUE(IsMarked());
  });
  Begin();
  EXPECT_FALSE(IsMarked());
}

// The game before had a team of this name too: its week and tables are not part of the new world.
TEST_F(CutOffNewTest, ABeginningThatWasCutOffIsNotTheGameBefore) {
  New();
  Begin();
  franchise().NextWeek.SetCaption("Week 7");
  franchise().SaveGame();
  front_end().QueueAnswer("yes");
  New();
  for (int i = 0; i < 40; ++i) front_end().AtYield([] {});
  front_end().AtYield([] { throw CutOff(); });
  EXPECT_THROW(Begin(), CutOff);
  ASSERT_TRUE(std::filesystem::exists(world.TeamPath("Rank F", "Montreal Breeze")));
  Restart();
  startup().PressLoad();
  EXPECT_FALSE(franchise().Visible());
  EXPECT_EQ(franchise().TeamName.Caption(), "");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");  // as the screen starts
}

TEST_F(CutOffNewTest, ABeginningThatWasCutOffAfterItsSaveIsTakenUp) {
  New();
  std::string mark;
  for (int i = 0; i < 40; ++i) front_end().AtYield([] {});
  front_end().AtYield([&] { mark = ReadText(world.SettingsPath("unfinished.new")); });
  Begin();
  ASSERT_FALSE(mark.empty());
  WriteText(world.SettingsPath("unfinished.new"), mark);
  Restart();
  startup().PressLoad();
  EXPECT_TRUE(franchise().Visible());
  EXPECT_EQ(franchise().TeamName.Caption(), "Montreal Breeze");
}

// It is saved before the box says so.
TEST_F(CutOffNewTest, ABeginningIsWholeWhenItsBoxIsShown) {
  New();
  Generate();
  WatchfulFrontEnd watchful;
  Program other(watchful, dice(), world.path());
  watchful.OnBox = [this] { EXPECT_FALSE(IsMarked()); };
  other.team_creator.GenTeam();
  other.startup.PressBegin();
  EXPECT_EQ(world.SettingsNames().size(), 8U);
}

}  // namespace
}  // namespace frostmark::test
