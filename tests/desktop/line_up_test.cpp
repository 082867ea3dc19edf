#include <gtest/gtest.h>

#include <QLabel>

#include "desktop/delegates/player_delegate.h"
#include "desktop/list_view.h"
#include "desktop/painting/palette.h"
#include "desktop/widgets/line_up_badges.h"
#include "desktop/widgets/skill_card.h"
#include "records/lines/player_line.h"
#include "records/lines/player_record.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

using Mark = PlayerDelegate::Mark;

// The line-up of a fresh franchise, with its page in front.
class LineUp : public testing::Test {
 protected:
  LineUp() {
    game_.StartFranchise();
    franchise().XTab1.SetFront(3);
    Settle();
  }

  Franchise& franchise() { return game_.program().franchise; }
  template <class Widget>
  Widget& On(const char* name) {
    return game_.On<Widget>(franchise(), name);
  }
  LineUpBadges& badges() { return On<LineUpBadges>("look_badges"); }
  Mark MarkOf(const char* list, int row) {
    return qobject_cast<PlayerDelegate*>(On<ListView>(list).itemDelegate())->MarkOf(row);
  }
  void MoveToTraining(int row) {
    franchise().MainRoster.Select(row);
    franchise().Command3.Click();
    Settle();
  }
  void MoveToLead(int row) {
    franchise().TrainingRoster.Select(row);
    franchise().Command4.Click();
    Settle();
  }
  // Puts a player into a line as a load does.
  void Add(const std::string& record) {
    franchise().AddToRoster(record);
    Settle();
  }
  void Empty() {
    franchise().ClearRoster();
    Settle();
  }
  int Colored(QWidget& widget, QRgb color) {
    const QImage picture = widget.grab().toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) count += picture.pixel(x, y) == color ? 1 : 0;
    }
    return count;
  }

  WindowGame game_;
};

TEST_F(LineUp, TheBadgesTellWhichPositionsArePlayed) {
  EXPECT_EQ(badges().Shown(), (LineUpBadges::Counts{1, 1, 1, 1, 1, 1}));
  EXPECT_EQ(Colored(badges(), palette::kRedBright), 0);
  MoveToTraining(0);
  EXPECT_EQ(badges().Shown(), (LineUpBadges::Counts{0, 1, 1, 1, 1, 1}));
  EXPECT_GT(Colored(badges(), palette::kRedBright), 0);
  EXPECT_TRUE(badges().accessibleName().contains("GO missing"));
  EXPECT_EQ(Colored(badges(), palette::kGold), 0);
  MoveToLead(0);  // a second right defender: the first in training
  EXPECT_EQ(badges().Shown(), (LineUpBadges::Counts{0, 2, 1, 1, 1, 1}));
  EXPECT_GT(Colored(badges(), palette::kGold), 0);
  EXPECT_TRUE(badges().accessibleName().contains("RD 2"));
}

TEST_F(LineUp, BothRowsOfADoubledPositionAreMarked) {
  MoveToLead(0);
  const auto& roster = franchise().MainRoster;
  int doubled = 0;
  for (int row = 0; row < roster.ListCount(); ++row) {
    const bool marked = MarkOf("MainRoster", row) == Mark::kDoubled;
    EXPECT_EQ(marked, ParsePlayerLine(roster.List(row))->position == "RD") << row;
    doubled += marked ? 1 : 0;
  }
  EXPECT_EQ(doubled, 2);
}

TEST_F(LineUp, AnArrowStandsAtATraineeWhoIsBetter) {
  Empty();
  Add("Al Lead,CF,80,80,80,50,80,23,N");
  Add("Bo Better,CF,81,81,81,50,81,20,Y");
  Add("Cy Equal,CF,80,80,80,50,80,20,Y");
  Add("Di Alone,GO,99,99,50,99,50,20,Y");
  EXPECT_EQ(MarkOf("TrainingRoster", 0), Mark::kBetter);
  EXPECT_EQ(MarkOf("TrainingRoster", 1), Mark::kNone);
  EXPECT_EQ(MarkOf("TrainingRoster", 2), Mark::kNone)
      << "there is no lead player to be better than";
  auto& list = On<ListView>("TrainingRoster");
  EXPECT_GT(Colored(*list.viewport(), palette::kGreen), 0);
}

TEST_F(LineUp, TheCardShowsTheSelectedPlayer) {
  auto& card = On<SkillCard>("look_trainee_card");
  EXPECT_FALSE(card.isVisible());
  franchise().TrainingRoster.Select(1);
  Settle();
  EXPECT_TRUE(card.isVisible());
  EXPECT_EQ(card.Record(), franchise().TrainList.List(1));
  EXPECT_TRUE(card.accessibleName().contains("(counts)"));
  const auto& list = On<ListView>("TrainingRoster");
  EXPECT_TRUE(list.geometry().contains(card.geometry()));
  EXPECT_FALSE(On<SkillCard>("look_lead_card").isVisible());
  MoveToLead(1);
  EXPECT_FALSE(card.isVisible()) << "nobody is selected any more";
}

TEST_F(LineUp, TheCardGivesWayToTheRows) {
  Empty();
  for (int i = 0; i < 30; ++i) Add("Al Lead,CF,80,80,80,50,80,23,N");
  franchise().MainRoster.Select(3);
  Settle();
  EXPECT_FALSE(On<SkillCard>("look_lead_card").isVisible());
}

TEST_F(LineUp, TheListsStandSideBySide) {
  auto& lead = On<ListView>("MainRoster");
  auto& trainees = On<ListView>("TrainingRoster");
  EXPECT_EQ(lead.mapTo(lead.window(), QPoint()).y(), trainees.mapTo(lead.window(), QPoint()).y());
  EXPECT_EQ(lead.height(), trainees.height());
}

// A skill counts where the overall rating moves with it.
TEST(Skills, CountWhereTheOverallFollows) {
  for (const char* position : kRosterOrder) {
    const Ratings plain{60, 60, 60, 60};
    const auto moves = [&](const Ratings& ratings) {
      return static_cast<int>(OverallAt(position, ratings, 0)) !=
             static_cast<int>(OverallAt(position, plain, 0));
    };
    EXPECT_EQ(CountsAt(position, Field::kPassing), moves({90, 60, 60, 60})) << position;
    EXPECT_EQ(CountsAt(position, Field::kShooting), moves({60, 90, 60, 60})) << position;
    EXPECT_EQ(CountsAt(position, Field::kDefense), moves({60, 60, 90, 60})) << position;
    EXPECT_EQ(CountsAt(position, Field::kAgility), moves({60, 60, 60, 90})) << position;
    EXPECT_FALSE(CountsAt(position, Field::kAge));
  }
}

}  // namespace
}  // namespace frostmark::test
