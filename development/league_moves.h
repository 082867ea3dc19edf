#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "records/leagues.h"
#include "records/ordvik.h"

namespace frostmark {

// Border 0 lies between "Rank F" and "Rank E"; border 4 below "Rank A".
inline constexpr std::size_t kBorders = kRankCount - 1;

// The teams that change places across the five borders at a season's end. Both teams of a border
// move or none does: one alone would leave a league of seven and one of five, in which no week can
// be played. The moves are on the disk as a plan before the first of them, so that a season's end
// cut off anywhere is finished later.
//
// A team's file says how far its move has got:
//
//   in its old league | in its new one | the move is
//   yes               | any            | due
//   no                | yes            | done
//   no                | no             | lost: the team is nowhere
//
// and the two moves of a border say whether that is open, that is, whether they are made at all:
//
//   up   | down | the border is
//   due  | due  | open
//   done | done | open, with nothing left to do
//   lost | any  | closed, and so the other way round
//   due  | done | open only if the leagues above it have one team too few
//   done | due  | open only if they have one too many
//
// One of the two is done already when the tables are older than the folders: after a season's end
// that was never saved.
class LeagueMoves {
 public:
  // The winner of the league below a border and the loser of the one above. "" is nobody.
  struct Border {
    std::string up;
    std::string down;
  };
  using Borders = std::array<Border, kBorders>;

  // SIZES: how many teams each league has, from "Rank F" to "Rank A".
  LeagueMoves(Ordvik& ordvik, Borders borders, const std::array<int, kRankCount>& sizes);

  // Puts the moves down on the disk. Where that is not possible they are made all the same.
  void WriteDown();
  // Moves the border's team up, or down. False when it stays: the border is closed, or the file
  // could not be moved. The border is then closed for its other team too; one that has moved up
  // before goes back.
  bool MoveUp(std::size_t border);
  bool MoveDown(std::size_t border);
  // Whether the border was open at first and has been closed since.
  bool TakenBack(std::size_t border) const { return planned_[border] && !open_[border]; }
  // After both moves: whether the two teams of the border have changed places.
  bool Crossed(std::size_t border) const { return open_[border]; }
  // To be called after the last move: removes the plan, unless a border has one team too many on a
  // side, for it could be neither finished nor taken back. The plan is then left for later.
  void Finish();

 private:
  Ordvik& ordvik_;
  Borders borders_;
  std::array<bool, kBorders> planned_{};
  std::array<bool, kBorders> open_{};
  // Not read off the files: a team of the same name in another league may stand where one has left.
  bool stuck_ = false;
};

// Makes the moves of a season's end that was cut off. A border that cannot be finished is taken
// back. False when neither was possible; the plan is then kept for the next time.
bool FinishLeagueMoves(Ordvik& ordvik);

// Forgets such moves: their teams are gone.
void ForgetLeagueMoves(const Ordvik& ordvik);

}  // namespace frostmark
