#include "development/league_moves.h"
#include "program/program.h"

namespace frostmark {

bool Program::FinishCutOffWork() {
  const bool moved = FinishLeagueMoves(ordvik);
  const bool saved = ordvik.files().FinishSaves();
  return saved && moved && !under_way.IsUnsavedBeginning();
}

void Program::ForgetCutOffMoves() { ForgetLeagueMoves(ordvik); }

}  // namespace frostmark
