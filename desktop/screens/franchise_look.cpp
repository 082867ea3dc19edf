#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <array>

#include "desktop/decorations.h"
#include "desktop/delegates/team_delegate.h"
#include "desktop/fonts.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/screens/franchise_parts.h"
#include "desktop/screens/own_team.h"
#include "desktop/screens/spoken_news.h"
#include "desktop/widgets/empty_note.h"
#include "desktop/widgets/roles.h"
#include "desktop/widgets/room.h"
#include "desktop/widgets/standings_heading.h"
#include "shell/franchise.h"

namespace frostmark {

namespace {

constexpr std::array kStandings = {"StatRankF", "StatRankE", "StatRankD",
                                   "StatRankC", "StatRankB", "StatRankA"};

constexpr std::array kHeadings = {"look_heading_f", "look_heading_e", "look_heading_d",
                                  "look_heading_c", "look_heading_b", "look_heading_a"};

// Six teams have the room of a page to themselves.
constexpr double kStandingsStretch = 1.5;

void DressStandings(const Franchise& screen, ScreenForm& form) {
  for (std::size_t i = 0; i < kStandings.size(); ++i) {
    const League league = i == 0                       ? League::kBottom
                          : i + 1 == kStandings.size() ? League::kTop
                                                       : League::kMiddle;
    auto& list = Part<ListView>(form, kStandings[i]);
    const auto fate_of = [league](int place) { return FateOf(league, place); };
    auto* delegate = new TeamDelegate(fate_of, OwnTeam(screen), &list);
    delegate->StretchRows(kStandingsStretch);
    list.setItemDelegate(delegate);
    GiveRoom(list, 44, 9);
    Part<StandingsHeading>(form, kHeadings[i]).StandOver(list);
  }
}

// Left and Right move the selected player to the line on that side, as the arrow between the lines
// does. The selection goes on to the neighbbor, so that one player after the other can go.
class RosterKeys : public QObject {
 public:
  RosterKeys(ListView& line, Qt::Key key, QAbstractButton& arrow)
      : QObject(&line), line_(line), key_(key), arrow_(arrow) {
    line.installEventFilter(this);
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* pressed = static_cast<QKeyEvent*>(event);
    if (pressed->key() != key_ || pressed->modifiers() != Qt::NoModifier) return false;
    const QModelIndexList selected = line_.selectionModel()->selectedRows();
    if (selected.isEmpty() || !arrow_.isEnabled()) return true;
    const int row = selected.front().row();
    arrow_.click();
    const int rows = line_.model()->rowCount();
    if (rows > 0) emit line_.Chosen(std::min(row, rows - 1));
    return true;
  }

 private:
  ListView& line_;
  Qt::Key key_;
  QAbstractButton& arrow_;
};

}  // namespace

void DecorateFranchise(const Franchise& screen, ScreenForm& form) {
  UsePosterFonts();
  DressNews(screen, form);
  new EmptyNote(Part<ListView>(form, "Alerts"),
                "No games yet. The results of every league come in week by week.");
  DressStandings(screen, form);
  DressLineUp(screen, form);
  new RosterKeys(Part<ListView>(form, "MainRoster"), Qt::Key_Right,
                 Part<QAbstractButton>(form, "Command3"));
  new RosterKeys(Part<ListView>(form, "TrainingRoster"), Qt::Key_Left,
                 Part<QAbstractButton>(form, "Command4"));

  ShowOwn(Part<QLabel>(form, "TeamName"), true);
  SetLook(Part<QLabel>(form, "look_versus"), "role", "versus");
  KeepPlaceWhenHidden(Part<QLabel>(form, "Label18"));
  KeepPlaceWhenHidden(Part<QPushButton>(form, "Command5"));
  DressWeek(screen, form);

  TellOwnResult(screen, form);
}

}  // namespace frostmark
