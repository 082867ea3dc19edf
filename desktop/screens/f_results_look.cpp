#include <QEvent>
#include <QLabel>
#include <array>
#include <functional>
#include <utility>

#include "desktop/decorations.h"
#include "desktop/delegates/team_delegate.h"
#include "desktop/fonts.h"
#include "desktop/list_view.h"
#include "desktop/painting/row_text.h"
#include "desktop/screen_form.h"
#include "desktop/screens/own_team.h"
#include "desktop/screens/spoken_news.h"
#include "desktop/widgets/confetti.h"
#include "desktop/widgets/crest_mark.h"
#include "desktop/widgets/fate_label.h"
#include "desktop/widgets/roles.h"
#include "desktop/widgets/room.h"
#include "desktop/widgets/season_fate.h"
#include "draft/f_results.h"
#include "records/leagues.h"
#include "records/lines/standings_line.h"

namespace frostmark {

namespace {

// A league on the screen: its first, its last and its table.
struct NamedLeague {
  const char* first;
  const char* last;
  const char* table;
};

// From "Rank F" up.
constexpr std::array kLeagues = {
    NamedLeague{"Label24", "Label23", "List6"}, NamedLeague{"Label12", "Label11", "List5"},
    NamedLeague{"Label20", "Label19", "List4"}, NamedLeague{"Label8", "Label7", "List3"},
    NamedLeague{"Label16", "Label15", "List2"}, NamedLeague{"Label5", "Label6", "List1"},
};
constexpr std::size_t kTop = kLeagues.size() - 1;
constexpr int kFirst = 0;
constexpr int kLast = 5;

// What the season has brought to PLACE of LEAGUE: only who has really moved is up or down.
Fate FateAfter(const FResults& screen, std::size_t league, int place) {
  if (place == kFirst && league == kTop) return Fate::kChampion;
  if (place == kFirst && league < kTop && screen.crossed[league]) return Fate::kGoesUp;
  if (place == kLast && league > 0 && screen.crossed[league - 1]) return Fate::kGoesDown;
  return Fate::kStays;
}

// The letter of LEAGUE.
QString Letter(std::size_t league) { return QString::fromStdString(LetterOf(kRanks[league])); }

// The season of TEAM by the final tables; no season for a team of none of them.
SeasonFate::Season SeasonOf(const FResults& screen, const QString& team) {
  const std::array<const ListBox*, kLeagues.size()> tables = {
      &screen.List6, &screen.List5, &screen.List4, &screen.List3, &screen.List2, &screen.List1};
  for (std::size_t league = 0; league < tables.size() && !team.isEmpty(); ++league) {
    for (int place = 0; place < tables[league]->ListCount(); ++place) {
      const std::string line = tables[league]->List(place);
      if (Shown(StandingsParts(line).team) != team) continue;
      const Fate fate = FateAfter(screen, league, place);
      const std::size_t next = fate == Fate::kGoesUp     ? league + 1
                               : fate == Fate::kGoesDown ? league - 1
                                                         : league;
      return {team, place + 1, Letter(league), Letter(next), fate};
    }
  }
  return {};
}

// Throws confetti over the head card whenever the screen comes up with a title for the user's team.
class Celebration : public QObject {
 public:
  Celebration(ScreenForm& form, std::function<bool()> due)
      : QObject(&form),
        confetti_(*new Confetti(Part<QWidget>(form, "look_champion"))),
        due_(std::move(due)) {
    form.installEventFilter(this);
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Show && !event->spontaneous() && due_()) confetti_.Throw();
    return false;
  }

 private:
  Confetti& confetti_;
  std::function<bool()> due_;
};

}  // namespace

void DecorateFResults(const FResults& screen, ScreenForm& form) {
  UsePosterFonts();
  const auto own_team = OwnTeam(screen);
  const auto mark = [&screen, &form, own_team] {
    const auto mark_team = [&](const char* name, std::size_t league, int place) {
      auto& label = Part<FateLabel>(form, name);
      label.SetFate(label.text().isEmpty() ? Fate::kStays : FateAfter(screen, league, place));
      label.SetOwn(label.text() == own_team());
    };
    for (std::size_t league = 0; league < kLeagues.size(); ++league) {
      mark_team(kLeagues[league].first, league, kFirst);
      mark_team(kLeagues[league].last, league, kLast);
    }
    Part<CrestMark>(form, "look_crest").SetTeam(QString::fromStdString(screen.Champ.Caption()));
    const SeasonFate::Season season = SeasonOf(screen, own_team());
    Part<SeasonFate>(form, "look_own_season").SetSeason(season);
    Part<SeasonFate>(form, "look_own_season").setVisible(!season.team.isEmpty());
    Part<QWidget>(form, "look_between").setVisible(!season.team.isEmpty());
  };
  mark();
  QObject::connect(&form, &ScreenForm::Refreshed, &form, mark);
  TellChampion(screen, form);
  new Celebration(
      form, [&screen, own_team] { return SeasonOf(screen, own_team()).fate == Fate::kChampion; });

  for (std::size_t league = 0; league < kLeagues.size(); ++league) {
    auto& list = Part<ListView>(form, kLeagues[league].table);
    const auto fate_of = [&screen, league](int place) { return FateAfter(screen, league, place); };
    list.setItemDelegate(new TeamDelegate(fate_of, own_team, &list));
    GiveRoom(list, 44, 6);
  }
  SetLook(Part<QLabel>(form, "Champ"), "role", "champion");
}

}  // namespace frostmark
