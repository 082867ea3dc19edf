#include "shell/program.h"

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
  const std::string score1 = std::to_string(Score1);
  const std::string score2 = std::to_string(Score2);
  if (Score1 > Score2) {
    Alerts.AddItem(name1 + " beat " + name2 + " " + score1 + " to " + score2, 0);
  } else if (Score2 > Score1) {
    Alerts.AddItem(name1 + " lost to " + name2 + " " + score1 + " to " + score2, 0);
  } else {
    Alerts.AddItem(name1 + " tied " + name2 + " at " + score1, 0);
  }
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

// Part INDEX of TEXT split at every "-"; empty when there are fewer.
std::string_view DashPart(std::string_view text, int index) {
  for (; index > 0; --index) {
    const std::size_t dash = text.find('-');
    if (dash == std::string_view::npos) return {};
    text.remove_prefix(dash + 1);
  }
  return text.substr(0, text.find('-'));
}

Int16 CountOf(std::string_view part) {
  std::string digits(part);
  std::erase(digits, '(');
  return StrictInt16(digits);
}

}  // namespace

std::string HockeyNaming::CountResult(std::string_view line, std::string_view kind) {
  Int16 wins = CountOf(DashPart(line, 0));
  Int16 losses = CountOf(DashPart(line, 1));
  const std::string_view last = DashPart(line, 2);
  const std::size_t bracket = last.find(')');
  Int16 ties = CountOf(bracket == std::string_view::npos ? "" : last.substr(0, bracket));
  if (kind == "Win") {
    wins += 1;
  } else if (kind == "Lose") {
    losses += 1;
  } else if (kind == "Tie") {
    ties += 1;
  } else {
    return {};
  }
  return "(" + std::to_string(wins) + "-" + std::to_string(losses) + "-" + std::to_string(ties) +
         ") " + TeamOfLine(line);
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
