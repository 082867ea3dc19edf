#include <gtest/gtest.h>

#include <QAbstractItemDelegate>
#include <QElapsedTimer>
#include <QProxyStyle>
#include <QTabWidget>
#include <QTimer>
#include <QVariantAnimation>
#include <QtTest>
#include <set>

#include "desktop/list_view.h"
#include "desktop/widgets/deed_ribbon.h"
#include "desktop/widgets/goal_sheet.h"
#include "desktop/widgets/ice_banner.h"
#include "desktop/widgets/match_tally.h"
#include "desktop/widgets/rink_view.h"
#include "records/lines/play_line.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

// A game between the first two teams of the lowest league, with its page in front.
class MatchPage : public testing::Test {
 protected:
  MatchPage() {
    game_.front_end().guard().Call([this] {
      QTimer::singleShot(0, [] {
        if (QWidget* box = QApplication::activeModalWidget()) box->close();
      });
      program().startup.BuildLeague();
    });
    game_.Start();
    program().startup.HighButton1.Click();
    FStartGame& choice = program().f_start_game;
    choice.List3.Select(0);
    choice.File1.Select(0);
    choice.List4.Select(0);
    choice.File2.Select(1);
    choice.HighButton1.Click();
    match().XTab1.SetFront(1);
    Settle();
  }

  Program& program() { return game_.program(); }
  Game& match() { return program().game; }
  template <class Widget>
  Widget& On(const char* name) {
    return game_.On<Widget>(match(), name);
  }
  RinkView& rink() { return On<RinkView>("Picture1"); }
  IceBanner& banner() { return *rink().findChild<IceBanner*>(); }

  void PlayPeriod(Timer& timer) {
    match().HighButton1.Click();
    while (timer.Enabled()) timer.Tick();
    Settle();
  }

  void PlayGame() {
    PlayPeriod(match().Timer1);
    PlayPeriod(match().Timer2);
    PlayPeriod(match().Timer3);
  }

  // Plays on to the next goal of either team.
  void PlayToGoal() {
    const auto score = [this] {
      return match().Goals(1).Caption() + "-" + match().Goals(2).Caption();
    };
    const std::string before = score();
    match().HighButton1.Click();
    while (score() == before) {
      ASSERT_TRUE(match().Timer1.Enabled()) << "no goal in the first period";
      match().Timer1.Tick();
    }
    match().Timer1.Disable();  // real time is none of this test's business
  }

  int Lines(Play play) {
    int count = 0;
    for (int i = 0; i < match().Events.ListCount(); ++i) {
      const auto line = ParsePlayLine(match().Events.List(i));
      if (line && line->play == play) ++count;
    }
    return count;
  }

  WindowGame game_;
};

TEST_F(MatchPage, TheTallyCountsEverySaveStealAndFaceOff) {
  PlayGame();
  const auto& tally = On<MatchTally>("look_tally");
  const auto both = [&](MatchTally::Count count) {
    return tally.Of(count, 1) + tally.Of(count, 2);
  };
  EXPECT_GT(Lines(Play::kSave), 0);
  EXPECT_EQ(both(MatchTally::kSaves), Lines(Play::kSave));
  EXPECT_EQ(both(MatchTally::kSteals), Lines(Play::kSteal));
  EXPECT_EQ(both(MatchTally::kFaceOffs), Lines(Play::kFaceOff));
  EXPECT_TRUE(tally.accessibleName().contains("Saves: "));
}

// The players of a line tell whose deed it was, where no two are called the same.
TEST_F(MatchPage, ADeedCountsForTheTeamOfItsPlayer) {
  const auto of_home = [this](std::string_view name) {
    for (int i = 0; i < match().Line1Stats.ListCount(); ++i) {
      if (FieldView(match().Line1Stats.List(i), Field::kName) == name) return true;
    }
    return false;
  };
  PlayPeriod(match().Timer1);
  int saves = 0;
  for (int i = 0; i < match().Events.ListCount(); ++i) {
    const std::string text = match().Events.List(i);
    const auto line = ParsePlayLine(text);
    if (line && line->play == Play::kSteal && of_home(line->who)) ++saves;
  }
  EXPECT_GT(saves, 0);
  EXPECT_EQ(On<MatchTally>("look_tally").Of(MatchTally::kSteals, 1), saves);
}

TEST_F(MatchPage, GoalsStandUnderTheScoreOfTheirTeam) {
  PlayGame();
  for (const int team : {1, 2}) {
    const auto& sheet = On<GoalSheet>(team == 1 ? "look_goals1" : "look_goals2");
    EXPECT_EQ(QString::number(sheet.Goals().size()).toStdString(), match().Goals(team).Caption());
    for (const QString& goal : sheet.Goals())
      EXPECT_TRUE(sheet.toolTip().contains(goal.toHtmlEscaped()));
  }
}

TEST_F(MatchPage, AGoalSweepsOverTheIceAndGoesAgain) {
  PlayToGoal();
  Settle();
  const auto goal = ParsePlayLine(match().Events.List(0));
  ASSERT_TRUE(goal && goal->play == Play::kGoal);
  EXPECT_EQ(banner().Shown().headline, "GOAL!");
  EXPECT_TRUE(banner().Shown().detail.contains(
      QString::fromUtf8(goal->who.data(), static_cast<int>(goal->who.size()))));
  EXPECT_NE(rink().Lamp(), 0);
  EXPECT_EQ(rink().Shot(), rink().Lamp());
  EXPECT_TRUE(QTest::qWaitFor([this] { return !banner().isVisible(); }));
}

TEST_F(MatchPage, ThePlateTellsTheResult) {
  PlayGame();
  const int home = std::stoi(match().Goals(1).Caption());
  const int visitor = std::stoi(match().Goals(2).Caption());
  const Banner& plate = banner().Shown();
  EXPECT_EQ(plate.headline, home == visitor ? "TIED" : "WON");
  EXPECT_TRUE(plate.detail.contains(QStringLiteral("%1 - %2").arg(home).arg(visitor)));
  EXPECT_TRUE(banner().isVisible());
}

TEST_F(MatchPage, EveryDeedCanBeReadForASecondAndAHalf) {
  auto& ribbon = On<DeedRibbon>("look_ribbon");
  QElapsedTimer told;
  told.start();
  ribbon.Tell(1, "SAVE", "Ada Stone", Qt::white);
  ribbon.Tell(1, "STEAL", "Bo Reed", Qt::white);
  ribbon.Tell(1, "GOAL", "Cy Lund", Qt::white);
  EXPECT_EQ(ribbon.Lines(1), QStringList({"GOAL Cy Lund", "STEAL Bo Reed", "SAVE Ada Stone"}));
  EXPECT_TRUE(QTest::qWaitFor([&] { return ribbon.Lines(1).size() == 1; }));
  EXPECT_GE(told.elapsed(), 1500);
  // The newest stays until the next.
  EXPECT_EQ(ribbon.Lines(1), QStringList({"GOAL Cy Lund"}));
}

TEST_F(MatchPage, APassTakesHalfTheHeightOfADeed) {
  PlayPeriod(match().Timer1);
  const auto& events = On<ListView>("Events");
  int passes = 0;
  int lowest_pass = 10000;
  int lowest_deed = 10000;
  for (int i = 0; i < 100; ++i) {
    const auto line = ParsePlayLine(match().Events.List(i));
    ASSERT_TRUE(line);
    const int height = events.sizeHintForIndex(events.model()->index(i, 0)).height();
    if (line->play == Play::kPass || line->play == Play::kOutletPass) {
      ++passes;
      lowest_pass = std::min(lowest_pass, height);
    } else {
      lowest_deed = std::min(lowest_deed, height);
    }
  }
  ASSERT_GT(passes, 30);
  // Each on one line: a pass between two long names needs a second.
  EXPECT_LE(lowest_pass, lowest_deed * 0.7);
}

TEST_F(MatchPage, ThePuckGlides) {
  match().HighButton1.Click();
  match().Timer1.Disable();
  Settle();
  rink().SetPuck(1, "RD");
  ASSERT_TRUE(QTest::qWaitFor([this] { return rink().ShownPuck() == rink().Puck(); }));
  const QPointF from = rink().ShownPuck();
  rink().SetPuck(1, "LF");
  auto* glide = rink().findChild<QVariantAnimation*>();
  ASSERT_EQ(glide->state(), QAbstractAnimation::Running);
  glide->pause();
  EXPECT_LT(glide->duration(), 100) << "a step takes 100 ms";
  std::set<double> places;
  for (int time = 1; time < glide->duration(); time += 8) {
    glide->setCurrentTime(time);
    places.insert(rink().ShownPuck().x());
    EXPECT_GT(rink().ShownPuck().x(), from.x());
    EXPECT_LT(rink().ShownPuck().x(), rink().Puck().x());
  }
  EXPECT_GE(places.size(), 10U);
  glide->resume();
  EXPECT_TRUE(QTest::qWaitFor([this] { return rink().ShownPuck() == rink().Puck(); }));
}

// A desktop without animations.
class StillStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_Widget_Animation_Duration
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

TEST_F(MatchPage, NothingMovesWhereTheDesktopWantsItStill) {
  QApplication::setStyle(new StillStyle);
  rink().SetPuck(1, "LF");
  EXPECT_EQ(rink().ShownPuck(), rink().Puck());
  QApplication::setStyle("Fusion");
}

TEST_F(MatchPage, ANewGameStartsOnCleanIce) {
  PlayGame();
  match().HighButton2.Click();
  program().startup.HighButton1.Click();
  program().f_start_game.HighButton1.Click();
  Settle();
  EXPECT_EQ(banner().Shown().headline, "");
  EXPECT_FALSE(banner().isVisible());
  EXPECT_EQ(On<MatchTally>("look_tally").Of(MatchTally::kSaves, 1), 0);
  EXPECT_TRUE(On<DeedRibbon>("look_ribbon").Lines(1).isEmpty());
  EXPECT_TRUE(On<GoalSheet>("look_goals1").Goals().isEmpty());
}

}  // namespace
}  // namespace frostmark::test
