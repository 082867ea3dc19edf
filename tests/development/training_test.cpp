#include "tests/support/game_fixture.h"

// What a game does to the players of a team.

namespace frostmark::test {
namespace {

using Asked = std::vector<int>;

class TrainingTest : public GameFixture {
 protected:
  TrainingTest() {
    world.FillWorld();
    franchise().TeamName.SetCaption("F0 Wolves");
  }
  std::string Path() { return world.TeamPath("Rank F", team); }

  // RECORD after the training of a list of its own with ROLLS, which must be exactly those asked
  // for.
  std::string Trained(const std::string& record, std::initializer_list<int> rolls) {
    RecordList list;
    list.AddItem(record);
    dice().Forget();
    dice().Give(rolls);
    franchise().TrainThem(list, Path());
    EXPECT_EQ(dice().LeftOver(), 0U) << record;
    EXPECT_EQ(dice().Rolls().size(), rolls.size()) << record;
    EXPECT_EQ(list.ListCount(), 1);
    EXPECT_EQ(ReadLines(Path()), Lines{list.List(0)});
    return list.List(0);
  }
  Asked AskedFor() { return dice().Asked(); }

  std::string team = "F0 Wolves";
};

TestPlayer Forward(int age, const std::string& training) {
  return {.name = "Jim", .position = "CF", .age = age, .training = training};
}

TEST_F(TrainingTest, SixtyFiveOfAHundredTrain) {
  const std::string record = MakeRecord(Forward(20, "Y"));
  EXPECT_EQ(Trained(record, {66}), record);
  EXPECT_EQ(Trained(record, {100}), record);
  EXPECT_EQ(Trained(record, {65, 1, 4}), "Jim,CF,81,84,80,80,80,20,Y");
  EXPECT_EQ(AskedFor(), (Asked{100, 5, 4}));
  EXPECT_EQ(Trained(record, {1, 1, 1}), "Jim,CF,80,81,80,80,80,20,Y");
}

TEST_F(TrainingTest, TheSkillGoesByARollOfFive) {
  const std::string record = MakeRecord(Forward(20, "Y"));
  EXPECT_EQ(Trained(record, {1, 1, 3}), "Jim,CF,81,83,80,80,80,20,Y");
  EXPECT_EQ(Trained(record, {1, 2, 3}), "Jim,CF,81,80,83,80,80,20,Y");
  EXPECT_EQ(Trained(record, {1, 3, 3}), "Jim,CF,81,83,80,80,80,20,Y");
  EXPECT_EQ(Trained(record, {1, 4, 3}), "Jim,CF,80,80,80,83,80,20,Y");
  // Agility is asked for and moved by nothing, at any age.
  EXPECT_EQ(Trained(record, {1, 5, 3}), record);
  EXPECT_EQ(AskedFor(), (Asked{100, 5, 4}));
  const std::string old = MakeRecord(Forward(35, "Y"));
  EXPECT_EQ(Trained(old, {1, 5, 3}), old);
  EXPECT_EQ(AskedFor(), (Asked{100, 5, 3}));
}

TEST_F(TrainingTest, ARollForAgilityStillRatesAgain) {
  EXPECT_EQ(Trained("Jim,CF,11,80,80,80,80,20,Y", {1, 5, 3}), "Jim,CF,80,80,80,80,80,20,Y");
}

TEST_F(TrainingTest, TheChangeGoesByTheAge) {
  const struct {
    int age;
    Asked asked;
    std::initializer_list<int> rolls;
    int passing;
  } cases[] = {{18, {100, 5, 4}, {1, 1, 4}, 84}, {24, {100, 5, 4}, {1, 1, 4}, 84},
               {25, {100, 5, 2}, {1, 1, 2}, 82}, {26, {100, 5, 2}, {1, 1, 1}, 81},
               {27, {100, 5, 2}, {1, 1, 2}, 82}, {28, {100, 5}, {1, 1}, 80},
               {29, {100, 5}, {1, 3}, 80},       {30, {100, 5, 3}, {1, 1, 1}, 79},
               {31, {100, 5, 3}, {1, 1, 3}, 77}, {99, {100, 5, 3}, {1, 1, 2}, 78}};
  for (const auto& c : cases) {
    const std::string record = Trained(MakeRecord(Forward(c.age, "Y")), c.rolls);
    EXPECT_EQ(HockeyNaming::GetField(record, "Passing"), std::to_string(c.passing)) << c.age;
    EXPECT_EQ(AskedFor(), c.asked) << c.age;
    EXPECT_EQ(HockeyNaming::GetField(record, "Age"), std::to_string(c.age));
  }
}

TEST_F(TrainingTest, AtTwentyEightAndTwentyNineNothingEverChanges) {
  for (const int age : {28, 29}) {
    const std::string record = MakeRecord(Forward(age, "Y"));
    for (int skill = 1; skill <= 5; ++skill) EXPECT_EQ(Trained(record, {65, skill}), record);
    const std::string goalie = MakeRecord({.position = "GO", .age = age});
    for (const int skill : {1, 2}) EXPECT_EQ(Trained(goalie, {20, skill}), goalie);
    // Nor is it rated again: nothing is written back.
    EXPECT_EQ(Trained("Jim,CF,11,80,80,80,80,28,Y", {1, 5}), "Jim,CF,11,80,80,80,80,28,Y");
  }
}

TEST_F(TrainingTest, ASkillStopsAtNinetyNineAndSinksWithoutBound) {
  EXPECT_EQ(Trained("Jim,CF,86,98,80,80,80,24,Y", {1, 1, 4}), "Jim,CF,86,99,80,80,80,24,Y");
  EXPECT_EQ(Trained("Jim,CF,30,1,10,80,80,40,Y", {1, 1, 3}), "Jim,CF,29,-2,10,80,80,40,Y");
  // The cap holds for skills that the call does not change.
  EXPECT_EQ(Trained("Jim,CF,80,80,120,80,80,24,Y", {1, 1, 1}), "Jim,CF,87,81,99,80,80,24,Y");
}

TEST_F(TrainingTest, AnAgeIsReadLeniently) {
  Trained("Jim,CF,80,80,80,80,80,24.9,Y", {1, 1, 4});
  EXPECT_EQ(AskedFor(), (Asked{100, 5, 4}));
  Trained("Jim,CF,80,80,80,80,80,old,Y", {1, 1, 4});  // 0
  EXPECT_EQ(AskedFor(), (Asked{100, 5, 4}));
  Trained("Jim,CF,80,80,80,80,80,31 years,Y", {1, 1, 3});
  EXPECT_EQ(AskedFor(), (Asked{100, 5, 3}));
}

TEST_F(TrainingTest, ASkaterOfTheLeadLineIsNotRolledFor) {
  for (const char* training : {"N", "", "y", "YY"}) {
    TestPlayer player = Forward(20, training);
    EXPECT_EQ(Trained(MakeRecord(player), {}), MakeRecord(player)) << training;
  }
}

TEST_F(TrainingTest, TheGoalieHasAChanceOfTheirOwn) {
  const std::string record = MakeRecord({.name = "Gus", .position = "GO", .age = 20});
  EXPECT_EQ(Trained(record, {21}), record);
  EXPECT_EQ(AskedFor(), Asked{100});
  EXPECT_EQ(Trained(record, {20, 1, 4}), "Gus,GO,82,84,80,80,80,20,N");
  EXPECT_EQ(AskedFor(), (Asked{100, 2, 4}));
  EXPECT_EQ(Trained(record, {20, 2, 3}), "Gus,GO,82,80,80,83,80,20,N");
  const std::string older = MakeRecord({.name = "Gus", .position = "GO", .age = 26});
  EXPECT_EQ(Trained(older, {1, 2, 2}), "Gus,GO,81,80,80,82,80,26,N");
  const std::string old = MakeRecord({.name = "Gus", .position = "GO", .age = 30});
  EXPECT_EQ(Trained(old, {1, 1, 3}), "Gus,GO,78,77,80,80,80,30,N");
}

TEST_F(TrainingTest, AGoalieOnTheTrainingLineIsRolledForTwice) {
  const std::string record =
      MakeRecord({.name = "Gus", .position = "GO", .age = 20, .training = "Y"});
  EXPECT_EQ(Trained(record, {65, 1, 2, /*goalie*/ 20, 2, 4}), "Gus,GO,83,82,80,84,80,20,Y");
  EXPECT_EQ(AskedFor(), (Asked{100, 5, 4, 100, 2, 4}));
  EXPECT_EQ(Trained(record, {66, 21}), record);
}

TEST_F(TrainingTest, InWeekTenEverybodyGrowsOlderAfterTheirTraining) {
  franchise().NextWeek.SetCaption("Week 10");
  EXPECT_EQ(Trained(MakeRecord(Forward(24, "Y")), {1, 1, 4}), "Jim,CF,81,84,80,80,80,25,Y");
  EXPECT_EQ(Trained(MakeRecord(Forward(27, "Y")), {1, 1, 2}), "Jim,CF,81,82,80,80,80,28,Y");
  EXPECT_EQ(Trained(MakeRecord(Forward(29, "Y")), {100}), "Jim,CF,80,80,80,80,80,30,Y");
  EXPECT_EQ(Trained(MakeRecord(Forward(29, "N")), {}), "Jim,CF,80,80,80,80,80,30,N");
  EXPECT_EQ(Trained("Jim,CF,11,80,80,80,80,29,X", {}), "Jim,CF,80,80,80,80,80,30,X");
  for (const char* marker : {"Week 1", "Week 9", "Off Season", "Week 100", "week 10"}) {
    franchise().NextWeek.SetCaption(marker);
    EXPECT_EQ(Trained(MakeRecord(Forward(29, "N")), {}), MakeRecord(Forward(29, "N"))) << marker;
  }
}

TEST_F(TrainingTest, InWeekTenAGoalieTrainsByTheirOldAgeToo) {
  franchise().NextWeek.SetCaption("Week 10");
  // At 24 they still gain up to 4, at 27 up to 2 and at 29 nothing.
  EXPECT_EQ(Trained(MakeRecord({.name = "Gus", .position = "GO", .age = 24}), {20, 1, 4}),
            "Gus,GO,82,84,80,80,80,25,N");
  EXPECT_EQ(AskedFor(), (Asked{100, 2, 4}));
  EXPECT_EQ(Trained(MakeRecord({.name = "Gus", .position = "GO", .age = 27}), {20, 2, 2}),
            "Gus,GO,81,80,80,82,80,28,N");
  EXPECT_EQ(Trained(MakeRecord({.name = "Gus", .position = "GO", .age = 29}), {20, 2}),
            "Gus,GO,80,80,80,80,80,30,N");
}

// A roster in file order in which the training line is the better one.
Lines RosterToSwap() {
  Lines roster = MakeRoster(80);
  for (std::size_t i = 6; i < roster.size(); ++i) {
    const std::string position = HockeyNaming::GetField(roster[i], "Position");
    roster[i] = MakeRecord({.name = "Better",
                            .position = position,
                            .passing = 90,
                            .shooting = 90,
                            .defense = 90,
                            .agility = 90,
                            .training = "Y"});
  }
  return roster;
}

TEST_F(TrainingTest, AComputersTeamPicksItsLinesAgain) {
  team = "F1 Wolves";
  RecordList list;
  FillList(list, RosterToSwap());
  dice().Give(6, 100);
  franchise().TrainThem(list, Path());
  EXPECT_EQ(HockeyNaming::GetField(list.List(0), "Training"), "N");
  for (int i = 1; i < 11; ++i) {
    EXPECT_EQ(HockeyNaming::GetField(list.List(i), "Training"), i < 6 ? "Y" : "N") << i;
    EXPECT_EQ(HockeyNaming::GetField(list.List(i), "Name") == "Better", i >= 6) << i;
  }
  EXPECT_EQ(ReadLines(Path()), ItemsOf(list));
}

TEST_F(TrainingTest, TheUsersLinesAreTheirOwn) {
  RecordList list;
  FillList(list, RosterToSwap());
  dice().Give(6, 100);
  franchise().TrainThem(list, Path());
  EXPECT_EQ(ItemsOf(list), RosterToSwap());
  EXPECT_EQ(ReadLines(Path()), RosterToSwap());
}

TEST_F(TrainingTest, ATeamWhosePathHoldsTheUsersNameKeepsItsLinesToo) {
  team = "F1 Wolves";
  for (const char* name : {"Wolves", "F1", "Rank F", "", "eam"}) {
    franchise().TeamName.SetCaption(name);
    RecordList list;
    FillList(list, RosterToSwap());
    dice().Give(6, 100);
    franchise().TrainThem(list, Path());
    EXPECT_EQ(ItemsOf(list), RosterToSwap()) << name;
  }
  franchise().TeamName.SetCaption("wolves");
  RecordList list;
  FillList(list, RosterToSwap());
  dice().Give(6, 100);
  franchise().TrainThem(list, Path());
  EXPECT_NE(ItemsOf(list), RosterToSwap());
}

TEST_F(TrainingTest, TheFileIsWrittenInTheListsOrderEvenWithoutAChange) {
  WriteText(Path(), "something else");
  RecordList list;
  FillList(list, MakeRoster(74));
  dice().Give(6, 100);
  const auto yields = front_end().Yields();
  franchise().TrainThem(list, Path());
  EXPECT_EQ(ReadText(Path()), JoinLines(MakeRoster(74)));
  EXPECT_EQ(front_end().Yields() - yields, 11 + 11);  // a player, a line of the file
  // The goalie, then five of the training line.
  EXPECT_EQ(AskedFor(), Asked(6, 100));
  RecordList nobody;
  franchise().TrainThem(nobody, Path());
  EXPECT_EQ(ReadText(Path()), "");
}

TEST_F(TrainingTest, TheRePickingYieldsOnceForEachPairLookedAt) {
  team = "F1 Wolves";
  RecordList list;
  FillList(list, MakeRoster(74));
  dice().Give(6, 100);
  const auto yields = front_end().Yields();
  franchise().TrainThem(list, Path());
  EXPECT_EQ(front_end().Yields() - yields, 11 + 10 * 10 + 11);
}

TEST_F(TrainingTest, NothingIsToldOfIt) {
  RecordList list;
  FillList(list, MakeRoster(74));
  franchise().TrainThem(list, Path());
  EXPECT_TRUE(front_end().Boxes().empty());
  EXPECT_EQ(franchise().Alerts.ListCount(), 0);
}

}  // namespace
}  // namespace frostmark::test
