#include <QLabel>
#include <QPushButton>
#include <array>

#include "desktop/decorations.h"
#include "desktop/delegates/news_delegate.h"
#include "desktop/delegates/player_delegate.h"
#include "desktop/delegates/team_delegate.h"
#include "desktop/fonts.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/screens/own_team.h"
#include "desktop/screens/spoken_news.h"
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

// Six teams or players have the room of a page to themselves.
constexpr double kStandingsStretch = 1.5;
constexpr double kRosterStretch = 1.25;

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

void DressRoster(ScreenForm& form) {
  for (const char* name : {"MainRoster", "TrainingRoster"}) {
    auto& list = Part<ListView>(form, name);
    auto* delegate = new PlayerDelegate(&list);
    delegate->StretchRows(kRosterStretch);
    list.setItemDelegate(delegate);
    GiveRoom(list, 46, 10);
  }
}

// Keeps the place of a widget that comes and goes, so that the others do not jump.
void KeepPlace(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

}  // namespace

void DecorateFranchise(Franchise& screen, ScreenForm& form) {
  UsePosterFonts();
  auto& alerts = Part<ListView>(form, "Alerts");
  alerts.setItemDelegate(new NewsDelegate(OwnTeam(screen), &alerts));
  alerts.LetRowsGrow();
  GiveRoom(alerts, 80, 8);
  DressStandings(screen, form);
  DressRoster(form);

  ShowOwn(Part<QLabel>(form, "TeamName"), true);
  SetLook(Part<QLabel>(form, "look_versus"), "role", "versus");
  KeepPlace(Part<QLabel>(form, "Label18"));
  KeepPlace(Part<QPushButton>(form, "Command5"));

  TellOwnResult(screen, form);
}

}  // namespace frostmark
