#include "program/program.h"
#include "records/leagues.h"
#include "world/name_lists.h"

namespace frostmark {

TeamCreator::TeamCreator(Program& program)
    : Screen(program.screens, "TeamCreator", "TeamCreator", Border::kTitleBar, OnClose::kHides),
      program_(program) {
  for (const char* name : GivenNames()) List2.AddItem(name);
  for (const char* name : FamilyNames()) List3.AddItem(name);
  for (const char* position : kRosterOrder) List4.AddItem(position);
}

void TeamCreator::ConnectTeamCreator() {
  Command2.OnClick = [this] { GenTeam(); };
  Command1.OnClick = [this] { PressSave(); };
}

void HockeyNaming::GenPlayerRatings(std::string_view position, bool weaker) {
  constexpr int kSkillSpread = 30;
  constexpr int kAgeSpread = 7;
  const int best = weaker ? 95 : 100;  // one more than the best skill that can come up
  CurPassing = best - ordvik_.RollUpTo(kSkillSpread);
  CurShooting = best - ordvik_.RollUpTo(kSkillSpread);
  CurDefense = best - ordvik_.RollUpTo(kSkillSpread);
  CurAgility = best - ordvik_.RollUpTo(kSkillSpread);
  CurAge = 25 - ordvik_.RollUpTo(kAgeSpread);
  CurOverall = OverallAt(position, CurRatings(), CurOverall);
}

namespace {

// A name drawn from NAMES, the first letter as it is stored and the rest in lower case. The first
// name of a list is never drawn.
std::string DrawName(Ordvik& ordvik, const RecordList& names) {
  std::string name = names.List(ordvik.RollUpTo(names.ListCount() - 1));
  for (std::size_t i = 1; i < name.size(); ++i) {
    if (name[i] >= 'A' && name[i] <= 'Z') name[i] = static_cast<char>(name[i] - 'A' + 'a');
  }
  return name;
}

}  // namespace

std::string HockeyNaming::GenPlayerName() {
  const std::string given = DrawName(ordvik_, program_.team_creator.List2);
  return given + " " + DrawName(ordvik_, program_.team_creator.List3);
}

std::string HockeyNaming::GeneratedRecord(std::string_view name, std::string_view position,
                                          std::string_view training) const {
  return FormatPlayerRecord({name, position, std::to_string(CurOverall), std::to_string(CurPassing),
                             std::to_string(CurShooting), std::to_string(CurDefense),
                             std::to_string(CurAgility), std::to_string(CurAge), training});
}

void TeamCreator::MakePlayer(int position, const char* training) {
  HockeyNaming& naming = program_.hockey_naming;
  const std::string name = naming.GenPlayerName();
  const std::string code = List4.List(position);
  naming.GenPlayerRatings(code, false);
  List1.AddItem(naming.GeneratedRecord(name, code, training));
  program_.desktop.Yield();
}

void TeamCreator::GenTeam() {
  HockeyNaming& naming = program_.hockey_naming;
  List1.Clear();
  const int positions = List4.ListCount();
  for (int i = 0; i < positions; ++i) MakePlayer(i, "N");
  // From 1 on: there is no training goalie.
  for (int i = 1; i < positions; ++i) MakePlayer(i, "Y");
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
