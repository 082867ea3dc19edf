#include <gtest/gtest.h>

#include "records/lines/player_line.h"
#include "records/lines/player_record.h"
#include "records/lines/pool_line.h"
#include "records/lines/standings_line.h"
#include "records/runtime_error.h"
#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

constexpr const char* kForward = "James Smith,CF,85,82,91,70,83,23,N";

class FieldsTest : public GameFixture {
 protected:
  std::string Set(const std::string& record, const char* field, const char* value) {
    return naming().SetField(record, field, value);
  }
  static std::string Get(const std::string& record, const char* field) {
    return HockeyNaming::GetField(record, field);
  }
};

TEST_F(FieldsTest, GetFieldKnowsAllNineNames) {
  EXPECT_EQ(Get(kForward, "Name"), "James Smith");
  EXPECT_EQ(Get(kForward, "Position"), "CF");
  EXPECT_EQ(Get(kForward, "Overall"), "85");
  EXPECT_EQ(Get(kForward, "Passing"), "82");
  EXPECT_EQ(Get(kForward, "Shooting"), "91");
  EXPECT_EQ(Get(kForward, "Defense"), "70");
  EXPECT_EQ(Get(kForward, "Agility"), "83");
  EXPECT_EQ(Get(kForward, "Age"), "23");
  EXPECT_EQ(Get(kForward, "Training"), "N");
}

TEST_F(FieldsTest, GetFieldGivesTheEmptyTextForWhatIsNotThere) {
  EXPECT_EQ(Get("", "Name"), "");
  EXPECT_EQ(Get(kForward, "Strength"), "");
  EXPECT_EQ(Get(kForward, "name"), "");
  EXPECT_EQ(Get(kForward, "NAME"), "");
  EXPECT_EQ(Get(kForward, ""), "");
  EXPECT_EQ(Get("James Smith,CF,85", "Passing"), "");
  EXPECT_EQ(Get("James Smith,CF,85", "Overall"), "85");
  EXPECT_EQ(Get(",,,,,,,,", "Training"), "");
}

TEST_F(FieldsTest, SetFieldOfAnEmptyRecordIsEmptyAndTouchesNothing) {
  naming().CurName = "before";
  EXPECT_EQ(Set("", "Age", "1"), "");
  EXPECT_EQ(naming().CurName, "before");
}

TEST_F(FieldsTest, AddsToSkillsAndOverallFollows) {
  EXPECT_EQ(Set(kForward, "Passing", "3"), "James Smith,CF,86,85,91,70,83,23,N");
  EXPECT_EQ(Set(kForward, "Shooting", "-4"), "James Smith,CF,84,82,87,70,83,23,N");
  EXPECT_EQ(Set(kForward, "Defense", "9"), "James Smith,CF,85,82,91,79,83,23,N");
}

TEST_F(FieldsTest, AgilityIsNotMovedButOverallIsRecomputed) {
  EXPECT_EQ(Set("James Smith,CF,10,82,91,70,83,23,N", "Agility", "5"),
            "James Smith,CF,85,82,91,70,83,23,N");
  EXPECT_EQ(Set(kForward, "Agility", "-5"), kForward);
}

TEST_F(FieldsTest, SkillsAreCutAtNinetyNineAndOverallFollowsFromThat) {
  EXPECT_EQ(Set("A B,CF,1,90,97,70,90,23,N", "Shooting", "5"), "A B,CF,93,90,99,70,90,23,N");
  // Every skill is cut, whatever the field.
  EXPECT_EQ(Set("A B,CF,1,120,121,122,123,23,N", "Training", "Y"), "A B,CF,99,99,99,99,99,23,Y");
}

TEST_F(FieldsTest, NothingHoldsASkillUpAndNothingCutsAnAge) {
  EXPECT_EQ(Set("A B,RD,1,10,10,10,10,98,N", "Passing", "-30"), "A B,RD,0,-20,10,10,10,98,N");
  EXPECT_EQ(Set("A B,RD,1,10,10,10,10,98,N", "Age", "5"), "A B,RD,10,10,10,10,10,103,N");
}

TEST_F(FieldsTest, AgeOfThirtyBecomesThirtyOne) {
  EXPECT_EQ(Set("A B,GO,80,80,80,80,80,30,N", "Age", "1"), "A B,GO,80,80,80,80,80,31,N");
}

TEST_F(FieldsTest, TrainingTakesTheValueAsItStands) {
  EXPECT_EQ(Set(kForward, "Training", "Y"), "James Smith,CF,85,82,91,70,83,23,Y");
  EXPECT_EQ(Set(kForward, "Training", "maybe"), "James Smith,CF,85,82,91,70,83,23,maybe");
  EXPECT_EQ(Set("James Smith,CF,11,82,91,70,83,23,N", "Training", "Y"),
            "James Smith,CF,85,82,91,70,83,23,Y");
}

TEST_F(FieldsTest, NamePositionOverallAndUnknownNamesChangeNoPart) {
  for (const char* field : {"Name", "Position", "Overall", "Strength", "age", ""}) {
    EXPECT_EQ(Set(kForward, field, "7"), kForward) << field;
  }
}

TEST_F(FieldsTest, FractionsGoDownToTheNextWholeNumber) {
  EXPECT_EQ(Get(Set(kForward, "Passing", "-0.5"), "Passing"), "81");
  EXPECT_EQ(Get(Set(kForward, "Passing", "1.9"), "Passing"), "83");
  EXPECT_EQ(Get(Set("A B,CF,1,80.7,80,80,80,23,N", "Passing", "1"), "Passing"), "81");
}

TEST_F(FieldsTest, ValuesThatAreNotNumbersCountAsNothing) {
  EXPECT_EQ(Get(Set(kForward, "Passing", "many"), "Passing"), "82");
  EXPECT_EQ(Get(Set("A B,CF,1,none,80,80,80,23,N", "Passing", "2"), "Passing"), "2");
}

TEST_F(FieldsTest, SetFieldLeavesItsResultsInTheModule) {
  Set("James Smith,CF,11,97,91,70,83,23,N", "Passing", "5");
  EXPECT_EQ(naming().CurName, "James Smith");
  EXPECT_EQ(naming().CurPosition, "CF");
  EXPECT_EQ(naming().CurOverall, 11);  // still the old one
  EXPECT_EQ(naming().CurPassing, 99);
  EXPECT_EQ(naming().CurShooting, 91);
  EXPECT_EQ(naming().CurDefense, 70);
  EXPECT_EQ(naming().CurAgility, 83);
  EXPECT_EQ(naming().CurAge, 23);
  EXPECT_EQ(naming().CurTraining, "N");
}

TEST_F(FieldsTest, FieldsAfterTheNinthAreKept) {
  EXPECT_EQ(Set("A B,CF,80,80,80,80,80,20,N,extra,", "Training", "Y"),
            "A B,CF,80,80,80,80,80,20,Y,extra,");
}

TEST_F(FieldsTest, NumbersBeyondSixteenBitsOverflow) {
  EXPECT_THROW(Set(kForward, "Age", "32767"), RuntimeError);
  EXPECT_THROW(Set("A B,CF,1,80,80,80,80,40000,N", "Training", "Y"), RuntimeError);
  EXPECT_THROW(Set("A B,CF,1,-40000,80,80,80,20,N", "Training", "Y"), RuntimeError);
  EXPECT_THROW(Set("A B,CF,40000,80,80,80,80,20,N", "Training", "Y"), RuntimeError);
}

TEST_F(FieldsTest, OverallDependsOnThePosition) {
  const auto overall = [&](const char* position) {
    return Get(Set(std::string("A B,") + position + ",1,90,80,70,61,20,N", "Training", "N"),
               "Overall");
  };
  EXPECT_EQ(overall("GO"), "80");  // Defense, Passing
  EXPECT_EQ(overall("RD"), "74");  // Defense, Passing, Agility: 73.67
  EXPECT_EQ(overall("LD"), "74");
  EXPECT_EQ(overall("RF"), "77");  // Shooting, Passing, Agility
  EXPECT_EQ(overall("CF"), "77");
  EXPECT_EQ(overall("LF"), "77");
  EXPECT_EQ(overall("XX"), "1");  // keeps the one it has
  EXPECT_EQ(overall(""), "1");
  EXPECT_EQ(overall("go"), "1");
}

TEST_F(FieldsTest, APlayerOfNoPositionKeepsTheirOverallAsItIsWritten) {
  for (const char* overall : {"85", "", "good", "085", "85.6"}) {
    const std::string record = std::string("A B,XX,") + overall + ",90,80,70,61,20,";
    EXPECT_EQ(Set(record + "N", "Training", "Y"), record + "Y");
  }
}

TEST_F(FieldsTest, OverallOfAGoalieRoundsATieToTheEvenNumber) {
  const auto goalie = [&](const char* skills) {
    return Get(Set(std::string("A B,GO,1,") + skills + ",20,N", "Training", "N"), "Overall");
  };
  EXPECT_EQ(goalie("70,99,71,99"), "70");  // 70.5; neither Shooting nor Agility counts
  EXPECT_EQ(goalie("84,1,85,1"), "84");
  EXPECT_EQ(goalie("85,1,86,1"), "86");
}

TEST(PlayerLinesTest, ShowAPlayerInThreeWays) {
  EXPECT_EQ(FormatRosterLine(kForward), "CF - James Smith (85/23)");
  EXPECT_EQ(FormatPanelLine(kForward), "CF - James Smith 85/23");
  EXPECT_EQ(FormatPoolLine(kForward), "James Smith 85/23");
}

TEST(TeamLineTest, BeginsWithAFreshRecordAndEndsWithTheName) {
  EXPECT_EQ(FormatFreshStandingsLine("Boston Braves"), "(0-0-0) Boston Braves");
  EXPECT_EQ(StandingsParts("(3-1-0) Boston Braves").team, "Boston Braves");
  EXPECT_EQ(StandingsParts("(13-10-20) A (B) C").team, "A (B) C");
  EXPECT_EQ(StandingsParts("(0-0-0) ").team, "");
  EXPECT_EQ(StandingsParts("(0-0-0)").team, "");
}

}  // namespace
}  // namespace frostmark::test
