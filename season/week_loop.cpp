#include <algorithm>
#include <array>

#include "program/program.h"
#include "records/leagues.h"
#include "season/week_table.h"

namespace frostmark {

void Franchise::ConnectWeekLoop() {
  HighButton1.OnClick = [this] { PressBegin(); };
  Command1.OnClick = [this] { NextWeek.SetCaption("Off Season"); };
  Timer1.OnTick = [this] { TickSimulating(); };
}

void Franchise::TickSimulating() { Label18.SetVisible(!Label18.Visible()); }

void Franchise::PressBegin() {
  if (!LineUpAccepted()) {
    Command5.Hide();  // which ends a Sim run too
    return;
  }
  SetButtonsEnabled(false);
  Timer1.Enable();
  LooseOrWin.SetCaption("");
  Label19.SetCaption("");

  if (const auto week = WeekOf(NextWeek.Caption())) {
    PlayGamesOfWeek(*week);
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
  ReadRoster();
  SetButtonsEnabled(true);
  Timer1.Disable();
  Label18.Hide();
  ClearRoster();
  ReadRoster();
  TrimAlerts();
  GetNextWeek();
}

bool Franchise::LineUpAccepted() {
  std::array<int, kPositionCount> players{};
  const int count = MainList.ListCount();
  for (int i = 0; i < count; ++i) {
    for (std::size_t p = 0; p < kRosterOrder.size(); ++p) {
      if (FieldView(MainList.List(i), Field::kPosition) == kRosterOrder[p]) ++players[p];
    }
    program_.desktop.Yield();
  }
  if (std::count(players.begin(), players.end(), 0) > 0) {
    program_.desktop.ShowBox({BoxIcon::kStop, BoxButtons::kOk, "You are missing a position!"});
    return false;
  }
  if (std::all_of(players.begin(), players.end(), [](int n) { return n == 1; })) return true;
  const Answer answer = program_.desktop.ShowBox(
      {BoxIcon::kInformation, BoxButtons::kYesNo,
       "You have too many players on your lineup.\nWould you like to move one to training?"});
  return answer != Answer::kYes;
}

void Franchise::SetButtonsEnabled(bool enabled) {
  for (Button* button :
       {&HighButton1, &HighButton2, &HighButton3, &Command2, &Command3, &Command4}) {
    button->SetEnabled(enabled);
  }
}

void Franchise::PlayGamesOfWeek(int week) {
  for (std::size_t league = 0; league < kRanks.size(); ++league) {
    const ListBox& names = *RankLists()[league];
    const std::string letter = LetterOf(kRanks[league]);
    for (const Fixture& game : FixturesOf(week)) {
      // Copies: the lists may change while the game is played.
      const std::string first = names.List(game.first);
      const std::string second = names.List(game.second);
      PlayGame(first, second, letter);
    }
  }
}

void Franchise::ReadRoster() {
  tempList.Clear();
  program_.ordvik.LoadPlayerFile(tempList, UserTeamPath());
  AddAllToRoster(tempList);
  program_.hockey_naming.RateTeam(tempList);
  ShowOwnRatings();
}

}  // namespace frostmark
