#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>

#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

// City and nickname of a row are not a team: each is drawn by itself.
constexpr std::array<std::pair<const char*, const char*>, 35> kTable = {{
    {"Binghamton", "Whalers"},     {"Baltimore", "Clippers"},   {"Boston", "Braves"},
    {"Chicago", "Cougars"},        {"Cleveland", "Crusaders"},  {"Denver", "Blizzard"},
    {"Edmonton", "Roadrunners"},   {"Houston", "Aeros"},        {"Indianapolis", "Capitals"},
    {"Jacksonville", "Barons"},    {"Juneau", "Eskimos"},       {"Manitoba", "Moose"},
    {"Minneasota", "North Stars"}, {"New Jersey", "Knights"},   {"New York", "Raiders"},
    {"Ottawa", "Nationals"},       {"Philadelphia", "Quakers"}, {"Phoenix", "Heat"},
    {"Pittsburgh", "Hornets"},     {"Quebec", "Citadelles"},    {"Rhode Island", "Reds"},
    {"Richmond", "Robins"},        {"Sakatoon", "Sheiks"},      {"San Diego", "Mariners"},
    {"Seattle", "Metropolitans"},  {"Syracuse", "Firebirds"},   {"Toronto", "Toros"},
    {"Utah", "Grizzlies"},         {"Utica", "Devils"},         {"Vancouver", "Maroons"},
    {"Victoria", "Senators"},      {"Virginia", "Wings"},       {"Winnipeg", "Jets"},
    {"Worcester", "Ice Cats"},     {"Los Angeles", "Freeze"},
}};

class LeagueBuildTest : public GameFixture {
 protected:
  void Build() { startup().BuildLeague(); }

  int OverallOf(const std::string& rank, const std::string& team) {
    RecordList list;
    FillList(list, ReadLines(world.TeamPath(rank, team)));
    naming().RateTeam(list);
    return naming().TeamOverall;
  }
};

TEST_F(LeagueBuildTest, MakesFiveTeamsInTheLowestLeagueAndSixInEachOther) {
  Build();
  for (const char* rank : kRanks) {
    const Lines teams = world.FileNames(rank);
    EXPECT_EQ(teams.size(), std::string_view(rank) == "Rank F" ? 5U : 6U) << rank;
    for (const std::string& team : teams) {
      EXPECT_EQ(team.find('.'), std::string::npos) << team;
      EXPECT_EQ(ReadLines(world.TeamPath(rank, team)).size(), 11U) << team;
      EXPECT_TRUE(ReadText(world.TeamPath(rank, team)).ends_with("\r\n"));
    }
  }
}

TEST_F(LeagueBuildTest, EachTeamLiesInTheBandOfItsLeague) {
  Build();
  const std::array<std::pair<int, int>, 6> bands = {
      {{0, 80}, {80, 82}, {82, 83}, {85, 86}, {86, 88}, {88, 99}}};
  for (std::size_t league = 0; league < bands.size(); ++league) {
    for (const std::string& team : world.FileNames(kRanks[league])) {
      const int overall = OverallOf(kRanks[league], team);
      EXPECT_GE(overall, bands[league].first) << kRanks[league] << " " << team;
      EXPECT_LE(overall, bands[league].second) << kRanks[league] << " " << team;
    }
  }
}

TEST_F(LeagueBuildTest, UsesEachCityAndEachNicknameOnce) {
  Build();
  std::set<std::string> teams;
  for (const char* rank : kRanks) {
    for (const std::string& team : world.FileNames(rank)) EXPECT_TRUE(teams.insert(team).second);
  }
  ASSERT_EQ(teams.size(), 35U);
  for (const auto& [city, nickname] : kTable) {
    const std::string start = std::string(city) + " ";
    const std::string end = std::string(" ") + nickname;
    EXPECT_EQ(std::count_if(teams.begin(), teams.end(),
                            [&](const std::string& team) { return team.starts_with(start); }),
              1)
        << city;
    EXPECT_EQ(std::count_if(teams.begin(), teams.end(),
                            [&](const std::string& team) { return team.ends_with(end); }),
              1)
        << nickname;
  }
  EXPECT_EQ(startup().List3.ListCount(), 0);
  EXPECT_EQ(startup().List4.ListCount(), 0);
}

TEST_F(LeagueBuildTest, FillsTheTwoListsInTheirOrder) {
  // The first yield of a build in an empty world comes from the first player of the first team.
  front_end().AtYield([&] {
    Lines cities;
    Lines nicknames;
    for (const auto& [city, nickname] : kTable) {
      cities.emplace_back(city);
      nicknames.emplace_back(nickname);
    }
    EXPECT_EQ(ItemsOf(startup().List3), cities);
    EXPECT_EQ(ItemsOf(startup().List4), nicknames);
  });
  Build();
}

TEST_F(LeagueBuildTest, SaysThatItTakesTimeBeforeAnythingHappens) {
  world.FillWorld();
  Build();
  ASSERT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_EQ(front_end().Boxes()[0].text, "Please wait as this may take some time...");
  EXPECT_EQ(front_end().Boxes()[0].icon, BoxIcon::kInformation);
  EXPECT_EQ(front_end().Boxes()[0].buttons, BoxButtons::kOk);
}

TEST_F(LeagueBuildTest, LeavesNoFileOfTheWorldBefore) {
  Build();
  const Lines first = world.Everything();
  for (const char* rank : kRanks) world.WriteTeam(rank, "Old Team", MakeRoster(80));
  Build();
  for (const char* rank : kRanks) {
    EXPECT_EQ(world.FileNames(rank).size(), std::string_view(rank) == "Rank F" ? 5U : 6U);
  }
  for (const std::string& file : world.Everything()) {
    EXPECT_EQ(std::count(first.begin(), first.end(), file), 0) << file;
  }
}

TEST_F(LeagueBuildTest, DeletesLeagueByLeagueYieldingAfterEachFile) {
  world.WriteTeam("Rank F", "b", {});
  world.WriteTeam("Rank F", "A", {});
  world.WriteTeam("Rank A", "c", {});
  int looks = 0;
  const auto expect_left = [&](const Lines& in_f, const Lines& in_a) {
    front_end().AtYield([this, in_f, in_a, &looks] {
      EXPECT_EQ(world.FileNames("Rank F"), in_f);
      EXPECT_EQ(world.FileNames("Rank A"), in_a);
      ++looks;
    });
  };
  expect_left({"b"}, {"c"});
  expect_left({}, {"c"});
  expect_left({}, {});
  Build();
  EXPECT_EQ(looks, 3);
}

TEST_F(LeagueBuildTest, TouchesNeitherSettingsNorStandingsNorAlerts) {
  for (const char* file : {"settings.fmk", "StatRankF.fmk", "Alerts.fmk"}) {
    WriteText(world.SettingsPath(file), "mine");
  }
  Build();
  EXPECT_EQ(world.SettingsNames(), (Lines{"Alerts.fmk", "StatRankF.fmk", "settings.fmk"}));
  for (const char* file : {"settings.fmk", "StatRankF.fmk", "Alerts.fmk"}) {
    EXPECT_EQ(ReadText(world.SettingsPath(file)), "mine");
  }
}

TEST_F(LeagueBuildTest, SetsSeasonAndChampionshipsBackAtItsEnd) {
  EXPECT_EQ(franchise().Season.Caption(), "00");
  franchise().Champion.SetCaption("3");
  front_end().AtYield([&] {
    EXPECT_EQ(franchise().Season.Caption(), "00");
    EXPECT_EQ(franchise().Champion.Caption(), "3");
  });
  Build();
  EXPECT_EQ(franchise().Season.Caption(), "0");
  EXPECT_EQ(franchise().Champion.Caption(), "0");
}

TEST_F(LeagueBuildTest, ATeamOutsideItsBandIsThrownAwayWhole) {
  // The first team is as good as can be, the second as bad: only that one suits "Rank F".
  for (int player = 0; player < 11; ++player) dice().Give({1, 1, 1, 1, 1, 1, 1});
  for (int player = 0; player < 11; ++player) dice().Give({2, 2, 30, 30, 30, 30, 7});
  dice().Give({6, 35});  // the sixth city and the last nickname
  Build();
  EXPECT_EQ(ReadLines(world.TeamPath("Rank F", "Denver Freeze"))[0],
            "Robert Williams,GO,70,70,70,70,70,18,N");
}

TEST_F(LeagueBuildTest, RollsCityAndNicknameAfterEachTeamFromWhatIsLeft) {
  Build();
  const std::vector<int> asked = dice().Asked();
  std::vector<int> of_names;
  for (std::size_t i = 0; i < asked.size();) {
    if (asked[i] == 1218) {
      i += std::size_t{11} * 7;  // a team's players
    } else {
      of_names.push_back(asked[i++]);
    }
  }
  std::vector<int> expected;
  for (int left = 35; left > 0; --left) expected.insert(expected.end(), {left, left});
  EXPECT_EQ(of_names, expected);
}

TEST_F(LeagueBuildTest, YieldsTwentyThreeTimesATryAndTwelveTimesATeam) {
  Build();
  // Every try asks for the names and ratings of eleven players.
  const std::vector<int> asked = dice().Asked();
  const auto tries = std::count(asked.begin(), asked.end(), 1218) / 11;
  ASSERT_GT(tries, 35);
  // Eleven players, eleven of them rated, one look at the strength; eleven lines, one team.
  EXPECT_EQ(front_end().Yields(), tries * 23 + 35 * 12);
}

TEST_F(LeagueBuildTest, TheStrengthIsReadFromItsLabelAfterTheYieldOfTheTry) {
  // Two teams that suit "Rank F": the label of the first is written over at the try's last yield.
  for (int player = 0; player < 22; ++player) dice().Give({2, 2, 30, 30, 30, 30, 7});
  dice().Give({6, 35});
  for (int yield = 1; yield < 23; ++yield) front_end().AtYield([] {});
  front_end().AtYield([this] {
    EXPECT_EQ(program().team_creator.Label7.Caption(), "70");
    EXPECT_EQ(naming().TeamOverall, 70);
    program().team_creator.Label7.SetCaption("81");
  });
  Build();
  EXPECT_EQ(dice().Rolls()[154], (RollPair{35, 6}));
  EXPECT_EQ(ReadLines(world.TeamPath("Rank F", "Denver Freeze"))[0],
            "Robert Williams,GO,70,70,70,70,70,18,N");
}

TEST_F(LeagueBuildTest, TheListsOfNamesAreAddedToWhatIsInThem) {
  startup().List3.AddItem("Oslo");
  startup().List4.AddItem("Vikings");
  front_end().AtYield([this] {
    EXPECT_EQ(startup().List3.ListCount(), 36);
    EXPECT_EQ(startup().List3.List(0), "Oslo");
    EXPECT_EQ(startup().List3.List(1), "Binghamton");
    EXPECT_EQ(startup().List4.ListCount(), 36);
    EXPECT_EQ(startup().List4.List(0), "Vikings");
  });
  Build();
  EXPECT_EQ(startup().List3.ListCount(), 1);
  EXPECT_EQ(startup().List4.ListCount(), 1);
  const std::vector<int> asked = dice().Asked();
  EXPECT_EQ(std::count(asked.begin(), asked.end(), 36), 2);
}

}  // namespace
}  // namespace frostmark::test
