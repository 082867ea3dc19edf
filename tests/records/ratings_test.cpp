#include <gtest/gtest.h>

#include <random>
#include <utility>

#include "records/runtime_error.h"
#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

class RatingsTest : public GameFixture {
 protected:
  // A record whose Overall is what is read: the skills do not matter to a rating.
  static std::string Player(const char* position, int overall, const char* training = "N") {
    return std::string("A B,") + position + "," + std::to_string(overall) + ",80,80,80,80,20," +
           training;
  }
  void Rate(const Lines& items) {
    RecordList list;
    FillList(list, items);
    naming().RateTeam(list);
  }
  void ExpectRatings(int offense, int defense, int overall) {
    EXPECT_EQ(naming().TeamOffense, offense);
    EXPECT_EQ(naming().TeamDefense, defense);
    EXPECT_EQ(naming().TeamOverall, overall);
  }
};

TEST_F(RatingsTest, ForwardsMakeTheOffenseAndBacksTheDefense) {
  Rate({Player("GO", 90), Player("RD", 80), Player("LD", 70), Player("RF", 60), Player("CF", 50),
        Player("LF", 40)});
  ExpectRatings(50, 80, 65);
}

TEST_F(RatingsTest, TrainingPlayersCountAsWell) {
  Rate(
      {Player("GO", 80, "N"), Player("CF", 80, "N"), Player("CF", 60, "Y"), Player("LD", 60, "Y")});
  ExpectRatings(70, 70, 70);
}

TEST_F(RatingsTest, EachOfTheThreeIsRoundedHalfToEven) {
  Rate({Player("CF", 84), Player("CF", 85), Player("GO", 85), Player("GO", 86)});
  // 84.5 and 85.5, then (84 + 86) / 2
  ExpectRatings(84, 86, 85);
  Rate({Player("CF", 80), Player("GO", 81)});
  ExpectRatings(80, 81, 80);
  Rate({Player("CF", 81), Player("GO", 82)});
  ExpectRatings(81, 82, 82);
}

TEST_F(RatingsTest, OtherPositionsCountNowhere) {
  Rate({Player("CF", 80), Player("XX", 1), Player("", 1), Player("GO", 70)});
  ExpectRatings(80, 70, 75);
}

TEST_F(RatingsTest, AnEmptyListLeavesTheOverallAsItWas) {
  Rate({Player("CF", 80), Player("GO", 70)});
  Rate({});
  ExpectRatings(0, 0, 75);
}

TEST_F(RatingsTest, AnEmptyItemStopsWithPlainSums) {
  naming().TeamOverall = 12;
  Rate({Player("CF", 80), Player("CF", 81), Player("GO", 70), "", Player("GO", 99)});
  ExpectRatings(161, 70, 12);
}

TEST_F(RatingsTest, WithoutForwardsOrBacksTheSumsStay) {
  naming().TeamOverall = 12;
  Rate({Player("CF", 80), Player("LF", 81)});
  ExpectRatings(161, 0, 12);
  Rate({Player("RD", 80), Player("LD", 81)});
  ExpectRatings(0, 161, 12);
}

TEST_F(RatingsTest, YieldsAfterEachPlayer) {
  Rate(MakeRoster(80));
  EXPECT_EQ(front_end().Yields(), 11);
  Rate({Player("CF", 80), "", Player("GO", 70)});
  EXPECT_EQ(front_end().Yields(), 12);
}

TEST_F(RatingsTest, TheSumsAreInTheVariablesWhileItWalks) {
  front_end().AtYield([this] { ExpectRatings(80, 0, 0); });
  front_end().AtYield([this] { ExpectRatings(80, 70, 0); });
  front_end().AtYield([this] { ExpectRatings(161, 70, 0); });
  Rate({Player("CF", 80), Player("GO", 70), Player("LF", 81)});
  ExpectRatings(80, 70, 75);
}

TEST_F(RatingsTest, ARatingInAYieldOfAnotherLeavesItsResultInTheSums) {
  front_end().AtYield([this] { Rate({Player("CF", 99), Player("GO", 98)}); });
  Rate({Player("CF", 80), Player("GO", 70), Player("LD", 72)});
  ExpectRatings(99, 120, 110);  // (98 + 70 + 72) / 2, and 109.5 goes to the even one
  // At the last yield there is nothing left to add, and the other's result is divided once more.
  front_end().AtYield([] {});
  front_end().AtYield([this] { Rate({Player("CF", 90), Player("GO", 80)}); });
  Rate({Player("CF", 50), Player("CF", 50), Player("GO", 70)});
  ExpectRatings(45, 150, 98);
}

TEST_F(RatingsTest, AListWithoutForwardsHasNothingToDivideTheSumOfAnotherRatingBy) {
  front_end().AtYield([this] { Rate({Player("CF", 99), Player("GO", 99)}); });
  Rate({Player("GO", 70), Player("LD", 70)});
  ExpectRatings(99, 169, 99);
  front_end().AtYield([this] { Rate({Player("CF", 99), Player("GO", 99)}); });
  Rate({Player("CF", 70), Player("LF", 70)});
  ExpectRatings(169, 99, 99);
}

TEST_F(RatingsTest, ASumBeyondSixteenBitsOverflows) {
  EXPECT_THROW(Rate({Player("CF", 20000), Player("CF", 20000)}), RuntimeError);
}

TEST_F(RatingsTest, AnOverallThatIsNotANumberCountsAsNothing) {
  Rate({"A B,CF,good,80,80,80,80,20,N", Player("CF", 80), Player("GO", 70)});
  ExpectRatings(40, 70, 55);
}

// The walk as it is told, exchanging whole texts.
template <typename GoesUp>
Lines WalkedTwice(Lines items, GoesUp goes_up) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    for (std::size_t j = 0; j < items.size(); ++j) {
      if (j != i && goes_up(items[i], items[j])) std::swap(items[i], items[j]);
    }
  }
  return items;
}

TEST_F(RatingsTest, StandingsHaveMostWinsFirstAndThenFewestLosses) {
  RecordList list;
  FillList(list, {"(3-1-0) One", "(3-0-1) Two", "(10-0-0) Three", "(9-0-9) Four", "(0-0-10) Five"});
  HockeyNaming::SortRankList(list);
  EXPECT_EQ(ItemsOf(list), (Lines{"(10-0-0) Three", "(9-0-9) Four", "(3-0-1) Two", "(3-1-0) One",
                                  "(0-0-10) Five"}));
}

TEST_F(RatingsTest, StandingsKeepTheOrderThatTheWalkLeavesAmongEquals) {
  std::mt19937 random(7);
  const auto wins = [](const std::string& line) { return line[1] - '0'; };
  const auto losses = [](const std::string& line) { return line[3] - '0'; };
  for (int round = 0; round < 500; ++round) {
    Lines lines;
    for (int team = 0; team < 6; ++team) {
      lines.push_back("(" + std::to_string(random() % 3) + "-" + std::to_string(random() % 3) +
                      "-" + std::to_string(random() % 9) + ") Team-" + std::to_string(team));
    }
    RecordList list;
    FillList(list, lines);
    HockeyNaming::SortRankList(list);
    EXPECT_EQ(ItemsOf(list), WalkedTwice(lines, [&](const auto& a, const auto& b) {
                return wins(a) > wins(b) || (wins(a) == wins(b) && losses(a) < losses(b));
              }));
  }
}

TEST_F(RatingsTest, StandingsThatAreGarbledAreSortedWithoutHarm) {
  RecordList list;
  FillList(list, {"", "(", "no record", "-", "--", "(x-y-z) T", "(1-", "(2-1) U", "(1-0-0) V"});
  HockeyNaming::SortRankList(list);
  EXPECT_EQ(list.ListCount(), 9);
  EXPECT_EQ(list.List(0), "(2-1) U");
}

TEST_F(RatingsTest, PlayersAreSortedByOverallAndTheWalkDecidesAmongEquals) {
  std::mt19937 random(11);
  const auto overall = [](const std::string& record) {
    return std::stoi(HockeyNaming::GetField(record, "Overall"));
  };
  for (int round = 0; round < 200; ++round) {
    Lines records;
    for (int i = 0; i < 20; ++i) {
      records.push_back("P" + std::to_string(i) + ",CF," + std::to_string(95 + random() % 10) +
                        ",80,80,80,80,20,N");
    }
    RecordList list;
    FillList(list, records);
    HockeyNaming::SortByOverall(list);
    EXPECT_EQ(ItemsOf(list), WalkedTwice(records, [&](const auto& a, const auto& b) {
                return overall(a) > overall(b);
              }));
    for (int i = 1; i < list.ListCount(); ++i) {
      EXPECT_GE(overall(list.List(i - 1)), overall(list.List(i)));
    }
  }
}

class TrainingFlagsTest : public RatingsTest {
 protected:
  static std::string Skilled(const std::string& name, const char* position, int skill,
                             const char* training) {
    return MakeRecord({.name = name,
                       .position = position,
                       .passing = skill,
                       .shooting = skill,
                       .defense = skill,
                       .agility = skill,
                       .training = training});
  }
  Lines Flagged(const Lines& records) {
    RecordList list;
    FillList(list, records);
    naming().SetTrainingFlags(list);
    return ItemsOf(list);
  }
};

TEST_F(TrainingFlagsTest, TheBetterOfAPairLeadsAndEverybodyStaysInPlace) {
  EXPECT_EQ(
      Flagged({Skilled("G", "GO", 70, "Y"), Skilled("A", "RD", 70, "N"),
               Skilled("B", "LD", 90, "Y"), Skilled("C", "RD", 80, "Y"),
               Skilled("D", "LD", 80, "N")}),
      (Lines{Skilled("G", "GO", 70, "N"), Skilled("A", "RD", 70, "Y"), Skilled("B", "LD", 90, "N"),
             Skilled("C", "RD", 80, "N"), Skilled("D", "LD", 80, "Y")}));
}

TEST_F(TrainingFlagsTest, TheLaterOneWinsATie) {
  Lines roster = MakeRoster(80);
  const Lines flagged = Flagged(roster);
  for (std::size_t i = 0; i < roster.size(); ++i) {
    roster[i].back() = i == 0 || i > 5 ? 'N' : 'Y';
  }
  EXPECT_EQ(flagged, roster);
}

TEST_F(TrainingFlagsTest, ARosterThatDoesNotBeginWithTheGoalieExchangesItsFirstPair) {
  EXPECT_EQ(Flagged({Skilled("A", "CF", 90, "Y"), Skilled("G", "GO", 70, "N"),
                     Skilled("B", "CF", 80, "N")}),
            (Lines{Skilled("B", "CF", 80, "Y"), Skilled("G", "GO", 70, "N"),
                   Skilled("A", "CF", 90, "N")}));
}

TEST_F(TrainingFlagsTest, APlayerWithoutACounterpartKeepsTheirLine) {
  const Lines roster = {Skilled("G", "GO", 70, "N"), Skilled("A", "CF", 90, "Y")};
  EXPECT_EQ(Flagged(roster), roster);
}

TEST_F(TrainingFlagsTest, OverallIsRecomputedForThosePaired) {
  EXPECT_EQ(
      Flagged({"G,GO,1,80,80,80,80,20,Y", "A,CF,50,80,80,80,80,20,N", "B,CF,60,80,80,80,80,20,N"}),
      // Compared by the stored 50 against 60 first, and as equals from the other side.
      (Lines{"G,GO,80,80,80,80,80,20,N", "A,CF,80,80,80,80,80,20,Y", "B,CF,80,80,80,80,80,20,N"}));
}

TEST_F(TrainingFlagsTest, YieldsInTheInnerWalk) {
  Flagged(MakeRoster(80));
  EXPECT_EQ(front_end().Yields(), 10 * 10);  // ten who are not goalies, each against ten
}

}  // namespace
}  // namespace frostmark::test
