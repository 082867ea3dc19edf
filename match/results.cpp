#include "program/program.h"
#include "records/lines/news_line.h"
#include "records/lines/standings_line.h"

namespace frostmark {

void Franchise::PlayGame(const std::string& name1, const std::string& name2,
                         const std::string& rank) {
  Ordvik& ordvik = program_.ordvik;
  const std::string path1 = ordvik.TeamPath("Rank " + rank, name1);
  const std::string path2 = ordvik.TeamPath("Rank " + rank, name2);
  Team1.Clear();
  Team2.Clear();
  ordvik.LoadPlayerFile(Team1, path1);
  ordvik.LoadPlayerFile(Team2, path2);
  if (IsUsers(name1, name2) && !SimRunning) {
    WatchGame(name1, name2);
  } else {
    SimulateUnwatched();
  }
  for (ListBox* standings : StatRankLists()) {
    if (standings->Name() != "StatRank" + rank) continue;
    SetStandings(*standings, name1, name2);
    TrainThem(Team1, path1);
    TrainThem(Team2, path2);
  }
  if (IsUsers(name1, name2)) ShowOwnResult(name1, name2);
  AddAlert(name1, name2);
}

bool Franchise::IsUsers(const std::string& name1, const std::string& name2) const {
  return TeamName.Caption() == name2 || TeamName.Caption() == name1;
}

void Franchise::WatchGame(const std::string& name1, const std::string& name2) {
  Game& game = program_.game;
  game.FranchiseMatch = true;
  program_.hockey_naming.SetUpMatch(Team1, name1, Team2, name2);
  game.Show();
  game.HighButton1.Show();
  for (Label* label : {&OppTeam, &OppOverall, &OppOffense, &OppDefense}) label->SetCaption("");
  // The game runs in these waits, and its Close button leaves the scores.
  while (game.FranchiseMatch) program_.desktop.Wait();
}

void Franchise::SimulateUnwatched() {
  HockeyNaming& naming = program_.hockey_naming;
  // The ratings have no bearing on the game; they are left for whoever reads them next.
  naming.RateTeam(Team1);
  Score1 = 0;
  naming.RateTeam(Team2);
  Score2 = 0;
  program_.game_simulation.LoadGameLines(Team1, Team2);
  program_.game_simulation.SimulateGame();
}

namespace {

std::string Scores(int first, int second) {
  return std::to_string(first) + " - " + std::to_string(second);
}

}  // namespace

// The user's own score always comes first.
void Franchise::ShowOwnResult(const std::string& name1, const std::string& name2) {
  if (TeamName.Caption() == name1) {
    LooseOrWin.SetCaption((Score1 > Score2 ? "You won " : "You lost ") + Scores(Score1, Score2));
    Label19.SetCaption("vs " + name2);
  }
  if (TeamName.Caption() == name2) {
    LooseOrWin.SetCaption((Score1 < Score2 ? "You won " : "You lost ") + Scores(Score2, Score1));
    Label19.SetCaption("vs " + name1);
  }
  if (Score1 == Score2) LooseOrWin.SetCaption("You tied at " + std::to_string(Score2));
}

void Franchise::AddAlert(const std::string& name1, const std::string& name2) {
  const Outcome outcome = Score1 > Score2   ? Outcome::kBeat
                          : Score2 > Score1 ? Outcome::kLost
                                            : Outcome::kTied;
  Alerts.AddItem(
      FormatNewsLine({name1, outcome, name2, std::to_string(Score1), std::to_string(Score2)}), 0);
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
    program_.desktop.Yield();
  }
  const int count_again = list.ListCount();
  for (int i = 0; i < count_again; ++i) {
    if (Ordvik::ContainsText(1, list.List(i), second)) {
      list.SetList(i, HockeyNaming::CountResult(list.List(i), tie ? "Tie" : "Lose"));
    }
    program_.desktop.Yield();
  }
}

namespace {

Int16 CountOf(std::string_view part) {
  std::string digits(part);
  std::erase(digits, '(');
  return StrictInt16(digits);
}

}  // namespace

std::string HockeyNaming::CountResult(std::string_view line, std::string_view kind) {
  const StandingsLine parts = StandingsParts(line);
  Int16 wins = CountOf(parts.wins);
  Int16 losses = CountOf(parts.losses);
  Int16 ties = CountOf(parts.ties);
  if (kind == "Win") {
    wins += 1;
  } else if (kind == "Lose") {
    losses += 1;
  } else if (kind == "Tie") {
    ties += 1;
  } else {
    return {};
  }
  return FormatStandingsLine(wins, losses, ties, parts.team);
}

// The walk goes upward on purpose while the lines move up behind it: of the old news every second
// line goes, so that they thin out over the weeks and do not end all at once.
void Franchise::TrimAlerts() {
  constexpr int kLastSafe = 25;
  if (Alerts.ListCount() - 1 <= kLastSafe) return;
  const int count = Alerts.ListCount();
  for (int i = 0; i < count; ++i) {
    if (i > kLastSafe && !Alerts.List(i).empty()) Alerts.RemoveItem(i);
    program_.desktop.Yield();
  }
}

}  // namespace frostmark
