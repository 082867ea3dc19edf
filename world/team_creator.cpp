#include "world/team_creator.h"

#include "program/program.h"
#include "records/leagues.h"
#include "world/name_lists.h"

namespace frostmark {
namespace {

void MakePlayer(Program& program, int position, const char* training) {
  TeamCreator& creator = program.team_creator;
  HockeyNaming& naming = program.hockey_naming;
  const std::string name = naming.GenPlayerName();
  const std::string code = creator.List4.List(position);
  naming.GenPlayerRatings(code, false);
  creator.List1.AddItem(naming.GeneratedRecord(name, code, training));
  program.front_end.Yield();
}

}  // namespace

TeamCreator::TeamCreator(Program& program)
    : Screen(program.screens, "TeamCreator", "TeamCreator", Border::kTitleBar, OnClose::kHides),
      program_(program) {
  for (const char* name : GivenNames()) List2.AddItem(name);
  for (const char* name : FamilyNames()) List3.AddItem(name);
  for (const char* position : kRosterOrder) List4.AddItem(position);

  Command2.OnClick = [this] { GenTeam(); };
  Command1.OnClick = [this] { PressSave(); };
}

void TeamCreator::GenTeam() {
  HockeyNaming& naming = program_.hockey_naming;
  List1.Clear();
  const int positions = List4.ListCount();
  for (int i = 0; i < positions; ++i) MakePlayer(program_, i, "N");
  // From 1 on: there is no training goalie.
  for (int i = 1; i < positions; ++i) MakePlayer(program_, i, "Y");
  naming.RateTeam(List1);
  Label5.SetCaption(std::to_string(naming.TeamOffense));
  Label6.SetCaption(std::to_string(naming.TeamDefense));
  Label7.SetCaption(std::to_string(naming.TeamOverall));
}

void TeamCreator::PressSave() {
  // A path from the current folder on purpose: the tool writes into a league only when it is run
  // from within the folder of the leagues.
  program_.ordvik.SaveListFile(List1, Combo1.Text() + "/" + Text1.Text() + " " + Text2.Text());
  List1.Clear();
  Text1.SetText("");
  Text2.SetText("");
  Combo1.SetText("Choose Rank");
  Text1.SetFocus();
}

}  // namespace frostmark
