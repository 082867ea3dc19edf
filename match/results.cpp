#include "program/program.h"
#include "records/lines/news_line.h"

namespace frostmark {
namespace {

constexpr int kNewsKept = 26;

bool IsUsers(const Franchise& franchise, const std::string& name1, const std::string& name2) {
  const std::string& user = franchise.TeamName.Caption();
  return user == name2 || user == name1;
}

void WatchGame(Program& program, const std::string& name1, const std::string& name2) {
  Franchise& franchise = program.franchise;
  Game& game = program.game;
  game.FranchiseMatch = true;
  program.hockey_naming.SetUpMatch(franchise.Team1, name1, franchise.Team2, name2);
  game.Show();
  game.HighButton1.Show();
  for (Label* label :
       {&franchise.OppTeam, &franchise.OppOverall, &franchise.OppOffense, &franchise.OppDefense}) {
    label->SetCaption("");
  }
  // The game runs in these waits, and its Close button leaves the scores.
  while (game.FranchiseMatch) program.front_end.Wait();
}

void SimulateUnwatched(Program& program) {
  Franchise& franchise = program.franchise;
  HockeyNaming& naming = program.hockey_naming;
  // The ratings have no bearing on the game; they are left for whoever reads them next.
  naming.RateTeam(franchise.Team1);
  franchise.Score1 = 0;
  naming.RateTeam(franchise.Team2);
  franchise.Score2 = 0;
  program.game_simulation.LoadGameLines(franchise.Team1, franchise.Team2);
  program.game_simulation.SimulateGame();
}

std::string Scores(int first, int second) {
  return std::to_string(first) + " - " + std::to_string(second);
}

// The user's own score always comes first.
void ShowOwnResult(Franchise& franchise, const std::string& name1, const std::string& name2) {
  const int score1 = franchise.Score1;
  const int score2 = franchise.Score2;
  const std::string& user = franchise.TeamName.Caption();
  Label& result = franchise.LooseOrWin;
  if (user == name1) {
    result.SetCaption((score1 > score2 ? "You won " : "You lost ") + Scores(score1, score2));
    franchise.Label19.SetCaption("vs " + name2);
  }
  if (user == name2) {
    result.SetCaption((score1 < score2 ? "You won " : "You lost ") + Scores(score2, score1));
    franchise.Label19.SetCaption("vs " + name1);
  }
  if (score1 == score2) result.SetCaption("You tied at " + std::to_string(score2));
}

void AddAlert(Franchise& franchise, const std::string& name1, const std::string& name2) {
  const int score1 = franchise.Score1;
  const int score2 = franchise.Score2;
  const Outcome outcome = score1 > score2   ? Outcome::kBeat
                          : score2 > score1 ? Outcome::kLost
                                            : Outcome::kTied;
  franchise.Alerts.AddItem(
      FormatNewsLine({name1, outcome, name2, std::to_string(score1), std::to_string(score2)}), 0);
}

}  // namespace

void Franchise::PlayGame(const std::string& name1, const std::string& name2,
                         const std::string& rank) {
  Ordvik& ordvik = program_.ordvik;
  const std::string path1 = ordvik.TeamPath("Rank " + rank, name1);
  const std::string path2 = ordvik.TeamPath("Rank " + rank, name2);
  Team1.Clear();
  Team2.Clear();
  ordvik.LoadPlayerFile(Team1, path1);
  ordvik.LoadPlayerFile(Team2, path2);
  if (IsUsers(*this, name1, name2) && !SimRunning) {
    WatchGame(program_, name1, name2);
  } else {
    SimulateUnwatched(program_);
  }
  for (ListBox* standings : StatRankLists()) {
    if (standings->Name() != "StatRank" + rank) continue;
    SetStandings(*standings, name1, name2);
    TrainThem(Team1, path1);
    TrainThem(Team2, path2);
  }
  if (IsUsers(*this, name1, name2)) ShowOwnResult(*this, name1, name2);
  AddAlert(*this, name1, name2);
}

void Franchise::SetStandings(RecordList& list, const std::string& name1, const std::string& name2) {
  const bool tie = Score1 == Score2;
  const std::string& first = Score1 > Score2 ? name1 : name2;
  const std::string& second = Score1 > Score2 ? name2 : name1;
  // A name is looked for as a part of the line. The first search stops at its first hit; the second
  // goes on, so a team whose name lies in another's counts in both lines.
  const int count = list.ListCount();
  for (int i = 0; i < count; ++i) {
    if (Ordvik::ContainsText(1, list.List(i), first)) {
      list.SetList(i, HockeyNaming::CountResult(list.List(i), tie ? "Tie" : "Win"));
      break;
    }
    program_.front_end.Yield();
  }
  const int count_again = list.ListCount();
  for (int i = 0; i < count_again; ++i) {
    if (Ordvik::ContainsText(1, list.List(i), second)) {
      list.SetList(i, HockeyNaming::CountResult(list.List(i), tie ? "Tie" : "Lose"));
    }
    program_.front_end.Yield();
  }
}

// The walk goes upward on purpose while the lines after it move up: of the old news every second
// line goes, so that they thin out over the weeks and do not end all at once.
void Franchise::TrimAlerts() {
  if (Alerts.ListCount() <= kNewsKept) return;
  const int count = Alerts.ListCount();
  for (int i = 0; i < count; ++i) {
    if (i >= kNewsKept && !Alerts.List(i).empty()) Alerts.RemoveItem(i);
    program_.front_end.Yield();
  }
}

}  // namespace frostmark
