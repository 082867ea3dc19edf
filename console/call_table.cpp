// The procedures that "call" knows, with the arguments that each takes.
#include <functional>
#include <map>

#include "console/calls.h"

namespace frostmark {
namespace {

using Result = std::optional<std::string>;

Result BooleanText(bool value) { return value ? "True" : "False"; }

// A procedure without arguments and without a result.
template <auto kOwner, auto kProcedure>
Result Plain(Arguments& a) {
  a.ExpectEnd();
  ((a.program().*kOwner).*kProcedure)();
  return std::nullopt;
}

Result GetField(Arguments& a) {
  const std::string record = a.Text();
  const std::string field = a.Text();
  a.ExpectEnd();
  return HockeyNaming::GetField(record, field);
}

Result SetField(Arguments& a) {
  const std::string record = a.Text();
  const std::string field = a.Text();
  const std::string value = a.Text();
  a.ExpectEnd();
  return a.program().hockey_naming.SetField(record, field, value);
}

Result RateTeam(Arguments& a) {
  const RecordList& list = a.List();
  a.ExpectEnd();
  a.program().hockey_naming.RateTeam(list);
  return std::nullopt;
}

Result SortRankList(Arguments& a) {
  RecordList& list = a.List();
  a.ExpectEnd();
  HockeyNaming::SortRankList(list);
  return std::nullopt;
}

Result SortByOverall(Arguments& a) {
  RecordList& list = a.List();
  a.ExpectEnd();
  HockeyNaming::SortByOverall(list);
  return std::nullopt;
}

Result SetTrainingFlags(Arguments& a) {
  RecordList& list = a.List();
  a.ExpectEnd();
  a.program().hockey_naming.SetTrainingFlags(list);
  return std::nullopt;
}

Result GenPlayerRatings(Arguments& a) {
  const std::string position = a.Text();
  const bool weaker = a.Boolean();
  a.ExpectEnd();
  a.program().hockey_naming.GenPlayerRatings(position, weaker);
  return std::nullopt;
}

Result CountResult(Arguments& a) {
  const std::string line = a.Text();
  const std::string kind = a.Text();
  a.ExpectEnd();
  return HockeyNaming::CountResult(line, kind);
}

Result RollUpTo(Arguments& a) {
  const int n = a.Number();
  a.ExpectEnd();
  return std::to_string(a.program().ordvik.RollUpTo(n));
}

Result ContainsText(Arguments& a) {
  const int start = a.Number();
  const std::string text = a.Text();
  const std::string sought = a.Text();
  a.ExpectEnd();
  return BooleanText(Ordvik::ContainsText(start, text, sought));
}

Result SaveListFile(Arguments& a) {
  const RecordList& list = a.List();
  const std::string path = a.Path();
  a.ExpectEnd();
  a.program().ordvik.SaveListFile(list, path);
  return std::nullopt;
}

Result LoadPlayerFile(Arguments& a) {
  RecordList& list = a.List();
  const std::string path = a.Path();
  a.ExpectEnd();
  a.program().ordvik.LoadPlayerFile(list, path);
  return std::nullopt;
}

Result LoadSettingsList(Arguments& a) {
  RecordList& list = a.List();
  const std::string name = a.Text();
  a.ExpectEnd();
  a.program().ordvik.LoadSettingsList(list, name);
  return std::nullopt;
}

Result ReadSetting(Arguments& a) {
  const std::string key = a.Text();
  a.ExpectEnd();
  return a.program().ordvik.ReadSetting(key);
}

Result WriteSetting(Arguments& a) {
  const std::string key = a.Text();
  const std::string value = a.Text();
  a.ExpectEnd();
  a.program().ordvik.WriteSetting(key, value);
  return std::nullopt;
}

Result LoadGameLines(Arguments& a) {
  const RecordList& list1 = a.List();
  const RecordList& list2 = a.List();
  a.ExpectEnd();
  a.program().game_simulation.LoadGameLines(list1, list2);
  return std::nullopt;
}

Result SetUpMatch(Arguments& a) {
  const RecordList& list1 = a.List();
  const std::string name1 = a.Text();
  const RecordList& list2 = a.List();
  const std::string name2 = a.Text();
  a.ExpectEnd();
  a.program().hockey_naming.SetUpMatch(list1, name1, list2, name2);
  return std::nullopt;
}

Result PlayGame(Arguments& a) {
  const std::string name1 = a.Text();
  const std::string name2 = a.Text();
  const std::string rank = a.Text();
  a.ExpectEnd();
  a.program().franchise.PlayGame(name1, name2, rank);
  return std::nullopt;
}

Result SetStandings(Arguments& a) {
  RecordList& list = a.List();
  const std::string name1 = a.Text();
  const std::string name2 = a.Text();
  a.ExpectEnd();
  a.program().franchise.SetStandings(list, name1, name2);
  return std::nullopt;
}

Result FindOpponent(Arguments& a) {
  const std::string name1 = a.Text();
  const std::string name2 = a.Text();
  const std::string rank = a.Text();
  a.ExpectEnd();
  a.program().franchise.FindOpponent(name1, name2, rank);
  return std::nullopt;
}

Result TrainThem(Arguments& a) {
  RecordList& list = a.List();
  const std::string path = a.Path();
  a.ExpectEnd();
  a.program().franchise.TrainThem(list, path);
  return std::nullopt;
}

Result AddDraftee(Arguments& a) {
  std::string& record = a.TextVariable();
  a.ExpectEnd();
  a.program().f_draft.AddDraftee(record);
  return std::nullopt;
}

Result WaitSeconds(Arguments& a) {
  const std::string seconds = a.Text();
  a.ExpectEnd();
  a.program().ordvik.WaitSeconds(seconds);
  return std::nullopt;
}

const std::map<std::string, Procedure, std::less<>>& Procedures() {
  static const std::map<std::string, Procedure, std::less<>> procedures = {
      {"GetField", GetField},
      {"SetField", SetField},
      {"RateTeam", RateTeam},
      {"SortRankList", SortRankList},
      {"SortByOverall", SortByOverall},
      {"SetTrainingFlags", SetTrainingFlags},
      {"GenPlayerRatings", GenPlayerRatings},
      {"CountResult", CountResult},
      {"RollUpTo", RollUpTo},
      {"ContainsText", ContainsText},
      {"SaveListFile", SaveListFile},
      {"LoadPlayerFile", LoadPlayerFile},
      {"LoadSettingsList", LoadSettingsList},
      {"ReadSetting", ReadSetting},
      {"WriteSetting", WriteSetting},
      {"GenTeam", Plain<&Program::team_creator, &TeamCreator::GenTeam>},
      {"BuildLeague", Plain<&Program::startup, &Startup::BuildLeague>},
      {"LoadGameLines", LoadGameLines},
      {"SimulateGame", Plain<&Program::game_simulation, &GameSimulation::SimulateGame>},
      {"SetUpMatch", SetUpMatch},
      {"PlayGame", PlayGame},
      {"SetStandings", SetStandings},
      {"TrimAlerts", Plain<&Program::franchise, &Franchise::TrimAlerts>},
      {"PlayWeek", Plain<&Program::franchise, &Franchise::PlayWeek>},
      {"GenSchedule", Plain<&Program::franchise, &Franchise::GenSchedule>},
      {"GetNextWeek", Plain<&Program::franchise, &Franchise::GetNextWeek>},
      {"FindOpponent", FindOpponent},
      {"LoadNewTeams", Plain<&Program::franchise, &Franchise::LoadNewTeams>},
      {"LoadNewTeamsTwo", Plain<&Program::franchise, &Franchise::LoadNewTeamsTwo>},
      {"TrainThem", TrainThem},
      {"theOffSeason", Plain<&Program::franchise, &Franchise::theOffSeason>},
      {"SaveGame", Plain<&Program::franchise, &Franchise::SaveGame>},
      {"RunDraft", Plain<&Program::f_draft, &FDraft::RunDraft>},
      {"AddDraftee", AddDraftee},
      {"WaitSeconds", WaitSeconds},
  };
  return procedures;
}

}  // namespace

Procedure FindProcedure(const std::string& name) {
  const auto found = Procedures().find(name);
  return found == Procedures().end() ? nullptr : found->second;
}

}  // namespace frostmark
