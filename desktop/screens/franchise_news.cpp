#include <QEvent>
#include <array>

#include "desktop/decorations.h"
#include "desktop/delegates/news_delegate.h"
#include "desktop/list_view.h"
#include "desktop/painting/row_text.h"
#include "desktop/screen_form.h"
#include "desktop/screens/franchise_parts.h"
#include "desktop/screens/own_team.h"
#include "desktop/widgets/own_game.h"
#include "desktop/widgets/room.h"
#include "records/leagues.h"
#include "shell/franchise.h"

namespace frostmark {
namespace {

bool Holds(const RecordList& teams, std::string_view team) {
  for (int i = 0; i < teams.ListCount(); ++i) {
    if (teams.List(i) == team) return true;
  }
  return false;
}

// The league in which both teams of a game play now. Teams that have met in an earlier season may
// have parted.
QString LeagueOf(const Franchise& screen, const NewsLine& news) {
  const std::array<const RecordList*, kRankCount> leagues = {
      &screen.RankF, &screen.RankE, &screen.RankD, &screen.RankC, &screen.RankB, &screen.RankA};
  for (std::size_t i = 0; i < leagues.size(); ++i) {
    if (Holds(*leagues[i], news.first) && Holds(*leagues[i], news.second)) return kRanks[i];
  }
  return "Earlier seasons";
}

QString NewestOf(const RecordList& news, const QString& team) {
  for (int i = 0; i < news.ListCount(); ++i) {
    const std::string& text = news.List(i);
    const auto line = ParseNewsLine(text);
    if (line && line->Has(team.toStdString())) return Shown(text);
  }
  return {};
}

// Lays a list out again whenever it is seen: who plays in which league, and so where the
// heads stand, changes without the list.
class LayoutAtShow : public QObject {
 public:
  explicit LayoutAtShow(ListView& list) : QObject(&list), list_(list) {
    list.installEventFilter(this);
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Show) list_.doItemsLayout();
    return false;
  }

 private:
  ListView& list_;
};

}  // namespace

void DressNews(const Franchise& screen, ScreenForm& form) {
  auto& alerts = Part<ListView>(form, "Alerts");
  auto* delegate = new NewsDelegate(OwnTeam(screen), &alerts);
  delegate->NameLeagues([&screen](const NewsLine& news) { return LeagueOf(screen, news); });
  alerts.setItemDelegate(delegate);
  alerts.LetRowsGrow();
  GiveRoom(alerts, 80, 16);
  new LayoutAtShow(alerts);

  auto& own_game = Part<OwnGame>(form, "look_own_game");
  const auto follow = [&screen, &own_game, own_team = OwnTeam(screen)] {
    const QString team = own_team();
    own_game.Tell(NewestOf(screen.Alerts, team), team);
  };
  follow();
  QObject::connect(&form, &ScreenForm::Refreshed, &own_game, follow);
}

}  // namespace frostmark
