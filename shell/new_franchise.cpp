#include "program/program.h"
#include "records/leagues.h"
#include "records/lines/player_line.h"

namespace frostmark {

void Startup::PressNew() {
  // A league of six is the only sign of a running game: a world without a user's team has five.
  // Where a build or a beginning was cut off there is none, whatever the folder holds.
  if (!program_.ordvik.KeepsToItsFolder()) return;
  (void)program_.FinishCutOffWork();
  const bool cut_off = program_.under_way.IsCutOff();
  File1.SetPath(program_.ordvik.RankFolder("Rank F"));
  if (cut_off) {
    BuildLeague();
  } else if (File1.ListCount() == kTeamsInLeague) {
    const Answer answer = program_.front_end.ShowBox(
        {BoxIcon::kStop, BoxButtons::kYesNo,
         "There is already a loaded game in progress. Would you like to create a new game?\n"
         "Warning: Doing this will delete your last game."});
    if (answer != Answer::kYes) return;
    BuildLeague();
  }
  // After a build the listing is that of the league built over last, not of "Rank F".
  if (File1.ListCount() == 0) BuildLeague();
  Frame1.Show();
}

void Startup::PressGenerate() {
  const ListBox& team = program_.team_creator.List1;
  const HockeyNaming& naming = program_.hockey_naming;
  program_.team_creator.GenTeam();
  Label10.SetCaption(std::to_string(naming.TeamOffense));
  Label9.SetCaption(std::to_string(naming.TeamDefense));
  Label8.SetCaption(std::to_string(naming.TeamOverall));
  List1.Clear();
  List2.Clear();
  for (int i = team.ListCount() - 1; i >= 0; --i) {
    const std::string_view training = FieldView(team.List(i), Field::kTraining);
    if (training == "N") List1.AddItem(FormatPanelLine(team.List(i)));
    if (training == "Y") List2.AddItem(FormatPanelLine(team.List(i)));
  }
}

void Startup::PressBegin() {
  Franchise& franchise = program_.franchise;
  const ListBox& team = program_.team_creator.List1;
  const std::string name = Text1.Text() + " " + Text2.Text();
  UnderWay::Beginning beginning(program_.under_way);
  program_.ordvik.SaveListFile(team, program_.ordvik.TeamPath("Rank F", name));
  Hide();
  franchise.Show();
  // Not cleared first: a second franchise in one run adds to the roster of the one before.
  franchise.AddAllToRoster(team);
  franchise.ShowOwnRatings();
  franchise.TeamName.SetCaption(Text1.Text() + " " + Text2.Text());
  franchise.LoadNewTeams();
  franchise.GenSchedule();
  franchise.MyRank.SetCaption("Rank F");
  franchise.GetNextWeek();
  Frame1.Hide();
  HighButton4.Hide();
  HighButton5.Hide();
  beginning.Ready();
  franchise.SaveGame();
}

void Startup::ClickWantedOverall() {
  const std::string wanted = program_.front_end.AskText("Desired overall?");
  do {
    PressGenerate();
    program_.front_end.Yield();
  } while (Label8.Caption() != wanted);
}

}  // namespace frostmark
