#include "match/game.h"
#include "program/program.h"

// The watched match machine. It rolls as the unwatched one does, but stands on this screen's own
// lists and score, tells what happens, and treats an empty centre its own way.

namespace frostmark {
namespace {

constexpr int kFaceOffDue = -2;
constexpr int kOutletDue = -1;
constexpr int kShotDue = 0;

bool Plays(const std::string& record, std::string_view position) {
  return Ordvik::ContainsText(1, record, position);
}

std::string_view NameOf(const std::string& record) { return FieldView(record, Field::kName); }

}  // namespace

void Game::Report(const PlayLine& line) { Events.AddItem(FormatPlayLine(line), 0); }

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
    program_.desktop.Yield();
  }
}

void Game::PlayStep() {
  LoadIceLists();
  if (PassesLeft == kFaceOffDue) return FaceOff();
  if (PassesLeft == kOutletDue) return OutletStep();
  if (PassesLeft == kShotDue) return ShotStep();
  const int side = program_.ordvik.RollUpTo(2);
  // An empty carrier passes like anybody else here: the crowd sees a pass from no one.
  NotePasser();
  if (PuckPosition == "RF") {
    PuckPosition = side == 1 ? "CF" : "LF";
  } else if (PuckPosition == "CF") {
    PuckPosition = side == 1 ? "RF" : "LF";
  } else if (PuckPosition == "LF") {
    PuckPosition = side == 1 ? "CF" : "RF";
  } else {
    const int forward = program_.ordvik.RollUpTo(3);
    if (PuckPosition == "RD" || PuckPosition == "LD") {
      PuckPosition = forward == 1 ? "LF" : forward == 2 ? "CF" : "RF";
    }
  }
  PassAlong(Play::kPass);
  PassesLeft -= 1;
}

void Game::NotePasser() {
  const int count = LineList.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(LineList.List(i), PuckPosition)) PasserName = NameOf(PuckCarrier);
    program_.desktop.Yield();
  }
}

// Every player at the position takes over in turn and is reported, so without a position, in the
// first game of a run, the puck goes all along the line in one step.
void Game::PassAlong(Play pass) {
  const int count = LineList.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(LineList.List(i), PuckPosition)) {
      PuckCarrier = LineList.List(i);
      Report({pass, PasserName, NameOf(PuckCarrier)});
    }
    program_.desktop.Yield();
  }
}

// The record itself and not its place: a handler may clear the line meanwhile.
std::string Game::FindCentre(const RecordList& line) {
  std::string found;
  const int count = line.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(line.List(i), "CF")) found = line.List(i);
    program_.desktop.Yield();
  }
  return found;
}

// No right forward stands in for a missing centre here: that team's centre is nobody.
void Game::FaceOff() {
  const std::string centre1 = FindCentre(Line1Stats);
  const std::string centre2 = FindCentre(Line2Stats);
  const bool first_wins = program_.ordvik.RollUpTo(2) == 1;
  PuckCarrier = first_wins ? centre1 : centre2;
  PuckTeam = first_wins ? 1 : 2;
  LoadIceLists();
  Report({Play::kFaceOff, NameOf(PuckCarrier)});
  PassesLeft = program_.ordvik.RollUpTo(6);
}

void Game::OutletStep() {
  LoadIceLists();
  NotePasser();
  if (Plays(Defender, "GO")) {
    PuckPosition = program_.ordvik.RollUpTo(2) == 1 ? "RD" : "LD";
  } else {
    const int forward = program_.ordvik.RollUpTo(3);
    PuckPosition = forward == 1 ? "RF" : forward == 2 ? "CF" : "LF";
  }
  PassAlong(Play::kOutletPass);
  PassesLeft = program_.ordvik.RollUpTo(4);
}

void Game::MeetDefender(std::string_view position, Int16& defense) {
  const int count = DefList.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Plays(DefList.List(i), position)) {
      Defender = DefList.List(i);
      defense = StrictInt16(FieldView(Defender, Field::kDefense));
    }
    program_.desktop.Yield();
  }
}

void Game::ShotStep() {
  Ordvik& ordvik = program_.ordvik;
  LoadIceLists();
  Int16 defense = 0;
  const char* const side = ordvik.RollUpTo(2) == 1 ? "RD" : "LD";
  DefenderPosition = side;
  MeetDefender(side, defense);
  const int shot = ordvik.RollUpTo(100);
  // A shot by nobody has no Shooting to read, and that ends the program.
  const int shooting = StrictInt16(FieldView(PuckCarrier, Field::kShooting));
  if (shot > shooting) return;
  if (ordvik.RollUpTo(110) <= defense) return TurnOver(Play::kSteal);
  ordvik.RollUpTo(100);  // the puck on its way to the goalie: rolled, and used by nothing
  MeetDefender("GO", defense);
  if (ordvik.RollUpTo(100) > defense) return;
  if (ordvik.RollUpTo(105) <= defense) return TurnOver(Play::kSave);
  Goal();
}

void Game::Goal() {
  if (PuckTeam == 1 || PuckTeam == 2) {
    Label& score = Goals(PuckTeam);
    score.SetCaption(WholeNumberText(LenientNumber(score.Caption()) + 1));
  }
  PassesLeft = kFaceOffDue;
  Report({Play::kGoal, NameOf(PuckCarrier), PasserName});
}

void Game::TurnOver(Play how) {
  Report({how, NameOf(Defender), NameOf(PuckCarrier)});
  PasserName = NameOf(PuckCarrier);
  PuckCarrier = Defender;
  PuckTeam = PuckTeam == 1 ? 2 : 1;
  LoadIceLists();
  PassesLeft = kOutletDue;
}

}  // namespace frostmark
