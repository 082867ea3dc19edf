#include "tests/reference/reference_game.h"

namespace frostmark::reference {

void ReferenceGame::SetUpMatch(const Lines& list1, const std::string& name1, const Lines& list2,
                               const std::string& name2) {
  captions["Game.RHome"] = name1;
  captions["Game.GHome"] = name1;
  captions["Game.RVisitor"] = name2;
  captions["Game.GVisitor"] = name2;
  watched.events.clear();
  watched.goals_home = "0";
  watched.goals_visitor = "0";
  lists["Game.Line1"].clear();
  lists["Game.Line2"].clear();
  watched.line1_stats.clear();
  watched.line2_stats.clear();
  const std::map<std::string, std::string> labels = {{"GO", "Goalie"}, {"RD", "RDef"},
                                                     {"LD", "LDef"},   {"RF", "RFor"},
                                                     {"CF", "Center"}, {"LF", "LFor"}};
  const auto put_on_rink = [&](const std::string& record, Lines& stats, Lines& shown, char side) {
    if (GetField(record, "Training") != "N") return;
    const std::string position = GetField(record, "Position");
    const std::string overall = GetField(record, "Overall");
    stats.push_back(record);
    shown.push_back(position + " - " + GetField(record, "Name") + " (" + overall + ")");
    const auto label = labels.find(position);
    if (label != labels.end()) captions[std::string("Game.") + side + label->second] = overall;
  };
  for (const std::string& record : list1) {
    put_on_rink(record, watched.line1_stats, lists["Game.Line1"], 'v');
  }
  for (const std::string& record : list2) {
    put_on_rink(record, watched.line2_stats, lists["Game.Line2"], 'h');
  }
  period_steps = {};
  timer_runs = {};
}

void ReferenceGame::PressStart() {
  if (period_steps[1] == 0) timer_runs[1] = true;
  if (period_steps[1] == 200 && period_steps[2] == 0) timer_runs[2] = true;
  if (period_steps[2] == 200) timer_runs[3] = true;
  watched.FaceOff(rolls);
}

void ReferenceGame::TickOfPeriod(int period) {
  const auto p = static_cast<std::size_t>(period);
  if (period_steps.at(p) == 200) {
    timer_runs.at(p) = false;
    if (period == 3) AnnounceResult();
    return;
  }
  if (period == 1) watched.events.push_back("End of the first period!");
  if (period == 2) watched.events.push_back("End of the second period!");
  ++period_steps.at(p);
  watched.PlayStep(rolls);
}

void ReferenceGame::AnnounceResult() {
  const std::string home = captions["Game.GHome"];
  const std::string visitor = captions["Game.GVisitor"];
  const std::string goals1 = watched.goals_home;
  const std::string goals2 = watched.goals_visitor;
  watched.Report("The match has ended in an amazing battle!");
  // By text: "9" is more than "10".
  if (goals1 > goals2) {
    watched.Report(home + " beat " + visitor + " " + goals1 + " to " + goals2);
  } else if (goals2 > goals1) {
    watched.Report(visitor + " beat " + home + " " + goals2 + " to " + goals1);
  } else {
    watched.Report(home + " tied the game with " + visitor + " at " + goals1);
  }
}

void ReferenceGame::PressCloseOfGame() {
  if (!franchise_match) return;
  const std::string goals1 = watched.goals_home;
  const std::string goals2 = watched.goals_visitor;
  const std::string own = captions["Franchise.TeamName"];
  std::string& result = captions["Franchise.LooseOrWin"];
  score1 = StrictNumber(goals1);
  score2 = StrictNumber(goals2);
  if (captions["Game.GHome"] == own) {
    result = (goals1 > goals2 ? "You won " : "You lost ") + goals1 + " - " + goals2;
  }
  if (captions["Game.GVisitor"] == own) {
    result = (goals1 < goals2 ? "You won " : "You lost ") + goals2 + " - " + goals1;
  }
  if (goals1 == goals2) result = "You tied at " + goals2;
  franchise_match = false;
}

void ReferenceGame::WatchToTheEnd() {
  for (int period = 1; period <= 3; ++period) {
    PressStart();
    while (timer_runs.at(static_cast<std::size_t>(period))) TickOfPeriod(period);
  }
  PressCloseOfGame();
}

void ReferenceGame::Abandon() {
  timer_runs = {};
  captions["Game.GVisitor"] = "";
  captions["Game.GHome"] = "";
  watched.goals_home = "";
  watched.goals_visitor = "";
  watched.line_list.clear();
  watched.def_list.clear();
  watched.events.clear();
  lists["Game.Line1"].clear();
  lists["Game.Line2"].clear();
  watched.line1_stats.clear();
  watched.line2_stats.clear();
}

}  // namespace frostmark::reference
