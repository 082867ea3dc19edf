#include <gtest/gtest.h>

#include "desktop/delegates/history_line.h"
#include "desktop/delegates/news_line.h"
#include "desktop/delegates/player_line.h"
#include "desktop/delegates/team_line.h"

namespace frostmark {
namespace {

TEST(PlayerLine, ReadsTheLineOfARoster) {
  const auto player = ParsePlayerLine("CF - James Smith (85/23)");
  ASSERT_TRUE(player);
  EXPECT_EQ(player->position, "CF");
  EXPECT_EQ(player->name, "James Smith");
  EXPECT_EQ(player->overall, 85);
  EXPECT_EQ(player->age, 23);
}

TEST(PlayerLine, ReadsTheLinesOfThePanelAndOfThePool) {
  const auto on_panel = ParsePlayerLine("GO - Jean-Luc O'Neil 7/40");
  ASSERT_TRUE(on_panel);
  EXPECT_EQ(on_panel->position, "GO");
  EXPECT_EQ(on_panel->name, "Jean-Luc O'Neil");
  EXPECT_EQ(on_panel->overall, 7);
  const auto in_pool = ParsePlayerLine("James Smith 85/23");
  ASSERT_TRUE(in_pool);
  EXPECT_EQ(in_pool->position, "");
  EXPECT_EQ(in_pool->name, "James Smith");
}

TEST(PlayerLine, LeavesOtherTextsAlone) {
  for (const char* text : {"", " ", "James Smith", "/", "85/23", "a /b", "x 1/"}) {
    EXPECT_FALSE(ParsePlayerLine(text)) << text;
  }
}

TEST(TeamLine, ReadsRecordAndTeam) {
  const auto line = ParseTeamLine("(3-1-0) St. Louis A-B (old)");
  ASSERT_TRUE(line);
  EXPECT_EQ(line->wins, 3);
  EXPECT_EQ(line->losses, 1);
  EXPECT_EQ(line->ties, 0);
  EXPECT_EQ(line->team, "St. Louis A-B (old)");
  EXPECT_FALSE(ParseTeamLine("Boston Braves"));
  EXPECT_FALSE(ParseTeamLine("(3-1) Boston Braves"));
}

TEST(NewsLine, KnowsWhoPlayedAndWhoWon) {
  const auto lost = ParseNewsLine("Boston Braves lost to Denver Blizzard 1 to 3");
  ASSERT_TRUE(lost);
  EXPECT_TRUE(lost->Has("Boston Braves"));
  EXPECT_TRUE(lost->WonBy("Denver Blizzard"));
  EXPECT_FALSE(lost->WonBy("Boston Braves"));
  EXPECT_FALSE(lost->Has("Boston"));
  const auto tied = ParseNewsLine("Boston Braves tied Denver Blizzard at 0");
  ASSERT_TRUE(tied);
  EXPECT_EQ(tied->score, "at 0");
  EXPECT_FALSE(tied->WonBy("Boston Braves"));
  EXPECT_FALSE(ParseNewsLine("Boston Braves moved"));
}

// What is drawn are these pieces: together they must be the line, so that none of it gets lost.
QString PutTogether(const HistoryLine& line) {
  const QString& first = line.team_first ? line.team : line.player;
  const QString& second = line.team_first ? line.player : line.team;
  return line.before + first + line.between + second + line.after;
}

TEST(HistoryLine, ReadsAllThreeForms) {
  const std::pair<const char*, HistoryLine::Event> forms[] = {
      {"(GO) James Smith has retired from Boston Braves at 35 years old",
       HistoryLine::Event::kRetired},
      {"Boston Braves lost (GO) James Smith. Overall: 77", HistoryLine::Event::kReleased},
      {"Boston Braves has added James Smith to the team. Overall: 88", HistoryLine::Event::kAdded}};
  for (const auto& [text, event] : forms) {
    const auto line = ParseHistoryLine(text);
    ASSERT_TRUE(line) << text;
    EXPECT_EQ(line->event, event) << text;
    EXPECT_EQ(line->team, "Boston Braves") << text;
    EXPECT_EQ(line->player, "James Smith") << text;
    EXPECT_EQ(PutTogether(*line), text);
  }
  EXPECT_FALSE(ParseHistoryLine("Boston Braves has added  to the team. Overall: "));
}

}  // namespace
}  // namespace frostmark
