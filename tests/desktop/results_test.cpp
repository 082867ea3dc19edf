#include <gtest/gtest.h>

#include <QImage>
#include <QtTest>
#include <array>

#include "desktop/painting/palette.h"
#include "desktop/painting/team_crest.h"
#include "desktop/widgets/confetti.h"
#include "desktop/widgets/season_fate.h"
#include "tests/desktop/person.h"
#include "tests/desktop/still_desktop.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

// The results of a season in which the user's team has come in somewhere.
class ResultsPage : public testing::Test {
 protected:
  ResultsPage() { game_.Start(); }

  FResults& results() { return game_.program().f_results; }
  SeasonFate& Own() { return game_.On<SeasonFate>(results(), "look_own_season"); }
  Confetti& Papers() {
    return *game_.On<QWidget>(results(), "look_champion").findChild<Confetti*>();
  }

  // Shows the tables with the user's team at PLACE, from 0, of LEAGUE, from "Rank F", all borders
  // crossed.
  void ShowWithOwnAt(std::size_t league, int place) {
    const std::array<ListBox*, 6> tables = {&results().List6, &results().List5, &results().List4,
                                            &results().List3, &results().List2, &results().List1};
    for (std::size_t i = 0; i < tables.size(); ++i) {
      for (int j = 0; j < 6; ++j) {
        tables[i]->AddItem("(5-3-2) Team " + std::to_string(i) + std::to_string(j));
      }
    }
    const std::string own = "Team " + std::to_string(league) + std::to_string(place);
    game_.program().franchise.TeamName.SetCaption(own);
    results().crossed.fill(true);
    results().Champ.SetCaption("Team 50");
    results().Show();
    Settle();
  }

  WindowGame game_;
};

TEST_F(ResultsPage, TellsOfPromotion) {
  ShowWithOwnAt(0, 0);
  EXPECT_TRUE(Own().isVisible());
  EXPECT_EQ(Own().text(), "Team 00 finished 1st in Rank F and goes up to Rank E.");
  EXPECT_EQ(Own().Shown().from, "F");
  EXPECT_EQ(Own().Shown().to, "E");
  EXPECT_FALSE(Papers().InTheAir());
  // The crest and the headline are painted.
  const QImage picture = Own().grab().toImage().convertToFormat(QImage::Format_RGB32);
  int crest = 0;
  int green = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      crest += picture.pixel(x, y) == CrestOf("Team 00").field.rgb();
      green += picture.pixel(x, y) == palette::kGreen;
    }
  }
  EXPECT_GT(crest, 300);
  EXPECT_GT(green, 300);
}

TEST_F(ResultsPage, TellsOfRelegation) {
  ShowWithOwnAt(3, 5);
  EXPECT_EQ(Own().text(), "Team 35 finished 6th in Rank C and goes down to Rank D.");
}

TEST_F(ResultsPage, TellsWhereATeamStays) {
  ShowWithOwnAt(2, 2);
  EXPECT_EQ(Own().text(), "Team 22 finished 3rd in Rank D and stays there.");
  EXPECT_EQ(Own().Shown().to, "D");
}

TEST_F(ResultsPage, SaysNothingOfATeamThatIsNotThere) {
  results().Show();
  Settle();
  EXPECT_FALSE(Own().isVisible());
}

TEST_F(ResultsPage, ATitleIsCelebratedForAWhileAndThenAllIsStill) {
  ShowWithOwnAt(5, 0);
  EXPECT_EQ(Own().text(), "Team 50 finished 1st in Rank A and is the champion.");
  ASSERT_TRUE(Papers().InTheAir());
  EXPECT_TRUE(Papers().Moves());
  EXPECT_TRUE(Papers().isVisible());
  QElapsedTimer time;
  time.start();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Papers().InTheAir(); }, 10000));
  EXPECT_GE(time.elapsed(), 2500);
  EXPECT_FALSE(Papers().Moves());
  EXPECT_FALSE(Papers().isVisible());
}

TEST_F(ResultsPage, ATitleIsCelebratedWithoutMotionWhereNoneIsWanted) {
  const StillDesktop still;
  ShowWithOwnAt(5, 0);
  EXPECT_TRUE(Papers().InTheAir());
  EXPECT_FALSE(Papers().Moves());
  const QImage before = Papers().grab().toImage();
  QTest::qWait(1);
  EXPECT_EQ(Papers().grab().toImage(), before);
}

}  // namespace
}  // namespace frostmark::test
