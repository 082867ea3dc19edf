#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QLabel>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTextDocument>
#include <QToolTip>
#include <QtTest>

#include "desktop/delegates/row_delegate.h"
#include "desktop/delegates/team_delegate.h"
#include "desktop/list_view.h"
#include "desktop/painting/row_painter.h"
#include "desktop/widgets/column_heading.h"
#include "desktop/widgets/fate_label.h"
#include "desktop/widgets/rink_view.h"
#include "desktop/widgets/standings_heading.h"
#include "records/leagues.h"
#include "records/lines/history_line.h"
#include "records/lines/news_line.h"
#include "records/lines/play_line.h"
#include "records/lines/player_line.h"
#include "records/lines/pool_line.h"
#include "records/lines/standings_line.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

constexpr const char* kLongTeam = "Philadelphia Metropolitanists";
constexpr const char* kOtherLongTeam = "Indianapolis Commonwealthians";
constexpr const char* kLongRecord = "Christopher Featherstones,CF,88,88,88,88,88,88,N";
constexpr const char* kLongName = "Christopher Featherstones";
constexpr const char* kOtherLongName = "Maximillian Hawthornewood";

class Lists : public testing::Test {
 protected:
  Program& program() { return game_.program(); }

  ListView& Shown(Screen& screen, const char* name) {
    screen.Show();
    auto& list = game_.On<ListView>(screen, name);
    // To the pages that it is on.
    for (QWidget* page = &list; page != nullptr; page = page->parentWidget()) {
      QWidget* stack = page->parentWidget();
      auto* tabs = stack == nullptr ? nullptr : qobject_cast<QTabWidget*>(stack->parentWidget());
      if (tabs != nullptr) tabs->setCurrentWidget(page);
    }
    Settle();
    return list;
  }

  static int LitRow(const ListView& list) {
    const QModelIndexList rows = list.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
  }

  WindowGame game_;
};

TEST_F(Lists, OnlyTheLeftButtonAndKeysChooseAndTheLitRowIsTheChosenOne) {
  game_.Start();
  game_.StartFranchise();
  Franchise& franchise = program().franchise;
  ListView& list = Shown(franchise, "MainRoster");
  const auto at = [&](int row) { return list.visualRect(list.model()->index(row, 0)).center(); };
  const QPoint empty(20, list.viewport()->height() - 4);
  ASSERT_FALSE(list.indexAt(empty).isValid());
  const auto expect_chosen = [&](int row, const char* after) {
    EXPECT_EQ(franchise.MainRoster.ListIndex(), row) << after;
    EXPECT_EQ(LitRow(list), row) << after;
  };
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at(1));
  expect_chosen(1, "a click");
  QTest::mouseClick(list.viewport(), Qt::RightButton, {}, at(3));
  expect_chosen(1, "the right button");
  QTest::mouseClick(list.viewport(), Qt::MiddleButton, {}, at(3));
  expect_chosen(1, "the middle button");
  QTest::mouseDClick(list.viewport(), Qt::RightButton, {}, at(4));
  expect_chosen(1, "two clicks of the right button");
  EXPECT_FALSE(program().f_player.Visible());
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, empty);
  expect_chosen(1, "a click beside the rows");
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, empty);
  expect_chosen(1, "two clicks beside the rows");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, at(1));
  expect_chosen(1, "Ctrl and a click on the lit row");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, at(2));
  expect_chosen(2, "Ctrl and a click");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ShiftModifier, at(4));
  expect_chosen(4, "Shift and a click");
  list.setFocus();
  for (const auto modifier : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier}) {
    QTest::keyClick(&list, Qt::Key_Home, modifier);
    expect_chosen(0, "Home");
    QTest::keyClick(&list, Qt::Key_Down, modifier);
    expect_chosen(1, "Down");
    QTest::keyClick(&list, Qt::Key_Space, modifier);
    expect_chosen(1, "Space");
    QTest::keyClick(&list, Qt::Key_End, modifier);
    expect_chosen(5, "End");
    QTest::keyClick(&list, Qt::Key_Up, modifier);
    expect_chosen(4, "Up");
  }
}

TEST_F(Lists, ARebuiltListStaysWhereItWasScrolledTo) {
  FDraft& draft = program().f_draft;
  ListView& list = Shown(draft, "List1_0");
  const auto fill = [&](int items) {
    for (int i = 0; i < items; ++i) draft.List1.shown.AddItem("James Smith 85/23");
  };
  fill(40);
  Settle();
  list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum() / 2);
  const int place = list.verticalScrollBar()->value();
  ASSERT_GT(place, 0);
  draft.List1.shown.Clear();
  for (int i = 0; i < 41; ++i) {  // line by line, as the draft does
    fill(1);
    Settle();
  }
  EXPECT_EQ(list.verticalScrollBar()->value(), place);
  // A list that gets shorter is at its end.
  draft.List1.shown.Clear();
  fill(2);
  Settle();
  EXPECT_EQ(list.verticalScrollBar()->value(), 0);
}

struct LongLine {
  const char* screen;
  const char* list;
  std::string text;
};

std::vector<LongLine> LongLines() {
  const std::string roster_line = FormatRosterLine(kLongRecord);
  const std::string pool_line = FormatPoolLine(kLongRecord);
  std::vector<LongLine> lines = {
      {"Franchise", "MainRoster", roster_line},
      {"Franchise", "TrainingRoster", roster_line},
      {"FSelectDraft", "List1", roster_line},
      {"Startup", "List1", FormatPanelLine(kLongRecord)},
      {"Startup", "List2", FormatPanelLine(kLongRecord)},
      {"Game", "Line1", FormatLineUpLine(kLongRecord)},
      {"Game", "Line2", FormatLineUpLine(kLongRecord)},
      {"TeamCreator", "List1", kLongRecord},
      {"FStartGame", "File1", kLongTeam},
      {"FStartGame", "File2", kLongTeam},
      {"FDraft", "Events", FormatRetirement(kLongRecord, kLongTeam)},
      {"FDraft", "Events", FormatRelease(kLongRecord, kLongTeam)},
      {"FDraft", "Events", FormatPick(kLongRecord, kLongTeam)},
      {"Franchise", "Alerts",
       FormatNewsLine({kLongTeam, Outcome::kLost, kOtherLongTeam, "10", "12"})},
      {"Franchise", "Alerts",
       FormatNewsLine({kLongTeam, Outcome::kTied, kOtherLongTeam, "10", "10"})},
      {"Game", "Events", FormatPlayLine({Play::kTie, kLongTeam, kOtherLongTeam, "0", "0"})},
      {"Game", "Events", FormatPlayLine({Play::kWin, kLongTeam, kOtherLongTeam, "12", "10"})},
      {"Game", "Events", FormatPlayLine({Play::kMatchEnd})}};
  for (const Play play : {Play::kGoal, Play::kSteal, Play::kSave, Play::kOutletPass, Play::kPass}) {
    lines.push_back({"Game", "Events", FormatPlayLine({play, kLongName, kOtherLongName})});
  }
  for (const char* list : {"List1_0", "List2_0", "List3_0", "List4_0", "List5_0", "List6_0"}) {
    lines.push_back({"FDraft", list, pool_line});
  }
  for (const char* list : {"List1", "List2", "List3", "List4", "List5", "List6"}) {
    lines.push_back({"FResults", list, FormatStandingsLine(10, 10, 10, kLongTeam)});
  }
  for (const char* rank : kRanks) {
    static const std::string kStat = "StatRank";
    static std::array<std::string, kRankCount> names;
    std::string& name = names[static_cast<std::size_t>('F' - LetterOf(rank)[0])];
    name = kStat + LetterOf(rank);
    lines.push_back({"Franchise", name.c_str(), FormatStandingsLine(10, 10, 10, kLongTeam)});
  }
  return lines;
}

TEST_F(Lists, TheLongestLineOfEachFormIsWhole) {
  program().startup.Frame1.Show();
  for (const LongLine& line : LongLines()) {
    Screen& screen = *program().screens.Find(line.screen);
    ListView& list = Shown(screen, line.list);
    QStandardItemModel model;
    for (int i = 0; i < 30; ++i) model.appendRow(new QStandardItem(line.text.c_str()));
    list.setModel(&model);
    Settle();
    QStyleOptionViewItem option;
    option.initFrom(&list);
    option.widget = &list;
    option.rect = list.visualRect(model.index(0, 0));
    const auto* delegate = qobject_cast<RowDelegate*>(list.itemDelegate());
    ASSERT_NE(delegate, nullptr) << line.screen << "." << line.list;
    EXPECT_FALSE(delegate->IsCut(option, model.index(0, 0)))
        << line.screen << "." << line.list << " (" << option.rect.width() << "): " << line.text;
    list.setModel(nullptr);
    screen.Hide();
  }
}

TEST_F(Lists, ALineThatDoesNotFitIsToldWhole) {
  ListView& list = Shown(program().franchise, "MainRoster");
  program().franchise.MainRoster.AddItem(FormatRosterLine(kLongRecord));
  program().franchise.MainRoster.AddItem("CF - A (85/23)");
  auto* delegate = qobject_cast<RowDelegate*>(list.itemDelegate());
  QStyleOptionViewItem option;
  option.initFrom(&list);
  option.rect = QRect(0, 0, 120, 30);
  const QPoint place = list.viewport()->mapToGlobal(QPoint(30, 10));
  const auto told_at = [&](int row) {
    QHelpEvent event(QEvent::ToolTip, QPoint(30, 10), place);
    delegate->helpEvent(&event, &list, option, list.model()->index(row, 0));
    QTextDocument told;
    told.setHtml(QToolTip::text());
    return told.toPlainText();
  };
  // In this order: a tip that has been shown goes only a moment after it is hidden.
  EXPECT_EQ(told_at(1), "") << "a line that is whole";
  EXPECT_EQ(told_at(0), FormatRosterLine(kLongRecord).c_str());
  QToolTip::hideText();
}

TEST_F(Lists, OnlyTeamsThatHaveMovedAreMarkedAsUpOrDown) {
  game_.Start();
  game_.StartFranchise();
  Franchise& franchise = program().franchise;
  // Nobody comes down from "Rank B", so nobody goes up to it.
  franchise.StatRankB.RemoveItem(5);
  franchise.theOffSeason();
  Settle();
  const Screen& results = program().f_results;
  const struct {
    const char* first;
    const char* last;
    const char* table;
    Fate fate_of_first;
    Fate fate_of_last;
  } leagues[] = {
      {"Label5", "Label6", "List1", Fate::kChampion, Fate::kGoesDown},
      {"Label16", "Label15", "List2", Fate::kGoesUp, Fate::kStays},
      {"Label8", "Label7", "List3", Fate::kStays, Fate::kGoesDown},
      {"Label20", "Label19", "List4", Fate::kGoesUp, Fate::kGoesDown},
      {"Label12", "Label11", "List5", Fate::kGoesUp, Fate::kGoesDown},
      {"Label24", "Label23", "List6", Fate::kGoesUp, Fate::kStays},
  };
  for (const auto& league : leagues) {
    EXPECT_EQ(game_.On<FateLabel>(results, league.first).GetFate(), league.fate_of_first)
        << league.first;
    EXPECT_EQ(game_.On<FateLabel>(results, league.last).GetFate(), league.fate_of_last)
        << league.last;
    const auto* table =
        qobject_cast<TeamDelegate*>(game_.On<ListView>(results, league.table).itemDelegate());
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->FateOfPlace(0), league.fate_of_first) << league.table;
    EXPECT_EQ(table->FateOfPlace(5), league.fate_of_last) << league.table;
  }
}

TEST_F(Lists, HeadsStandOverTheirColumns) {
  Screen& draft = program().f_draft;
  draft.Show();
  Settle();
  const struct {
    const char* heading;
    std::array<const char*, 3> lists;
  } rows[] = {{"Label4", {"List1_0", "List2_0", "List3_0"}},
              {"Label6", {"List4_0", "List5_0", "List6_0"}}};
  for (const auto& row : rows) {
    auto& heading = game_.On<ColumnHeading>(draft, row.heading);
    for (int i = 0; i < 3; ++i) {
      const auto& list = game_.On<ListView>(draft, row.lists[static_cast<std::size_t>(i)]);
      const double text =
          list.viewport()->mapTo(heading.window(), QPoint()).x() + row::Margin(list.fontMetrics());
      EXPECT_NEAR(heading.mapTo(heading.window(), QPoint()).x() + heading.Start(i), text, 0.5)
          << row.heading << " " << i;
      EXPECT_LE(heading.Start(i) + heading.fontMetrics().horizontalAdvance(heading.Word(i)),
                i < 2 ? heading.Start(i + 1) : heading.width());
    }
  }
  const ListView& standings = Shown(program().franchise, "StatRankF");
  auto& letters = game_.On<StandingsHeading>(program().franchise, "look_heading_f");
  EXPECT_NEAR(
      letters.mapTo(letters.window(), QPoint()).x() + letters.End(),
      standings.viewport()->mapTo(letters.window(), QPoint()).x() + standings.viewport()->width(),
      0.5);
}

TEST_F(Lists, AfterAGoalThePuckIsInTheNetUntilTheFaceOff) {
  Game& game = program().game;
  game.Show();
  auto& rink = game_.On<RinkView>(game, "Picture1");
  game.PuckTeam = 1;
  game.PuckCarrier = "A B,CF,85,85,85,85,85,20,N";
  game.PassesLeft = 0;
  game.Label3.SetCaption("0");
  game.Label4.SetCaption("0");
  game.Period1.SetValue(5);
  Settle();
  const QPointF with_carrier = rink.Puck();
  game.PassesLeft = -2;
  game.Label3.SetCaption("1");
  Settle();
  const QPointF in_net = rink.Puck();
  EXPECT_NE(in_net, with_carrier);
  EXPECT_EQ(rink.Lamp(), 1);
  game.PassesLeft = 3;
  game.Period1.SetValue(6);
  Settle();
  EXPECT_EQ(rink.Puck(), with_carrier) << "the lamp still shines, the game goes on";
  EXPECT_EQ(rink.Lamp(), 1);
}

}  // namespace
}  // namespace frostmark::test
