#include <utility>

#include "match/chances.h"
#include "program/program.h"
#include "records/pair_search.h"

namespace frostmark {
namespace {

constexpr int kPeriods = 3;
constexpr int kStepsOfGame = kPeriods * Game::kStepsOfPeriod;

// Positions are looked for in the whole record, so a name with the two capitals in it counts too.
bool Plays(const std::string& record, std::string_view position) {
  if (position.size() == 2) return ContainsPair(record, position);
  return Ordvik::ContainsText(1, record, position);
}

Int16 Rating(const std::string& record, Field field) {
  return StrictInt16(FieldView(record, field));
}

void CopyLeadLine(UiQueue& queue, const RecordList& roster, RecordList& line) {
  const int count = roster.ListCount();
  for (int i = 0; i < count; ++i) {
    if (FieldView(roster.List(i), Field::kTraining) == "N") line.AddItemOf(roster, i);
    queue.Yield();
  }
}

// Puts the record of the last player of LINE at POSITION into FOUND, if there is one: the first in
// the team's own order, since the lists on the ice are reversed.
void FindPlayer(UiQueue& queue, const RecordList& line, std::string_view position,
                std::string& found) {
  const int count = line.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(line.List(i), position)) found = line.List(i);
    queue.Yield();
  }
}

void NotePasser(Program& program) {
  GameSimulation& game = program.game_simulation;
  const RecordList& line = program.franchise.LineList;
  const int count = line.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(line.List(i), game.PuckPosition)) {
      game.PasserName = FieldView(game.PuckCarrier, Field::kName);
    }
    program.front_end.Yield();
  }
}

void PassAlong(Program& program) {
  GameSimulation& game = program.game_simulation;
  const RecordList& line = program.franchise.LineList;
  const int count = line.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(line.List(i), game.PuckPosition)) game.PuckCarrier = line.List(i);
    program.front_end.Yield();
  }
}

void MeetDefender(Program& program, std::string_view position, Int16& defense) {
  GameSimulation& game = program.game_simulation;
  const RecordList& line = program.franchise.DefList;
  const int count = line.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(line.List(i), position)) {
      game.Defender = line.List(i);
      defense = Rating(game.Defender, Field::kDefense);
    }
    program.front_end.Yield();
  }
}

}  // namespace

GameSimulation::GameSimulation(Program& program) : program_(program) {}

void GameSimulation::LoadGameLines(const RecordList& list1, const RecordList& list2) {
  Franchise& lists = program_.franchise;
  lists.Line1Stats.Clear();
  lists.Line2Stats.Clear();
  GoalsTeam1 = 0;
  GoalsTeam2 = 0;
  CopyLeadLine(program_.front_end, list1, lists.Line1Stats);
  CopyLeadLine(program_.front_end, list2, lists.Line2Stats);
}

void GameSimulation::SimulateGame() {
  FaceOff();
  for (int step = 0; step < kStepsOfGame; ++step) {
    PlayStep();
    program_.front_end.Yield();
  }
  // A level score stays a tie, and a possession under way is dropped.
  program_.franchise.Score1 = GoalsTeam1;
  program_.franchise.Score2 = GoalsTeam2;
}

void GameSimulation::LoadIceLists() {
  Franchise& lists = program_.franchise;
  lists.LineList.Clear();
  lists.DefList.Clear();
  if (PuckTeam != 1 && PuckTeam != 2) return;
  RecordList& first = PuckTeam == 1 ? lists.LineList : lists.DefList;
  RecordList& second = PuckTeam == 1 ? lists.DefList : lists.LineList;
  // The team with the puck sets the length of both: a shorter line leaves empty items behind.
  const RecordList& leading = PuckTeam == 1 ? lists.Line1Stats : lists.Line2Stats;
  for (int i = leading.ListCount() - 1; i >= 0; --i) {
    first.AddItemOf(lists.Line1Stats, i);
    second.AddItemOf(lists.Line2Stats, i);
    program_.front_end.Yield();
  }
}

void GameSimulation::PlayStep() {
  LoadIceLists();
  if (PassesLeft == kFaceOffDue) return FaceOff();
  if (PassesLeft == kOutletDue) return OutletStep();
  if (PassesLeft == kShotDue) return ShotStep();
  const int side = program_.ordvik.RollUpTo(kToss);
  // The pass is finished all the same, so one of the new face-off's passes is gone with it.
  if (PuckCarrier.empty()) FaceOff();
  NotePasser(program_);
  AimPass(program_.ordvik, side, PuckPosition);
  PassAlong(program_);
  PassesLeft -= 1;
}

void GameSimulation::FaceOff() {
  const RecordList& line1 = program_.franchise.Line1Stats;
  const RecordList& line2 = program_.franchise.Line2Stats;
  // The records themselves and not their places: a handler may clear the lines meanwhile.
  std::string center1 = std::exchange(spare_centers_[0], {});
  std::string center2 = std::exchange(spare_centers_[1], {});
  center1.clear();
  center2.clear();
  FindPlayer(program_.front_end, line1, "CF", center1);
  FindPlayer(program_.front_end, line2, "CF", center2);
  // A line without a center sends its right forward; one without either sends nobody.
  if (center1.empty()) FindPlayer(program_.front_end, line1, "RF", center1);
  if (center2.empty()) FindPlayer(program_.front_end, line2, "RF", center2);
  const bool first_wins = program_.ordvik.RollUpTo(kToss) == 1;
  PuckCarrier = first_wins ? center1 : center2;
  spare_centers_[0] = std::move(center1);
  spare_centers_[1] = std::move(center2);
  PuckTeam = first_wins ? 1 : 2;
  LoadIceLists();
  // PuckPosition stays on purpose: the first pass starts from where play last stood.
  PassesLeft = program_.ordvik.RollUpTo(kFaceOffPassesDie);
}

void GameSimulation::OutletStep() {
  LoadIceLists();
  NotePasser(program_);
  AimOutletPass(program_.ordvik, Plays(Defender, "GO"), PuckPosition);
  PassAlong(program_);
  PassesLeft = program_.ordvik.RollUpTo(kOutletPassesDie);
}

// A shot that misses, or that the goalie lets slip away without a save, changes nothing: the same
// carrier shoots again at the next step.
void GameSimulation::ShotStep() {
  Ordvik& ordvik = program_.ordvik;
  LoadIceLists();
  Int16 defense = 0;
  Int16 shooting = 0;
  const char* const side = RollDefender(ordvik);
  DefenderPosition = side;
  MeetDefender(program_, side, defense);
  const int shot = ordvik.RollUpTo(kShotDie);
  if (PuckCarrier.empty()) {
    FaceOff();
  } else {
    shooting = Rating(PuckCarrier, Field::kShooting);
  }
  if (shot > shooting) return;
  if (ordvik.RollUpTo(kStealDie) <= defense) return TurnOver();
  ordvik.RollUpTo(kFlightDie);
  MeetDefender(program_, "GO", defense);
  if (ordvik.RollUpTo(kSlipDie) > defense) return;
  if (ordvik.RollUpTo(kSaveDie) <= defense) return TurnOver();
  if (PuckTeam == 1) GoalsTeam1 += 1;
  if (PuckTeam == 2) GoalsTeam2 += 1;
  PassesLeft = kFaceOffDue;
}

void GameSimulation::TurnOver() {
  PasserName = FieldView(PuckCarrier, Field::kName);
  PuckCarrier = Defender;
  PuckTeam = PuckTeam == 1 ? 2 : 1;
  LoadIceLists();
  PassesLeft = kOutletDue;
}

}  // namespace frostmark
