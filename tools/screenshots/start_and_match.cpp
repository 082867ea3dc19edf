#include "tools/screenshots/album.h"

namespace frostmark {
namespace {

constexpr std::chrono::milliseconds kBannerTime{2000};

void ChooseTeams(FStartGame& screen) {
  screen.List3.Select(0);
  screen.File1.Select(2);
  screen.List4.Select(0);
  screen.File2.Select(4);
}

}  // namespace

void TakeStartAndMatch(Album& album) {
  Program& program = album.program();
  Startup& startup = program.startup;
  program.Start();
  album.Take(startup, "startup");

  startup.HighButton2.Click();
  startup.HighButton4.Click();
  startup.HighButton7.Click();
  album.Take(startup, "create-a-team");
  startup.Label3.Click();

  startup.Label2.Click();
  program.team_creator.Command2.Click();
  program.team_creator.List1.SetListIndex(3);
  album.Take(program.team_creator, "team-creator");
  program.team_creator.Hide();

  startup.HighButton1.Click();
  ChooseTeams(program.f_start_game);
  album.Take(program.f_start_game, "choose-teams");

  program.f_start_game.HighButton1.Click();
  Game& game = program.game;
  album.Take(game, "game-rosters");
  game.XTab1.SetFront(1);
  game.HighButton1.Click();
  Album::Run(game.Timer1, 201);
  game.HighButton1.Click();
  Album::Run(game.Timer2, 90);
  // The banners of the goals so far go.
  game.Timer2.Disable();
  Album::LetPass(kBannerTime);
  album.Take(game, "game");
  game.Timer2.Enable();
  // On to the next goal, which is marked for a moment.
  const std::string home = game.Label3.Caption();
  const std::string visitor = game.Label4.Caption();
  while (game.Timer2.Enabled() && game.Label3.Caption() == home &&
         game.Label4.Caption() == visitor) {
    Album::Run(game.Timer2, 1);
  }
  game.Timer2.Disable();
  Album::LetPass(kBannerTime / 4);  // it sweeps in
  album.Take(game, "game-goal");
  game.Label5.Click();
}

}  // namespace frostmark
