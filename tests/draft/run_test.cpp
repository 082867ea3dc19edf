#include <algorithm>
#include <filesystem>

#include "records/runtime_error.h"
#include "tests/draft/draft_scene.h"

// The computers' turns of the draft.

namespace frostmark::test {
namespace {

using Ages = std::vector<int>;
using Asked = std::vector<int>;

class CpuDraftTest : public DraftScene {
 protected:
  // RECORD with another Training.
  std::string With(const std::string& training, const std::string& record) {
    return naming().SetField(record, "Training", training);
  }
  // The name of the one player of ROSTER who is not in FILE.
  std::string LeaverOf(const Lines& roster, const Lines& file) {
    Lines gone;
    for (const std::string& record : roster) {
      if (std::find(file.begin(), file.end(), record) == file.end()) {
        gone.push_back(HockeyNaming::GetField(record, "Name"));
      }
    }
    EXPECT_EQ(gone.size(), 1U);
    return gone.empty() ? "" : gone.front();
  }
};

TEST_F(CpuDraftTest, TheScreenStartsAsDesigned) {
  EXPECT_EQ(draft().Caption(), "Draft");
  EXPECT_EQ(draft().XTab1.Tabs(), std::vector<std::string>{"Draft"});
  EXPECT_EQ(draft().Label1.Caption(), "Current Rank:");
  EXPECT_EQ(draft().CurRank.Caption(), "Rank F");
  EXPECT_EQ(draft().Label2.Caption(), "Current Team:");
  EXPECT_EQ(draft().CurTeam.Caption(), "No one");
  EXPECT_EQ(draft().Label3.Caption(), "Draft Speed:");
  EXPECT_FALSE(draft().Label3.Visible());
  EXPECT_FALSE(draft().HScroll1.Visible());
  EXPECT_EQ(draft().Label4.Caption(),
            "Goalies                    Left Defenders                    Right Defenders");
  EXPECT_EQ(draft().Label6.Caption(),
            "Left Forwards                    Center Forwards                    Right Forwards");
  EXPECT_EQ(draft().Label5.Caption(), "History:");
  EXPECT_EQ(draft().Command1.Caption(), "New Season");
  EXPECT_FALSE(draft().Command1.Enabled());
  EXPECT_EQ(OpenLists().size(), 6U);
  const char* const positions[] = {"GO", "LD", "RD", "LF", "CF", "RF"};
  ListPair* const lists[] = {&draft().List1, &draft().List2, &draft().List3,
                             &draft().List4, &draft().List5, &draft().List6};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(draft().Pool(positions[i]), lists[i]);
  EXPECT_EQ(draft().Pool("go"), nullptr);
  EXPECT_FALSE(draft().List1.records.Visible());
  EXPECT_FALSE(draft().tempList.Visible());
}

TEST_F(CpuDraftTest, ATurnGoesStepByStep) {
  const Lines before = ReadLines(PathOf("Rank A"));
  draft().tempList.AddItem("left over");
  draft().AwaitingPick = true;
  draft().Command1.Enable();
  SecondPasses([&] {
    EXPECT_FALSE(draft().Command1.Enabled());
    EXPECT_FALSE(draft().AwaitingPick);
    EXPECT_EQ(draft().CurRank.Caption(), "Rank A");
    EXPECT_EQ(draft().CurTeam.Caption(), "No one");
    EXPECT_EQ(draft().tempList.ListCount(), 0);
  });
  SecondPasses([&] {
    EXPECT_EQ(draft().CurTeam.Caption(), "A Team");
    EXPECT_EQ(draft().tempList.ListCount(), 10);
    EXPECT_EQ(Events().size(), 1U);
    EXPECT_NE(draft().ReleasedPlayer, "");
    EXPECT_EQ(Pool("LF").size(), 5U);
    EXPECT_EQ(ReadLines(PathOf("Rank A")), before);
  });
  SecondPasses([&] {
    EXPECT_EQ(draft().tempList.ListCount(), 11);
    EXPECT_EQ(Events().size(), 2U);
    EXPECT_EQ(draft().ReleasedPlayer, "");
    EXPECT_EQ(ReadLines(PathOf("Rank A")), ItemsOf(draft().tempList));
    EXPECT_EQ(draft().CurRank.Caption(), "Rank A");
    ExpectPoolInStep();
  });
  SecondPasses([&] {
    EXPECT_EQ(draft().CurRank.Caption(), "Rank B");
    EXPECT_EQ(draft().CurTeam.Caption(), "A Team");
  });
  Stop();
  EXPECT_EQ(draft().CurTeam.Caption(), "B Team");
}

TEST_F(CpuDraftTest, AllTeamsHaveTheirTurnFromTheTopAndFromTheLastNameUp) {
  for (const char* rank : kRanks) std::filesystem::remove(PathOf(rank));
  world.FillWorld();
  FillPool(20, 90);
  Lines turns;
  for (int team = 0; team < 36; ++team) {
    SecondPasses();
    SecondPasses(
        [&] { turns.push_back(draft().CurRank.Caption() + ": " + draft().CurTeam.Caption()); });
    SecondPasses();
  }
  const auto start = front_end().SinceMidnight();
  draft().RunDraft();
  Lines expected;
  for (auto rank = kRanks.rbegin(); rank != kRanks.rend(); ++rank) {
    for (int number = 5; number >= 0; --number) {
      expected.push_back(std::string(*rank) + ": " + WolvesOf(*rank, number));
    }
  }
  EXPECT_EQ(turns, expected);
  EXPECT_EQ(front_end().SinceMidnight() - start, std::chrono::seconds(108));
  EXPECT_TRUE(draft().Command1.Enabled());
  EXPECT_EQ(draft().CurRank.Caption(), "Rank F");
  EXPECT_EQ(draft().CurTeam.Caption(), "F0 Wolves");
  const Lines events = Events();
  EXPECT_EQ(std::count_if(events.begin(), events.end(),
                          [](const std::string& line) {
                            return line.find(" has added ") != std::string::npos;
                          }),
            36);
  EXPECT_EQ(events.size(), 72U);
  for (const char* rank : kRanks) {
    for (int number = 0; number < 6; ++number) {
      EXPECT_EQ(ReadLines(world.TeamPath(rank, WolvesOf(rank, number))).size(), 11U);
    }
  }
}

TEST_F(CpuDraftTest, APromotedTeamDraftsInItsNewLeague) {
  std::filesystem::rename(PathOf("Rank B"), world.TeamPath("Rank A", "B Team"));
  std::filesystem::rename(PathOf("Rank A"), world.TeamPath("Rank B", "A Team"));
  SecondPasses();
  SecondPasses([&] { EXPECT_EQ(draft().CurTeam.Caption(), "B Team"); });
  Stop();
}

TEST_F(CpuDraftTest, NobodyOfThirtyOrYoungerRetires) {
  const Lines roster = RosterOfAges(Ages(11, 30));
  const Lines file = FirstTurn(roster);
  EXPECT_EQ(LeaverOf(roster, file), "Old 10");  // let go, not retired
  EXPECT_EQ(Events()[0], "A Team lost (LF) Old 10. Overall: 80");
}

TEST_F(CpuDraftTest, FromThirtyOneOnThreeOfTenRetireAndFromThirtyFiveEight) {
  const struct {
    int age;
    int roll;
    bool retires;
  } cases[] = {{31, 3, true}, {31, 4, false},  {34, 3, true}, {34, 4, false},
               {34, 1, true}, {35, 4, true},   {35, 8, true}, {35, 9, false},
               {36, 8, true}, {36, 10, false}, {99, 8, true}, {32, 10, false}};
  for (const auto& c : cases) {
    FillPool(5, 70);
    Ages ages(11, 20);
    ages[4] = c.age;
    const Lines roster = RosterOfAges(ages);
    const Lines file = FirstTurn(roster, {c.roll});
    EXPECT_EQ(dice().Asked(), Asked{10});
    EXPECT_EQ(LeaverOf(roster, file), c.retires ? "Old 4" : "Old 10") << c.age << " " << c.roll;
    if (c.retires) {
      EXPECT_EQ(Events(), (Lines{"(CF) Old 4 has retired from A Team at " + std::to_string(c.age) +
                                     " years old",
                                 "A Team has added CF Rookie 0 to the team. Overall: 70"}));
    }
  }
}

TEST_F(CpuDraftTest, AnAgeIsRoundedDown) {
  Lines roster = RosterOfAges(Ages(11, 20));
  roster[0] = "Gus,GO,90,90,90,90,90,30.9,N";
  roster[1] = "Rob,RD,89,89,89,89,89,34.9,N";
  FirstTurn(roster, {4});
  EXPECT_EQ(dice().Rolls(), (std::vector<RollPair>{{10, 4}}));
}

TEST_F(CpuDraftTest, ThoseNearestTheHeadAreAskedFirstAndOneIsAll) {
  Ages ages(11, 20);
  ages[0] = 36;
  ages[5] = 40;
  const Lines roster = RosterOfAges(ages);
  EXPECT_EQ(LeaverOf(roster, FirstTurn(roster, {8})), "Old 0");
  FillPool(5, 70);
  EXPECT_EQ(LeaverOf(roster, FirstTurn(roster, {9, 8})), "Old 5");
  FillPool(5, 70);
  EXPECT_EQ(LeaverOf(roster, FirstTurn(roster, {9, 9})), "Old 10");
}

TEST_F(CpuDraftTest, ARetirementKeepsTheOrderOfTheFile) {
  Ages ages(11, 20);
  ages[9] = 35;
  Lines roster = RosterOfAges(ages);
  std::reverse(roster.begin(), roster.end());  // worst first
  const std::string retired = roster[1];
  Lines expected = roster;
  expected.erase(expected.begin() + 1);
  expected.push_back(With("Y", Pool("CF")[0]));
  EXPECT_EQ(FirstTurn(roster, {1}), expected);
  // They are gone permanently: nothing goes back to the pool.
  EXPECT_EQ(Pool("CF").size(), 4U);
  EXPECT_EQ(draft().ReleasedPlayer, "");
  EXPECT_EQ(HockeyNaming::GetField(retired, "Name"), "Old 9");
}

TEST_F(CpuDraftTest, AReleaseSortsTheFile) {
  Lines roster = RosterOfAges(Ages(11, 25));
  Lines expected(roster.begin(), roster.end() - 1);
  expected.push_back(With("Y", Pool("LF")[0]));
  std::reverse(roster.begin(), roster.end());
  EXPECT_EQ(FirstTurn(roster), expected);
}

TEST_F(CpuDraftTest, OfTheThreeWeakestTheFirstGrownUpGoes) {
  const struct {
    Ages weakest;  // indexes 7 to 10
    const char* leaver;
  } cases[] = {{{20, 20, 20, 25}, "Old 10"}, {{20, 20, 25, 24}, "Old 9"},
               {{20, 25, 24, 22}, "Old 8"},  {{30, 24, 24, 24}, "Old 10"},
               {{20, 30, 30, 30}, "Old 10"}, {{20, 20, 20, 20}, "Old 10"}};
  for (const auto& c : cases) {
    FillPool(5, 70);
    Ages ages(11, 29);
    std::copy(c.weakest.begin(), c.weakest.end(), ages.begin() + 7);
    const Lines roster = RosterOfAges(ages);
    EXPECT_EQ(LeaverOf(roster, FirstTurn(roster)), c.leaver);
  }
  // A player of 33 at index 7 who stays this year is safe too.
  Ages ages(11, 20);
  ages[7] = 33;
  FillPool(5, 70);
  const Lines roster = RosterOfAges(ages);
  EXPECT_EQ(LeaverOf(roster, FirstTurn(roster, {4})), "Old 10");
}

TEST_F(CpuDraftTest, TheReplacementTakesOverTheLineOfTheLeaver) {
  Lines file = FirstTurn(RosterOfAges(Ages(11, 25), "NNNNNNYYYYY"));
  EXPECT_EQ(file.back(), With("Y", MakeRecord({.name = "LF Rookie 0",
                                               .position = "LF",
                                               .passing = 70,
                                               .shooting = 70,
                                               .defense = 70,
                                               .agility = 70})));
  FillPool(5, 70);
  file = FirstTurn(RosterOfAges(Ages(11, 25), "NNNNNNYYYYN"));
  EXPECT_EQ(HockeyNaming::GetField(file.back(), "Training"), "N");
  FillPool(5, 70);
  Ages ages(11, 20);
  ages[3] = 40;
  file = FirstTurn(RosterOfAges(ages, "NNNYNNYYYYY"), {1});
  EXPECT_EQ(HockeyNaming::GetField(file.back(), "Name"), "RF Rookie 0");
  EXPECT_EQ(HockeyNaming::GetField(file.back(), "Training"), "Y");
}

TEST_F(CpuDraftTest, ThePlayerLetGoEntersThePoolAfterThePickAsTheyAre) {
  // They are better than all of the pool, yet their own team can't take them back.
  const Lines roster = RosterOfAges(Ages(11, 25));
  const Lines file = FirstTurn(roster);
  EXPECT_EQ(HockeyNaming::GetField(file.back(), "Name"), "LF Rookie 0");
  EXPECT_EQ(Pool("LF").size(), 5U);
  EXPECT_EQ(Pool("LF")[0], roster[10]);  // Training "Y" and all
  ExpectPoolInStep();
  EXPECT_EQ(Events(), (Lines{"A Team lost (LF) Old 10. Overall: 80",
                             "A Team has added LF Rookie 0 to the team. Overall: 70"}));
}

TEST_F(CpuDraftTest, ThePlayerLetGoIsBackBeforeTheFileIsWritten) {
  world.WriteTeam("Rank A", "A Team", RosterOfAges(Ages(11, 25)));
  SecondPasses();
  SecondPasses([this] {
    // Ten players are counted, then the pool of the position is shown again, line by line.
    for (int yield = 0; yield < 10; ++yield) front_end().AtYield([] {});
    for (int line = 1; line <= 5; ++line) {
      front_end().AtYield([this, line] {
        EXPECT_EQ(draft().List4.shown.ListCount(), line);
        EXPECT_EQ(ordvik().counts().file_writes, 0);
      });
    }
  });
  Stop();
  EXPECT_EQ(ordvik().counts().file_writes, 1);
}

TEST_F(CpuDraftTest, TheNextTeamMayTakeThePlayerLetGo) {
  const Lines roster = RosterOfAges(Ages(11, 25));
  world.WriteTeam("Rank A", "A Team", roster);
  world.WriteTeam("Rank B", "B Team", RosterOfAges(Ages(11, 25), "NNNNNNYYYYN"));
  RunWaits(5);
  // On the line of its own leaver.
  EXPECT_EQ(ReadLines(PathOf("Rank B")).back(), With("N", roster[10]));
}

TEST_F(CpuDraftTest, APositionShortElsewhereIsMendedOnceAndInFixedOrder) {
  Ages ages(11, 25);
  Lines roster = RosterOfAges(ages);
  roster.erase(roster.begin() + 7);  // an LD
  roster.erase(roster.begin() + 2);  // the other LD
  roster.erase(roster.begin());      // the goalie
  // Eight are left: RD RF CF LF RD RF CF LF. The weakest, index 7, goes, whoever it is.
  const Lines file = FirstTurn(roster);
  EXPECT_EQ(Events(), (Lines{"A Team lost (LF) Old 10. Overall: 80",
                             "A Team has added GO Rookie 0 to the team. Overall: 70",
                             "A Team has added LD Rookie 0 to the team. Overall: 70",
                             "A Team has added LF Rookie 0 to the team. Overall: 70"}));
  EXPECT_EQ(file.size(), 10U);  // two short at "LD", and only one comes
  for (std::size_t i = 7; i < 10; ++i) {
    EXPECT_EQ(HockeyNaming::GetField(file[i], "Training"), "Y");
  }
}

TEST_F(CpuDraftTest, APositionWithEnoughTakesNobody) {
  Lines roster = RosterOfAges(Ages(11, 25));
  roster[10] =
      MakeRecord({.name = "Spare", .position = "GO", .passing = 60, .defense = 60, .age = 25});
  roster.push_back(MakeRecord(
      {.name = "Third", .position = "LF", .passing = 61, .shooting = 61, .agility = 61}));
  const Lines file = FirstTurn(roster);
  EXPECT_EQ(Events(), (Lines{"A Team lost (GO) Spare. Overall: 60"}));
  EXPECT_EQ(file.size(), 11U);
  EXPECT_EQ(Pool("GO").size(), 6U);
}

TEST_F(CpuDraftTest, ALeaverOfNoPositionIsLostToThePool) {
  Lines roster = RosterOfAges(Ages(11, 25));
  roster.push_back("Mascot,XX,10,1,1,1,1,25,Y");
  const Lines file = FirstTurn(roster);
  EXPECT_EQ(Events(), Lines{"A Team lost (XX) Mascot. Overall: 10"});
  EXPECT_EQ(file.size(), 11U);
  EXPECT_EQ(draft().ReleasedPlayer, "");
}

TEST_F(CpuDraftTest, EveryWalkOfATurnYields) {
  const auto yields_of = [this](const Lines& roster, std::initializer_list<int> rolls) {
    FillPool(5, 70);
    const auto before = front_end().Yields();
    FirstTurn(roster, rolls);
    return front_end().Yields() - before;
  };
  constexpr int kLoad = 11 * 9;
  constexpr int kCount = 10;
  constexpr int kSave = 11;
  constexpr int kPool = 5;
  // The third wait is before the yield after the turn.
  EXPECT_EQ(yields_of(RosterOfAges(Ages(11, 25)), {}), kLoad + 11 + 1 + kCount + kPool + kSave);
  EXPECT_EQ(yields_of(RosterOfAges(Ages(11, 20)), {}), kLoad + 11 + 4 + kCount + kPool + kSave);
  Ages ages(11, 20);
  ages[6] = 40;
  // Six are passed over before the one who retires, and nobody goes back to the pool.
  EXPECT_EQ(yields_of(RosterOfAges(ages), {8}), kLoad + 6 + kCount + kSave);
  EXPECT_EQ(yields_of(RosterOfAges(ages), {9}), kLoad + 11 + 4 + kCount + kPool + kSave);
}

TEST_F(CpuDraftTest, BetweenTwoTurnsTheDraftYields) {
  world.WriteTeam("Rank A", "A Team", RosterOfAges(Ages(11, 25)));
  std::int64_t before = 0;
  SecondPasses();
  SecondPasses();
  SecondPasses([&] { before = front_end().Yields(); });
  Stop();  // in the first wait of the next turn
  EXPECT_EQ(front_end().Yields() - before, 1);
}

TEST_F(CpuDraftTest, ARosterOfFewerThanEightEndsTheProgramWithNothingWritten) {
  Lines roster = RosterOfAges(Ages(11, 20));
  roster.resize(7);
  world.WriteTeam("Rank A", "A Team", roster);
  const Lines files = world.Everything();
  SecondPasses();
  try {
    draft().RunDraft();
    ADD_FAILURE();
  } catch (const RuntimeError& error) {
    EXPECT_STREQ(error.what(), "Invalid list index: -1");
  }
  EXPECT_TRUE(world.Everything() == files);
  EXPECT_FALSE(draft().Command1.Enabled());
}

TEST_F(CpuDraftTest, AShortRosterWithAGrownUpLosesThemAllTheSame) {
  Lines roster = RosterOfAges(Ages(11, 20));
  roster.resize(7);
  roster[3] = RosterOfAges(Ages(11, 25))[3];
  const Lines file = FirstTurn(roster);
  EXPECT_EQ(Events()[0], "A Team lost (RF) Old 3. Overall: 87");
}

TEST_F(CpuDraftTest, APoolThatHasRunOutEndsTheProgramWithTheTeamNotSaved) {
  world.WriteTeam("Rank A", "A Team", RosterOfAges(Ages(11, 25)));
  SetPool("LF", {});
  const Lines files = world.Everything();
  SecondPasses();
  SecondPasses();
  try {
    draft().RunDraft();
    ADD_FAILURE();
  } catch (const RuntimeError& error) {
    EXPECT_STREQ(error.what(), "Invalid list index: 0");
  }
  EXPECT_TRUE(world.Everything() == files);
  EXPECT_EQ(Events(), (Lines{"A Team lost (LF) Old 10. Overall: 80",
                             "A Team has added  to the team. Overall: "}));
  EXPECT_EQ(draft().tempList.ListCount(), 11);
  EXPECT_EQ(draft().tempList.List(10), "");
}

TEST_F(CpuDraftTest, ALeagueWithoutTeamsKeepsTheDraftPermanently) {
  std::filesystem::remove(PathOf("Rank A"));
  SecondPasses();
  Stop();  // in the reading of a file that is not there
  EXPECT_EQ(draft().CurTeam.Caption(), "");
}

}  // namespace
}  // namespace frostmark::test
