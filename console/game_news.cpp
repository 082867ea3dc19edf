#include "console/game_news.h"

#include <utility>

namespace frostmark {

GameNews::GameNews(Program& program, Tell tell)
    : program_(program),
      tell_(std::move(tell)),
      plays_([this](int index) { TellPlay(index); }),
      picks_([this](int index) { tell_(program_.f_draft.Events.List(index), false); }) {
  program.game.Events.SetObserver(&plays_);
  program.f_draft.Events.SetObserver(&picks_);
}

GameNews::~GameNews() {
  program_.game.Events.SetObserver(nullptr);
  program_.f_draft.Events.SetObserver(nullptr);
}

// What comes at the bottom of the play-by-play is out of view. A goal counts before it is told.
void GameNews::TellPlay(int index) {
  if (index != 0) return;
  const std::string score = Score();
  const bool lasting = !PeriodRuns() || (score != told_score_ && score != "0:0");
  told_score_ = score;
  tell_(program_.game.Events.List(index), lasting);
}

bool GameNews::PeriodRuns() const {
  const Game& game = program_.game;
  return game.Timer1.Enabled() || game.Timer2.Enabled() || game.Timer3.Enabled();
}

std::string GameNews::Score() const {
  return program_.game.Label3.Caption() + ":" + program_.game.Label4.Caption();
}

std::string GameNews::Status() const {
  const Game& game = program_.game;
  if (game.Visible() && PeriodRuns()) {
    const int period = game.Timer3.Enabled() ? 3 : game.Timer2.Enabled() ? 2 : 1;
    const ProgressBar& bar = period == 3 ? game.Period3 : period == 2 ? game.Period2 : game.Period1;
    return "P" + std::to_string(period) + " " + std::to_string(bar.Value() * 100 / bar.Max()) +
           "%  " + game.GHome.Caption() + " " + Score() + " " + game.GVisitor.Caption() + "  " +
           game.Events.List(0);
  }
  const FDraft& draft = program_.f_draft;
  if (draft.Visible() && !draft.Command1.Enabled()) {
    const int last = draft.Events.ListCount() - 1;
    return draft.CurRank.Caption() + ", " + draft.CurTeam.Caption() +
           (last < 0 ? "" : "  " + draft.Events.List(last));
  }
  return "";
}

}  // namespace frostmark
