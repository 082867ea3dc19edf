#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "records/leagues.h"
#include "records/lines/history_line.h"
#include "records/lines/news_line.h"
#include "records/lines/play_line.h"
#include "records/lines/player_line.h"
#include "records/lines/player_record.h"
#include "records/lines/pool_line.h"
#include "records/lines/standings_line.h"

namespace frostmark {
namespace {

constexpr const char* kRecord = "Jean-Luc O'Neil,CF,85,82,91,70,83,23,N";
constexpr const char* kTeam = "St. Louis A-B (old) at 7";
constexpr const char* kOther = "Boston to Braves";

TEST(RecordLines, APlayerRecordComesBackFromItsFields) {
  const auto fields = ParsePlayerRecord(kRecord);
  ASSERT_TRUE(fields);
  EXPECT_EQ((*fields)[0], "Jean-Luc O'Neil");
  EXPECT_EQ((*fields)[8], "N");
  EXPECT_EQ(FormatPlayerRecord(*fields), kRecord);
  EXPECT_TRUE(ParsePlayerRecord(",,,,,,,,"));
  for (const char* text : {"", "a,b", "a,b,c,d,e,f,g,h,i,j"}) EXPECT_FALSE(ParsePlayerRecord(text));
}

TEST(RecordLines, EachLineOfAPlayerComesBack) {
  const struct {
    std::string line;
    std::string age;
  } forms[] = {{FormatRosterLine(kRecord), "23"},
               {FormatPanelLine(kRecord), "23"},
               {FormatLineUpLine(kRecord), ""}};
  for (const auto& [line, age] : forms) {
    const auto player = ParsePlayerLine(line);
    ASSERT_TRUE(player) << line;
    EXPECT_EQ(player->position, "CF") << line;
    EXPECT_EQ(player->name, "Jean-Luc O'Neil") << line;
    EXPECT_EQ(player->overall, "85") << line;
    EXPECT_EQ(player->age, age) << line;
  }
  EXPECT_EQ(FormatLineUpLine(kRecord), "CF - Jean-Luc O'Neil (85)");
  const std::string pool_line = FormatPoolLine(kRecord);
  const auto in_pool = ParsePoolLine(pool_line);
  ASSERT_TRUE(in_pool);
  EXPECT_EQ(in_pool->position, "");
  EXPECT_EQ(in_pool->name, "Jean-Luc O'Neil");
  EXPECT_EQ(in_pool->overall, "85");
  EXPECT_EQ(in_pool->age, "23");
}

TEST(RecordLines, OtherTextsAreNotPlayers) {
  for (const char* text :
       {"", " ", " - ", "CF - ", "CF -  (85/23)x", "cf - A (85/23)", "CF - A (x/23)",
        "CF - (85/23)", "CF - A 85", "James Smith", "/", "85/23", "a /b", "x 1/"}) {
    EXPECT_FALSE(ParsePlayerLine(text)) << text;
    EXPECT_FALSE(ParsePoolLine(text)) << text;
  }
}

TEST(RecordLines, AStandingsLineComesBack) {
  const std::string text = FormatStandingsLine(10, 0, 3, kTeam);
  EXPECT_EQ(text, "(10-0-3) St. Louis A-B (old) at 7");
  const auto line = ParseStandingsLine(text);
  ASSERT_TRUE(line);
  EXPECT_EQ(line->wins, "10");
  EXPECT_EQ(line->losses, "0");
  EXPECT_EQ(line->ties, "3");
  EXPECT_EQ(line->team, kTeam);
  for (const char* other : {"", "Boston Braves", "(3-1) Boston Braves", "(3-1-0)Boston", "3-1-0) A",
                            "(3-1-x) A", "(-1-0) A"}) {
    EXPECT_FALSE(ParseStandingsLine(other)) << other;
  }
}

TEST(RecordLines, ANewsLineComesBack) {
  for (const Outcome outcome : {Outcome::kBeat, Outcome::kLost, Outcome::kTied}) {
    const NewsLine told{kTeam, outcome, kOther, "3", outcome == Outcome::kTied ? "3" : "10"};
    const std::string text = FormatNewsLine(told);
    const auto news = ParseNewsLine(text);
    ASSERT_TRUE(news) << text;
    EXPECT_EQ(news->outcome, outcome) << text;
    EXPECT_EQ(news->first, kTeam) << text;
    EXPECT_EQ(news->second, kOther) << text;
    EXPECT_EQ(news->goals1, told.goals1) << text;
    EXPECT_EQ(news->goals2, told.goals2) << text;
    EXPECT_EQ(FormatNewsLine(*news), text);
    EXPECT_EQ(news->WonBy(kTeam), outcome == Outcome::kBeat);
    EXPECT_EQ(news->WonBy(kOther), outcome == Outcome::kLost);
    EXPECT_TRUE(news->Has(kTeam));
    EXPECT_FALSE(news->Has("St. Louis"));
  }
  EXPECT_EQ(FormatNewsLine({"A", Outcome::kLost, "B", "1", "3"}), "A lost to B 1 to 3");
  EXPECT_EQ(FormatNewsLine({"A", Outcome::kTied, "B", "0", "0"}), "A tied B at 0");
  for (const char* text : {"", " beat ", "A moved", "A beat B", "A beat B 3", "A tied B 3 to 3",
                           "A beat B x to 1", " beat B 3 to 1", "A lost to 3 to 1"}) {
    EXPECT_FALSE(ParseNewsLine(text)) << text;
  }
}

TEST(RecordLines, AHistoryLineComesBack) {
  using Event = HistoryLine::Event;
  const struct {
    std::string text;
    const char* told;
    Event event;
  } lines[] = {
      {FormatRetirement(kRecord, "Boston Braves"),
       "(CF) Jean-Luc O'Neil has retired from Boston Braves at 23 years old", Event::kRetired},
      {FormatRelease(kRecord, "Boston Braves"),
       "Boston Braves lost (CF) Jean-Luc O'Neil. Overall: 85", Event::kReleased},
      {FormatPick(kRecord, "Boston Braves"),
       "Boston Braves has added Jean-Luc O'Neil to the team. Overall: 85", Event::kAdded}};
  for (const auto& [text, told, event] : lines) {
    EXPECT_EQ(text, told);
    const auto line = ParseHistoryLine(text);
    ASSERT_TRUE(line) << text;
    EXPECT_EQ(line->event, event) << text;
    EXPECT_EQ(line->team, "Boston Braves") << text;
    EXPECT_EQ(line->player, "Jean-Luc O'Neil") << text;
  }
  for (const char* text :
       {"", "A has added  to the team. Overall: ", "A lost (CF) B. Overall: x",
        "(cf) A has retired from B at 30 years old", "(CF) A has retired from B at x years old"}) {
    EXPECT_FALSE(ParseHistoryLine(text)) << text;
  }
}

TEST(RecordLines, EachLineOfThePlayByPlayComesBack) {
  const struct {
    PlayLine line;
    const char* text;
  } plays[] = {
      {{Play::kFaceOff, "A B"}, "A B wins the face off!"},
      {{Play::kPass, "A B", "C D"}, "A B passes it to C D"},
      {{Play::kOutletPass, "A B", "C D"}, "A B passes the puck to C D"},
      {{Play::kSteal, "A B", "C D"}, "A B steals the puck from C D"},
      {{Play::kSave, "A B", "C D"}, "A B blocks a shot from C D"},
      {{Play::kGoal, "A B", "C D"}, "A B SCORES! Assist by: C D"},
      {{Play::kFirstPeriod}, "End of the first period!"},
      {{Play::kSecondPeriod}, "End of the second period!"},
      {{Play::kMatchEnd}, "The match has ended in an amazing battle!"},
      {{Play::kWin, "A B", "C D", "9", "10"}, "A B beat C D 9 to 10"},
      {{Play::kTie, "A B", "C D", "0", "0"}, "A B tied the game with C D at 0"},
      // Somebody without a name, as after a garbled roster.
      {{Play::kPass, "", ""}, " passes it to "},
  };
  for (const auto& [line, text] : plays) {
    EXPECT_EQ(FormatPlayLine(line), text);
    const auto parsed = ParsePlayLine(text);
    ASSERT_TRUE(parsed) << text;
    EXPECT_EQ(parsed->play, line.play) << text;
    EXPECT_EQ(parsed->who, line.who) << text;
    EXPECT_EQ(parsed->whom, line.whom) << text;
    EXPECT_EQ(parsed->goals1, line.goals1) << text;
    EXPECT_EQ(parsed->goals2, line.goals2) << text;
  }
  for (const char* text : {"", "The crowd sings", "x End of the first period!", "A beat B"}) {
    EXPECT_FALSE(ParsePlayLine(text)) << text;
  }
}

TEST(Leagues, ARankHasItsLetter) {
  std::string letters;
  for (const char* rank : kRanks) letters += LetterOf(rank);
  EXPECT_EQ(letters, "FEDCBA");
}

}  // namespace
}  // namespace frostmark
