#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QHelpEvent>
#include <QLabel>
#include <QListView>
#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <array>

#include "desktop/widgets/crest_mark.h"
#include "desktop/widgets/glow_frame.h"
#include "desktop/widgets/taken_flash.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

constexpr std::array kPoolLists = {"List1_0", "List2_0", "List3_0",
                                   "List4_0", "List5_0", "List6_0"};
constexpr std::array kPoolFrames = {"look_pool_1", "look_pool_2", "look_pool_3",
                                    "look_pool_4", "look_pool_5", "look_pool_6"};

// A franchise whose season is over: the results are on view.
class DraftInWindows : public testing::Test {
 protected:
  DraftInWindows() {
    game_.Start();
    game_.StartFranchise();
    game_.front_end().guard().Call([this] {
      Franchise& franchise = game_.program().franchise;
      franchise.Command1.Click();
      franchise.HighButton1.Click();
    });
    Settle();
  }

  FResults& results() { return game_.program().f_results; }
  FDraft& draft() { return game_.program().f_draft; }
  FSelectDraft& select() { return game_.program().f_select_draft; }
  Franchise& franchise() { return game_.program().franchise; }

  QAbstractButton& Button(const Screen& screen, const char* name) {
    return game_.On<QAbstractButton>(screen, name);
  }
  QListView& List(const Screen& screen, const char* name) {
    return game_.On<QListView>(screen, name);
  }
  bool Lit(const char* frame) { return game_.On<GlowFrame>(draft(), frame).Lit(); }

  // The one list of the pool that is open while the user is awaited, or -1.
  int OpenList() {
    if (!draft().AwaitingPick) return -1;
    int open = -1;
    for (std::size_t i = 0; i < kPoolLists.size(); ++i) {
      if (!List(draft(), kPoolLists[i]).isEnabled()) continue;
      if (open >= 0) return -1;
      open = static_cast<int>(i);
    }
    return open;
  }
  // The user has to choose whom to let go, and has the window for it in front.
  bool ChoosesWhomToLetGo() {
    return draft().AwaitingPick && select().Visible() && select().List1.ListCount() == 11 &&
           QApplication::activeModalWidget() == nullptr &&
           Person::HasBefore(game_.Window(select()));
  }
  bool Picks() {
    return !select().Visible() && OpenList() >= 0 && QApplication::activeModalWidget() == nullptr &&
           Lit(kPoolFrames[static_cast<std::size_t>(OpenList())]);
  }
  void ExpectOnlyTheOpenListLit() {
    EXPECT_TRUE(Lit("look_turn"));
    for (std::size_t i = 0; i < kPoolFrames.size(); ++i) {
      EXPECT_EQ(Lit(kPoolFrames[i]), static_cast<int>(i) == OpenList()) << kPoolFrames[i];
    }
  }
  void ExpectNothingLit() {
    EXPECT_FALSE(Lit("look_turn"));
    for (const char* frame : kPoolFrames) EXPECT_FALSE(Lit(frame)) << frame;
  }

  WindowGame game_;
};

TEST_F(DraftInWindows, TheUsersTurnByMouse) {
  std::string picked;
  {
    Person person(game_.front_end());
    const auto let_go = [this] {
      EXPECT_EQ(OpenList(), -1) << "nothing is open before somebody has left";
      Person::DoubleClickRow(List(select(), "List1"), 3);
    };
    person.When(
        "the user's turn", [this] { return ChoosesWhomToLetGo(); }, let_go);
    person.ClickInBox("No");
    person.When(
        "the choice again", [this] { return ChoosesWhomToLetGo(); }, let_go);
    person.ClickInBox("Yes");
    const auto pick = [this, &picked] {
      ExpectOnlyTheOpenListLit();
      picked = draft().Pool()[static_cast<std::size_t>(OpenList())]->shown.List(2);
      Person::DoubleClickRow(List(draft(), kPoolLists[static_cast<std::size_t>(OpenList())]), 2);
    };
    person.When(
        "the pool", [this] { return Picks(); }, pick);
    person.ClickInBox("No");
    person.When(
        "the pool again", [this] { return Picks(); }, pick);
    person.ClickInBox("Yes");
    Person::Click(Button(results(), "Command1"));
  }
  Settle();
  ExpectNothingLit();
  EXPECT_EQ(draft().Events.ListCount(), 72);
  const std::string name = picked.substr(0, picked.rfind(' '));

  {
    Person person(game_.front_end());
    person.ClickInBox("OK");  // the file is saved
    Person::Click(Button(draft(), "Command1"));
  }
  ASSERT_TRUE(franchise().Visible());
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
  // A replacement from the pool is on the lead line; one whom another team let go keeps their line.
  bool has_come = false;
  for (const ListBox* line : {&franchise().MainRoster, &franchise().TrainingRoster}) {
    for (int i = 0; i < line->ListCount(); ++i) {
      has_come |= line->List(i).find(name) != std::string::npos;
    }
  }
  EXPECT_TRUE(has_come) << name;
}

TEST_F(DraftInWindows, TheUsersTurnByKeyboardAlone) {
  {
    Person person(game_.front_end());
    // The list of the team has the keyboard as soon as it comes up, the open list of the pool as
    // soon as it opens: nobody has to look for them.
    person.When(
        "the user's turn", [this] { return ChoosesWhomToLetGo(); },
        [] {
          EXPECT_EQ(Person::Focus()->objectName(), "List1");
          for (int i = 0; i < 3; ++i) Person::Press(Qt::Key_Down);
          Person::Press(Qt::Key_Return);
        });
    person.AnswerBox(Qt::Key_Y);
    person.When(
        "the pool", [this] { return Picks(); },
        [this] {
          EXPECT_EQ(Person::Focus()->objectName(),
                    kPoolLists[static_cast<std::size_t>(OpenList())]);
          Person::Press(Qt::Key_Down);
          Person::Press(Qt::Key_Return);
        });
    person.AnswerBox(Qt::Key_Y);
    ASSERT_TRUE(Person::TabAndPress("Command1"));
  }
  Settle();
  ExpectNothingLit();
  {
    Person person(game_.front_end());
    person.AnswerBox(Qt::Key_Return);
    // So has the button on to the new season.
    EXPECT_EQ(Person::Focus()->objectName(), "Command1");
    Person::Press(Qt::Key_Return);
  }
  ASSERT_TRUE(franchise().Visible());
  EXPECT_EQ(franchise().MainList.ListCount() + franchise().TrainList.ListCount(), 11);
}

TEST_F(DraftInWindows, ADoubleClickOutOfTurnIsNotAPickAndTheHistoryFollows) {
  {
    Person person(game_.front_end());
    person.When(
        "some history", [this] { return draft().Events.ListCount() > 20 && !draft().AwaitingPick; },
        [this] {
          Settle();
          QListView& events = List(draft(), "Events");
          const QModelIndex last = events.model()->index(events.model()->rowCount() - 1, 0);
          EXPECT_TRUE(events.viewport()->rect().contains(events.visualRect(last)));
          const int before = draft().List1.shown.ListCount();
          Person::DoubleClickRow(List(draft(), "List1_0"), 0);
          EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
          EXPECT_EQ(draft().List1.shown.ListCount(), before);
        });
    person.When(
        "the user's turn", [this] { return ChoosesWhomToLetGo(); },
        [this] { Person::DoubleClickRow(List(select(), "List1"), 0); });
    person.ClickInBox("Yes");
    person.When(
        "the pool", [this] { return Picks(); },
        [this] { Person::DoubleClickRow(List(draft(), kPoolLists[0]), 0); });
    person.ClickInBox("Yes");
    Person::Click(Button(results(), "Command1"));
  }
  EXPECT_TRUE(draft().Command1.Enabled());
}

TEST_F(DraftInWindows, ItsWindowStaysWhileTheUserIsAwaitedButTheProgramCanBeLeft) {
  {
    Person person(game_.front_end());
    person.When(
        "the user's turn", [this] { return ChoosesWhomToLetGo(); },
        [this] {
          // The choice itself cannot be closed.
          game_.Window(select()).close();
          EXPECT_EQ(game_.front_end().ExitCode(), -1);
          EXPECT_TRUE(select().Visible());
          // Nor the draft: the year is not saved before the new season.
          game_.Window(draft()).close();
          EXPECT_EQ(game_.front_end().ExitCode(), -1);
          EXPECT_TRUE(draft().Visible());
          Person::Press(Qt::Key_Q, Qt::ControlModifier);
        });
    Person::Click(Button(results(), "Command1"));
  }
  EXPECT_EQ(game_.front_end().ExitCode(), 0);
  EXPECT_FALSE(draft().Command1.Enabled());
  // His team is as it was, with all of its eleven.
  QFile team(QFile::decodeName(franchise().UserTeamPath().c_str()));
  ASSERT_TRUE(team.open(QIODevice::ReadOnly));
  EXPECT_EQ(team.readAll().count('\n'), 11);
  EXPECT_EQ(draft().tempList.ListCount(), 11);
}

TEST_F(DraftInWindows, AfterARetirementTheOpenListHasTheKeyboardAtOnce) {
  // At forty hardly anybody of eleven goes on.
  QFile team(QFile::decodeName(franchise().UserTeamPath().c_str()));
  ASSERT_TRUE(team.open(QIODevice::ReadOnly));
  QString roster = QString::fromUtf8(team.readAll());
  team.close();
  roster.replace(QRegularExpression(",\\d+,([NY])"), ",40,\\1");
  ASSERT_TRUE(team.open(QIODevice::WriteOnly));
  team.write(roster.toUtf8());
  team.close();
  {
    Person person(game_.front_end());
    person.When(
        "the pool", [this] { return Picks(); },
        [this] {
          ExpectOnlyTheOpenListLit();
          EXPECT_EQ(Person::Focus()->objectName(),
                    kPoolLists[static_cast<std::size_t>(OpenList())]);
          Person::Press(Qt::Key_Down);
          Person::Press(Qt::Key_Return);
        });
    person.AnswerBox(Qt::Key_Y);
    Person::Click(Button(results(), "Command1"));
  }
  EXPECT_FALSE(select().Visible());
  EXPECT_TRUE(draft().Command1.Enabled());
}

TEST_F(DraftInWindows, TellsHowFarItHasComeAndWhenTheUserIsNext) {
  QStringList turns;
  QStringList waits;
  bool flashed = false;
  {
    Person person(game_.front_end());
    const auto follow = [&] {
      if (!draft().Visible()) return;
      const QString turn = game_.On<QLabel>(draft(), "look_place").text();
      const QString wait = game_.On<QLabel>(draft(), "look_wait").text();
      if (!turn.isEmpty() && !turns.contains(turn)) {
        turns << turn;
        waits << wait;
        EXPECT_EQ(game_.On<CrestMark>(draft(), "look_crest").Team().toStdString(),
                  draft().CurTeam.Caption());
      }
      for (const char* name : kPoolLists) {
        auto* flash = List(draft(), name).viewport()->findChild<TakenFlash*>();
        flashed |= flash->isVisible() && !flash->Player().isEmpty();
      }
    };
    game_.front_end().at_yield = follow;
    person.When(
        "the user's turn", [this] { return ChoosesWhomToLetGo(); },
        [this] {
          EXPECT_EQ(game_.On<QLabel>(draft(), "look_wait").text(), "Your turn");
          EXPECT_EQ(game_.On<QLabel>(select(), "look_question").text(), "Whom to let go?");
          Person::DoubleClickRow(List(select(), "List1"), 0);
        });
    person.ClickInBox("Yes");
    person.When(
        "the pool", [this] { return Picks(); },
        [this] {
          QListView& pool = List(draft(), kPoolLists[static_cast<std::size_t>(OpenList())]);
          Person::DoubleClickRow(pool, 0);
        });
    person.ClickInBox("Yes");
    Person::Click(Button(results(), "Command1"));
  }
  Settle();
  ASSERT_EQ(turns.size(), 36);
  const int own = static_cast<int>(waits.indexOf("Your turn"));
  ASSERT_GE(own, 0);
  for (int i = 0; i < 36; ++i) {
    EXPECT_EQ(turns[i], QStringLiteral("Team %1 of 36").arg(i + 1));
    const QString wait = i < own    ? QStringLiteral("Yours in %1").arg(own - i)
                         : i == own ? QStringLiteral("Your turn")
                                    : QStringLiteral("Yours has picked");
    EXPECT_EQ(waits[i], wait) << i;
  }
  EXPECT_TRUE(flashed);
  EXPECT_EQ(game_.On<QLabel>(draft(), "look_wait").text(), "The draft is over");
}

TEST_F(DraftInWindows, ShowsSixRowsOfEachListAndTheSkillsOfAPlayer) {
  draft().Show();
  for (ListPair* list : draft().Pool()) {
    for (int i = 0; i < 20; ++i) {
      list->records.AddItem("James Smith,CF,85,82,91,70,83,23,N");
      list->shown.AddItem("James Smith 85/23");
    }
  }
  Settle();
  for (const char* name : kPoolLists) {
    QListView& list = List(draft(), name);
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.model()->index(5, 0))))
        << name;
  }
  QListView& list = List(draft(), kPoolLists[2]);
  const QPoint at = list.visualRect(list.model()->index(1, 0)).center();
  QHelpEvent help(QEvent::ToolTip, at, list.viewport()->mapToGlobal(at));
  QApplication::sendEvent(list.viewport(), &help);
  const QString skills = QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
  for (const char* part :
       {"James Smith", "Passing", "82", "Shooting", "91", "Defense", "70", "Agility", "83"}) {
    EXPECT_TRUE(skills.contains(part)) << part << " in " << skills.toStdString();
  }
}

}  // namespace
}  // namespace frostmark::test
