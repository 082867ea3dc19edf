#include <algorithm>
#include <array>

#include "program/program.h"
#include "records/leagues.h"
#include "season/week_table.h"

namespace frostmark {
namespace {

bool LineUpAccepted(Program& program) {
  const ListBox& line_up = program.franchise.MainList;
  std::array<int, kPositionCount> players{};
  const int count = line_up.ListCount();
  for (int i = 0; i < count; ++i) {
    for (std::size_t p = 0; p < kRosterOrder.size(); ++p) {
      if (FieldView(line_up.List(i), Field::kPosition) == kRosterOrder[p]) ++players[p];
    }
    program.front_end.Yield();
  }
  if (std::count(players.begin(), players.end(), 0) > 0) {
    program.front_end.ShowBox({BoxIcon::kStop, BoxButtons::kOk, "You are missing a position!"});
    return false;
  }
  if (std::all_of(players.begin(), players.end(), [](int n) { return n == 1; })) return true;
  const Answer answer = program.front_end.ShowBox(
      {BoxIcon::kInformation, BoxButtons::kYesNo,
       "You have too many players on your lineup.\nWould you like to move one to training?"});
  return answer != Answer::kYes;
}

void SetButtonsEnabled(Franchise& franchise, bool enabled) {
  for (Button* button : {&franchise.HighButton1, &franchise.HighButton2, &franchise.HighButton3,
                         &franchise.Command2, &franchise.Command3, &franchise.Command4}) {
    button->SetEnabled(enabled);
  }
}

void PlayGamesOfWeek(Franchise& franchise, int week) {
  for (std::size_t league = 0; league < kRanks.size(); ++league) {
    const ListBox& names = *franchise.RankLists()[league];
    const std::string letter = LetterOf(kRanks[league]);
    for (const Fixture& game : FixturesOf(week)) {
      // Copies: the lists may change while the game is played.
      const std::string first = names.List(game.first);
      const std::string second = names.List(game.second);
      franchise.PlayGame(first, second, letter);
    }
  }
}

void ReadRoster(Program& program) {
  Franchise& franchise = program.franchise;
  franchise.tempList.Clear();
  program.ordvik.LoadPlayerFile(franchise.tempList, franchise.UserTeamPath());
  franchise.AddAllToRoster(franchise.tempList);
  program.hockey_naming.RateTeam(franchise.tempList);
  franchise.ShowOwnRatings();
}

}  // namespace

void Franchise::PressBegin() {
  if (!LineUpAccepted(program_)) {
    Command5.Hide();  // which ends a Sim run too
    return;
  }
  SetButtonsEnabled(*this, false);
  Timer1.Enable();
  LooseOrWin.SetCaption("");
  Label19.SetCaption("");

  if (const auto week = WeekOf(NextWeek.Caption())) {
    PlayGamesOfWeek(*this, *week);
    NextWeek.SetCaption(*week == kWeeksOfSeason ? "Off Season"
                                                : "Week " + std::to_string(*week + 1));
  } else {
    if (NextWeek.Caption() == "Off Season") {
      SimRunning = false;
      Command5.Hide();
      theOffSeason();
      Hide();
    }
    // "Draft" never outlives the press. What follows runs on the hidden screen, with the lists as
    // they stood before promotion.
    if (NextWeek.Caption() == "Draft") NextWeek.SetCaption("Week 1");
  }

  for (ListBox* standings : StatRankLists()) HockeyNaming::SortRankList(*standings);
  // The roster is read in twice on purpose: the buttons are live again while the second pass, which
  // is the one that stays, runs.
  ReadRoster(program_);
  SetButtonsEnabled(*this, true);
  Timer1.Disable();
  Label18.Hide();
  ClearRoster();
  ReadRoster(program_);
  TrimAlerts();
  GetNextWeek();
}

}  // namespace frostmark
