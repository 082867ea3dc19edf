#pragma once

#include <array>
#include <string>

#include "records/leagues.h"
#include "records/numbers.h"
#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

class Program;

// The user's desk during a franchise. Its lists and labels are the state of the season.
class Franchise : public Screen {
 public:
  explicit Franchise(Program& program);
  TabStrip XTab1{*this, "XTab1", {"Main", "Alerts", "Standings", "Roster"}, Called{"Franchise"}};
  Label Label3{XTab1.Page(0), "Label3", "Your Team:"};
  Label TeamName{XTab1.Page(0), "TeamName", "", Called{"Your team"}};
  Label Label20{XTab1.Page(0), "Label20", "Your Rank:"};
  Label MyRank{XTab1.Page(0), "MyRank", "Rank F", Called{"Your rank"}};
  Label Label7{XTab1.Page(0), "Label7", "Overall:"};
  Label Label9{XTab1.Page(0), "Label9", "00", Called{"Your overall rating"}};
  Label Label11{XTab1.Page(0), "Label11", "Offense:"};
  Label Label12{XTab1.Page(0), "Label12", "00", Called{"Your offense rating"}};
  Label Label14{XTab1.Page(0), "Label14", "Defense:"};
  Label Label15{XTab1.Page(0), "Label15", "00", Called{"Your defense rating"}};
  Label Label2{XTab1.Page(0), "Label2", "Next week:"};
  Label NextWeek{XTab1.Page(0), "NextWeek", "Week 1", Called{"Next week"}};
  Label Label4{XTab1.Page(0), "Label4", "Opposing Team:"};
  Label OppTeam{XTab1.Page(0), "OppTeam", "", Called{"Opposing team"}};
  Label Label6{XTab1.Page(0), "Label6", "Overall:"};
  Label OppOverall{XTab1.Page(0), "OppOverall", "00", Called{"Opponent's overall rating"}};
  Label Label8{XTab1.Page(0), "Label8", "Offense:"};
  Label OppOffense{XTab1.Page(0), "OppOffense", "00", Called{"Opponent's offense rating"}};
  Label Label10{XTab1.Page(0), "Label10", "Defense:"};
  Label OppDefense{XTab1.Page(0), "OppDefense", "00", Called{"Opponent's defense rating"}};
  Label Label5{XTab1.Page(0), "Label5", "Results from this week:"};
  Label LooseOrWin{XTab1.Page(0), "LooseOrWin", "", Called{"Your last result"}};
  Label Label19{XTab1.Page(0), "Label19", "", Called{"Opponent of your last game"}};
  Label Label21{XTab1.Page(0), "Label21", "Season:"};
  Label Season{XTab1.Page(0), "Season", "00", Called{"Seasons finished"}};
  Label Label22{XTab1.Page(0), "Label22", "Championships:"};
  Label Champion{XTab1.Page(0), "Champion", "00", Called{"Championships"}};
  Label Label18{XTab1.Page(0), "Label18", "Simulating...", Start::kHidden};
  Timer Timer1{*this, "Timer1", 1000};  // blinks Label18
  Button HighButton1{XTab1.Page(0), "HighButton1", "Begin"};
  Button HighButton2{XTab1.Page(0), "HighButton2", "Close"};
  Button HighButton3{XTab1.Page(0), "HighButton3", "Save"};
  Button Command2{XTab1.Page(0), "Command2", "Sim"};
  Button Command5{XTab1.Page(0), "Command5", "Cancel", Start::kHidden};
  Button Command6{XTab1.Page(0), "Command6", "Min", Called{"Minimize"}};

  // Tabs "Alerts", newest first, and "Standings".
  ListBox Alerts{XTab1.Page(1), "Alerts", Called{"News"}};
  TabStrip XTab2{XTab1.Page(2), "XTab2", {kRanks.begin(), kRanks.end()}, Called{"Leagues"}};
  ListBox StatRankF{XTab2.Page(0), "StatRankF", Called{"Standings of Rank F", "Rank F:"}};
  ListBox StatRankE{XTab2.Page(1), "StatRankE", Called{"Standings of Rank E", "Rank E:"}};
  ListBox StatRankD{XTab2.Page(2), "StatRankD", Called{"Standings of Rank D", "Rank D:"}};
  ListBox StatRankC{XTab2.Page(3), "StatRankC", Called{"Standings of Rank C", "Rank C:"}};
  ListBox StatRankB{XTab2.Page(4), "StatRankB", Called{"Standings of Rank B", "Rank B:"}};
  ListBox StatRankA{XTab2.Page(5), "StatRankA", Called{"Standings of Rank A", "Rank A:"}};

  // Tab "Roster": item i of a shown list is the display line of item i of the hidden one.
  Label Label17{XTab1.Page(3), "Label17", "Main:"};
  ListBox MainRoster{XTab1.Page(3), "MainRoster", Called{"Lead line"}};
  Label Label16{XTab1.Page(3), "Label16", "Training:"};
  ListBox TrainingRoster{XTab1.Page(3), "TrainingRoster", Called{"Training line"}};
  Button Command3{XTab1.Page(3), "Command3", "v",
                  Called{"Move the selected lead player to the training line"}};
  Button Command4{XTab1.Page(3), "Command4", "^",
                  Called{"Move the selected training player to the lead line"}};
  ListBox MainList{*this, "MainList", Start::kNeverShown};
  ListBox TrainList{*this, "TrainList", Start::kNeverShown};

  Label Label1{*this, "Label1", "      F           E           D          C          B           A",
               Start::kOutside};
  // Working lists. A league's names in folder order: the index is a team's schedule position.
  ListBox RankF{*this, "RankF", Start::kNeverShown};
  ListBox RankE{*this, "RankE", Start::kNeverShown};
  ListBox RankD{*this, "RankD", Start::kNeverShown};
  ListBox RankC{*this, "RankC", Start::kNeverShown};
  ListBox RankB{*this, "RankB", Start::kNeverShown};
  ListBox RankA{*this, "RankA", Start::kNeverShown};
  ListBox tempList{*this, "tempList", Start::kNeverShown};  // scratch: a roster on its way
  ListBox Team1{*this, "Team1", Start::kNeverShown};        // rosters of the game being played
  ListBox Team2{*this, "Team2", Start::kNeverShown};
  ListBox Line1Stats{*this, "Line1Stats", Start::kNeverShown};  // their lead lines
  ListBox Line2Stats{*this, "Line2Stats", Start::kNeverShown};
  ListBox LineList{*this, "LineList", Start::kNeverShown};  // the line with the puck, reversed
  ListBox DefList{*this, "DefList", Start::kNeverShown};    // the other line, reversed
  FileListBox File1{*this, "File1", Start::kNeverShown};
  Button Command1{*this, "Command1", "Testing", Start::kOutside};  // a developer's shortcut

  Int16 Score1;  // the goals of the game just played
  Int16 Score2;
  bool SimRunning = false;  // a Sim run is under way: the user's own games are not watched

  // shell/franchise.cpp: the lists of the leagues in the order of kRanks.
  std::array<ListBox*, kRankCount> RankLists();
  std::array<ListBox*, kRankCount> StatRankLists();
  // shell/roster.cpp: the arrows and the double clicks.
  void PressToTraining();
  void PressToLeadLine();
  void ShowLeadPlayer();
  void ShowTrainingPlayer();
  // shell/roster_lists.cpp
  std::string UserTeamPath() const;  // the file of TeamName in the folder of MyRank
  // Adds RECORD, or each of LIST with a yield after it, to the line of its Training, "N" or "Y".
  void AddToRoster(const std::string& record);
  void AddAllToRoster(const RecordList& list);
  void ClearRoster();
  void ShowOwnRatings();  // as captions: those of the team rated last
  // shell/save_and_resume.cpp: writes settings, roster, standings and alerts, then says so.
  void SaveGame();
  // Whether the settings on the disk are those of this franchise as it stands.
  bool IsSaved() const;

  // season/schedule.cpp
  void GenSchedule();  // fills league lists and standings from the folders and sets "Week 1"
  void GetNextWeek();  // shows the opponent of NextWeek
  // Shows the other team and loads its roster into tempList if NAME1 or NAME2 is the user's team;
  // a nameless one leaves both empty. RANK, here and below, is a league's letter, "F" to "A".
  void FindOpponent(const std::string& name1, const std::string& name2, const std::string& rank);
  // season/league_lists.cpp
  void LoadNewTeams();     // reads league lists and fresh standings, finds the user's league
  void LoadNewTeamsTwo();  // the names alone, then the next opponent; nothing calls it
  // season/week_loop.cpp: plays the week of NextWeek, or ends the season at "Off Season".
  void PressBegin();
  void PlayWeek() {}  // nothing: PressBegin plays the week
  // season/sim_run.cpp: plays on until the week that the user asks for.
  void PressSim();

  // match/results.cpp: plays NAME1 (home) against NAME2, with all consequences. A game of the
  // user's own is watched unless SimRunning, and this returns when it is over.
  void PlayGame(const std::string& name1, const std::string& name2, const std::string& rank);
  // Counts Score1 and Score2 into the lines of LIST that contain the names.
  void SetStandings(RecordList& list, const std::string& name1, const std::string& name2);
  void TrimAlerts();  // thins them out after the 26th line

  // development/training.cpp: what a game does to the players of LIST, saved to PATH, their file.
  void TrainThem(RecordList& list, const std::string& path);
  // development/promotion.cpp: moves the first and the last of the leagues, then shows FResults.
  void theOffSeason();

 private:
  Program& program_;
};

}  // namespace frostmark
