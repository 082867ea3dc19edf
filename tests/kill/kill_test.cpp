#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <random>

#include "tests/kill/victim.h"
#include "tests/support/game_fixture.h"

// Kills a running franchise at random moments. Whatever it was doing, its world must be whole.
// FROSTMARK_KILLS is how often, FROSTMARK_SEED the seed of the moments.
namespace frostmark::test {
namespace {

int FromEnvironment(const char* name, int otherwise) {
  const char* const value = std::getenv(name);
  return value == nullptr ? otherwise : std::atoi(value);
}

constexpr const char* kTeam = "Montreal Breeze";

class KillTest : public GameFixture {
 protected:
  void SetUp() override {
    seed_ = FromEnvironment("FROSTMARK_SEED", static_cast<int>(std::random_device()() >> 1U));
    random_.seed(static_cast<std::uint32_t>(seed_));
    startup().PressNew();
    startup().PressGenerate();
    startup().PressBegin();
    home_ = TeamsByLeague();
  }

  // One list of names per league.
  std::vector<Lines> TeamsByLeague() const {
    std::vector<Lines> leagues;
    for (const char* rank : kRanks) leagues.push_back(world.FileNames(rank));
    return leagues;
  }

  void KillAgainAndAgain(const char* mode, const std::function<void(const Lines&)>& look) {
    const int kills = FromEnvironment("FROSTMARK_KILLS", 20);
    for (int i = 0; i < kills && !HasFailure(); ++i) {
      SCOPED_TRACE("kill " + std::to_string(i) + " of seed " + std::to_string(seed_));
      Victim victim({world.path(), mode});
      ASSERT_TRUE(victim.BecomesReady());
      ASSERT_TRUE(victim.KillAfter(std::chrono::microseconds(random_() % kLongestLife)));
      look(victim.Said());
      ExpectWholeFiles();
    }
  }

  void ExpectWholeFiles() {
    for (const char* rank : kRanks) {
      for (const std::string& team : world.FileNames(rank)) ExpectWholeTeam(rank, team);
    }
    for (const std::string& name : world.SettingsNames()) {
      if (name.starts_with("unfinished.")) continue;  // what was being written when the end came
      const std::string content = ReadText(world.SettingsPath(name));
      EXPECT_TRUE(content.empty() || content.ends_with("\r\n")) << name << ": " << content;
      if (!name.starts_with("StatRank")) continue;
      for (const std::string& line : ReadLines(world.SettingsPath(name))) {
        EXPECT_TRUE(line.starts_with("(") && line.find(") ") != std::string::npos) << line;
      }
    }
  }

  void ExpectWholeTeam(const char* rank, const std::string& team) {
    const std::string content = ReadText(world.TeamPath(rank, team));
    const Lines records = ReadLines(world.TeamPath(rank, team));
    EXPECT_TRUE(content.ends_with("\r\n")) << team;
    EXPECT_EQ(records.size(), 11U) << team << ":\n" << content;
    for (const std::string& record : records) {
      EXPECT_EQ(std::count(record.begin(), record.end(), ','), 8) << team << ": " << record;
      EXPECT_TRUE(record.ends_with(",N") || record.ends_with(",Y")) << team << ": " << record;
      for (const char* field : {"Overall", "Passing", "Shooting", "Defense", "Agility", "Age"}) {
        EXPECT_TRUE(IsNumeric(HockeyNaming::GetField(record, field))) << team << ": " << record;
      }
    }
  }

  // In weeks nobody moves, and the settings are those of the last save or of the one under way.
  void LookAfterWeeks(const Lines& said) {
    EXPECT_EQ(TeamsByLeague(), home_);
    Lines weeks = {saved_};
    for (const std::string& line : said) {
      if (line.starts_with("save ")) weeks.push_back(line.substr(5));
      if (line.starts_with("saved ")) weeks = {line.substr(6)};
    }
    const std::string content = ReadText(world.SettingsPath("settings.fmk"));
    const auto found = std::find_if(weeks.begin(), weeks.end(), [&](const std::string& week) {
      return content == Settings("Rank F", week, "0");
    });
    ASSERT_NE(found, weeks.end()) << content;
    saved_ = *found;
  }

  // At the year's turn each team lies in exactly one league, and no league loses touch with its six
  // by more than the moves of one season.
  void LookAfterYears() {
    Lines before;
    Lines after;
    for (const Lines& league : home_) before.insert(before.end(), league.begin(), league.end());
    for (const Lines& league : TeamsByLeague()) {
      after.insert(after.end(), league.begin(), league.end());
      EXPECT_GE(league.size(), 5U);
      EXPECT_LE(league.size(), 7U);
    }
    std::sort(before.begin(), before.end());
    std::sort(after.begin(), after.end());
    EXPECT_EQ(after, before);
  }

  static std::string Settings(const std::string& rank, const std::string& week,
                              const std::string& season) {
    return std::string("[Frostmark]\r\nTeam=") + kTeam + "\r\nRank=" + rank + "\r\nWeek=" + week +
           "\r\nSeason=" + season + "\r\nChampion=0\r\n";
  }

 private:
  static constexpr unsigned kLongestLife = 60000;  // microseconds: a few weeks, or about a year

  int seed_ = 0;
  std::mt19937 random_;
  std::vector<Lines> home_;
  std::string saved_ = "Week 1";
};

TEST_F(KillTest, InTheMiddleOfWeeks) {
  KillAgainAndAgain("weeks", [this](const Lines& said) { LookAfterWeeks(said); });
}

TEST_F(KillTest, AtTheYearsTurn) {
  KillAgainAndAgain("years", [this](const Lines& /*said*/) { LookAfterYears(); });
  // Left alone it finds back to six teams per league.
  Victim victim({world.path(), "years", "3"});
  ASSERT_TRUE(victim.EndsWell());
  for (const Lines& league : TeamsByLeague()) EXPECT_EQ(league.size(), 6U);
  ExpectWholeFiles();
}

}  // namespace
}  // namespace frostmark::test
