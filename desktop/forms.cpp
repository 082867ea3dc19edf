#include "desktop/decorations.h"
#include "desktop/screen_form.h"
#include "program/program.h"
#include "ui_f_draft.h"
#include "ui_f_player.h"
#include "ui_f_results.h"
#include "ui_f_select_draft.h"
#include "ui_f_start_game.h"
#include "ui_franchise.h"
#include "ui_game.h"
#include "ui_startup.h"
#include "ui_team_creator.h"

namespace frostmark {
namespace {

// What the table below knows of each screen.
struct Look {
  const char* name;
  void (*set_up)(ScreenForm& form);
  void (*decorate)(const Screen& screen, ScreenForm& form);
};

template <class Form>
void SetUp(ScreenForm& form) {
  Form().setupUi(&form);
}

template <class Type, void (*kDecorate)(const Type&, ScreenForm&)>
void Decorate(const Screen& screen, ScreenForm& form) {
  kDecorate(static_cast<const Type&>(screen), form);
}

constexpr Look kLooks[] = {
    {"Startup", SetUp<Ui::Startup>, Decorate<Startup, DecorateStartup>},
    {"TeamCreator", SetUp<Ui::TeamCreator>, Decorate<TeamCreator, DecorateTeamCreator>},
    {"FStartGame", SetUp<Ui::FStartGame>, Decorate<FStartGame, DecorateFStartGame>},
    {"Game", SetUp<Ui::Game>, Decorate<Game, DecorateGame>},
    {"Franchise", SetUp<Ui::Franchise>, Decorate<Franchise, DecorateFranchise>},
    {"FPlayer", SetUp<Ui::FPlayer>, Decorate<FPlayer, DecorateFPlayer>},
    {"FResults", SetUp<Ui::FResults>, Decorate<FResults, DecorateFResults>},
    {"FDraft", SetUp<Ui::FDraft>, Decorate<FDraft, DecorateFDraft>},
    {"FSelectDraft", SetUp<Ui::FSelectDraft>, Decorate<FSelectDraft, DecorateFSelectDraft>},
};

const Look* LookOf(const Screen& screen) {
  for (const Look& look : kLooks) {
    if (screen.Name() == look.name) return &look;
  }
  return nullptr;
}

}  // namespace

void SetUpForm(const Screen& screen, ScreenForm& form) {
  const Look* look = LookOf(screen);
  if (look == nullptr) return;
  look->set_up(form);
  form.setAccessibleName(QString::fromStdString(screen.Title()));
}

void DecorateScreen(const Screen& screen, ScreenForm& form) {
  const Look* look = LookOf(screen);
  if (look != nullptr) look->decorate(screen, form);
}

}  // namespace frostmark
