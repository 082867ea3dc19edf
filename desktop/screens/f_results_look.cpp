#include <QLabel>
#include <QPushButton>
#include <array>

#include "desktop/decorations.h"
#include "desktop/delegates/team_delegate.h"
#include "desktop/fonts.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/screens/own_team.h"
#include "desktop/screens/spoken_news.h"
#include "desktop/widgets/fate_label.h"
#include "desktop/widgets/roles.h"
#include "desktop/widgets/room.h"
#include "draft/f_results.h"

namespace frostmark {

namespace {

// A label that names a team, and what the season brought it.
struct Named {
  const char* label;
  Fate fate;
};

// Who is named where, from "Rank A" down.
constexpr std::array kNamed = {
    Named{"Label5", Fate::kChampion}, Named{"Label6", Fate::kGoesDown},
    Named{"Label16", Fate::kGoesUp},  Named{"Label15", Fate::kGoesDown},
    Named{"Label8", Fate::kGoesUp},   Named{"Label7", Fate::kGoesDown},
    Named{"Label20", Fate::kGoesUp},  Named{"Label19", Fate::kGoesDown},
    Named{"Label12", Fate::kGoesUp},  Named{"Label11", Fate::kGoesDown},
    Named{"Label24", Fate::kGoesUp},  Named{"Label23", Fate::kStays},
};

constexpr std::array kTables = {"List1", "List2", "List3", "List4", "List5", "List6"};

}  // namespace

void DecorateFResults(FResults& screen, ScreenForm& form) {
  UsePosterFonts();
  const auto own_team = OwnTeam(screen);
  for (const Named& named : kNamed) Part<FateLabel>(form, named.label).SetFate(named.fate);
  const auto mark_own = [&form, own_team] {
    for (const Named& named : kNamed) {
      auto& label = Part<FateLabel>(form, named.label);
      label.SetOwn(label.text() == own_team());
    }
  };
  mark_own();
  QObject::connect(&form, &ScreenForm::Refreshed, &form, mark_own);
  TellChampion(screen, form);

  for (std::size_t i = 0; i < kTables.size(); ++i) {
    const League league = i == 0                    ? League::kTop
                          : i + 1 == kTables.size() ? League::kBottom
                                                    : League::kMiddle;
    auto& list = Part<ListView>(form, kTables[i]);
    list.setItemDelegate(new TeamDelegate(league, own_team, &list));
    GiveRoom(list, 44, 6);
  }
  SetLook(Part<QLabel>(form, "Champ"), "role", "champion");
  Part<QPushButton>(form, "Command1").setFocus();
}

}  // namespace frostmark
