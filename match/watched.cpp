#include "match/chances.h"
#include "program/program.h"
#include "records/lines/play_line.h"

// The watched match machine. It rolls as the unwatched one does, but stands on this screen's own
// lists and score, tells what happens, and treats an empty center its own way.

namespace frostmark {
namespace {

bool Plays(const std::string& record, std::string_view position) {
  return Ordvik::ContainsText(1, record, position);
}

std::string_view NameOf(const std::string& record) { return FieldView(record, Field::kName); }

// Puts LINE on top of the play-by-play.
void Report(Game& game, const PlayLine& line) { game.Events.AddItem(FormatPlayLine(line), 0); }

// The last of LINE at "CF". The record itself and not its place: a handler may clear the line
// meanwhile.
std::string FindCenter(UiQueue& queue, const RecordList& line) {
  std::string found;
  const int count = line.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(line.List(i), "CF")) found = line.List(i);
    queue.Yield();
  }
  return found;
}

void NotePasser(Game& game, UiQueue& queue) {
  const int count = game.LineList.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(game.LineList.List(i), game.PuckPosition)) game.PasserName = NameOf(game.PuckCarrier);
    queue.Yield();
  }
}

// Every player at the position takes over in turn and is reported, so without a position, in the
// first game of a run, the puck goes all along the line in one step.
void PassAlong(Game& game, UiQueue& queue, Play pass) {
  const int count = game.LineList.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(game.LineList.List(i), game.PuckPosition)) {
      game.PuckCarrier = game.LineList.List(i);
      Report(game, {pass, game.PasserName, NameOf(game.PuckCarrier)});
    }
    queue.Yield();
  }
}

void MeetDefender(Game& game, UiQueue& queue, std::string_view position, Int16& defense) {
  const int count = game.DefList.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(game.DefList.List(i), position)) {
      game.Defender = game.DefList.List(i);
      defense = StrictInt16(FieldView(game.Defender, Field::kDefense));
    }
    queue.Yield();
  }
}

void ScoreGoal(Game& game) {
  if (game.PuckTeam == 1 || game.PuckTeam == 2) {
    Label& score = game.Goals(game.PuckTeam);
    score.SetCaption(WholeNumberText(LenientNumber(score.Caption()) + 1));
  }
  game.PassesLeft = kFaceOffDue;
  Report(game, {Play::kGoal, NameOf(game.PuckCarrier), game.PasserName});
}

}  // namespace

void Game::LoadIceLists() {
  LineList.Clear();
  DefList.Clear();
  if (PuckTeam != 1 && PuckTeam != 2) return;
  RecordList& first = PuckTeam == 1 ? LineList : DefList;
  RecordList& second = PuckTeam == 1 ? DefList : LineList;
  const RecordList& leading = PuckTeam == 1 ? Line1Stats : Line2Stats;
  for (int i = leading.ListCount() - 1; i >= 0; --i) {
    first.AddItem(Line1Stats.List(i));
    second.AddItem(Line2Stats.List(i));
    program_.front_end.Yield();
  }
}

void Game::PlayStep() {
  LoadIceLists();
  if (PassesLeft == kFaceOffDue) return FaceOff();
  if (PassesLeft == kOutletDue) return OutletStep();
  if (PassesLeft == kShotDue) return ShotStep();
  const int side = program_.ordvik.RollUpTo(kToss);
  // An empty carrier passes like anybody else here: the crowd sees a pass from no one.
  NotePasser(*this, program_.front_end);
  AimPass(program_.ordvik, side, PuckPosition);
  PassAlong(*this, program_.front_end, Play::kPass);
  PassesLeft -= 1;
}

// No right forward stands in for a missing center here: that team's center is nobody.
void Game::FaceOff() {
  const std::string center1 = FindCenter(program_.front_end, Line1Stats);
  const std::string center2 = FindCenter(program_.front_end, Line2Stats);
  const bool first_wins = program_.ordvik.RollUpTo(kToss) == 1;
  PuckCarrier = first_wins ? center1 : center2;
  PuckTeam = first_wins ? 1 : 2;
  LoadIceLists();
  Report(*this, {Play::kFaceOff, NameOf(PuckCarrier)});
  PassesLeft = program_.ordvik.RollUpTo(kFaceOffPassesDie);
}

void Game::OutletStep() {
  LoadIceLists();
  NotePasser(*this, program_.front_end);
  AimOutletPass(program_.ordvik, Plays(Defender, "GO"), PuckPosition);
  PassAlong(*this, program_.front_end, Play::kOutletPass);
  PassesLeft = program_.ordvik.RollUpTo(kOutletPassesDie);
}

void Game::ShotStep() {
  Ordvik& ordvik = program_.ordvik;
  LoadIceLists();
  Int16 defense = 0;
  const char* const side = RollDefender(ordvik);
  DefenderPosition = side;
  MeetDefender(*this, program_.front_end, side, defense);
  const int shot = ordvik.RollUpTo(kShotDie);
  // A shot by nobody has no Shooting to read, and that ends the program.
  const int shooting = StrictInt16(FieldView(PuckCarrier, Field::kShooting));
  if (shot > shooting) return;
  if (ordvik.RollUpTo(kStealDie) <= defense) return TurnOver(Play::kSteal);
  ordvik.RollUpTo(kFlightDie);
  MeetDefender(*this, program_.front_end, "GO", defense);
  if (ordvik.RollUpTo(kSlipDie) > defense) return;
  if (ordvik.RollUpTo(kSaveDie) <= defense) return TurnOver(Play::kSave);
  ScoreGoal(*this);
}

void Game::TurnOver(Play how) {
  Report(*this, {how, NameOf(Defender), NameOf(PuckCarrier)});
  PasserName = NameOf(PuckCarrier);
  PuckCarrier = Defender;
  PuckTeam = PuckTeam == 1 ? 2 : 1;
  LoadIceLists();
  PassesLeft = kOutletDue;
}

}  // namespace frostmark
