#include "console/names.h"

#include "console/refusal.h"
#include "console/words.h"

namespace frostmark {
namespace {

constexpr int kLeastInt16 = -32768;
constexpr int kMostInt16 = 32767;

bool BooleanOf(std::string_view text) {
  if (text == "True") return true;
  if (text == "False") return false;
  throw Refusal{"not True or False: " + std::string(text)};
}

}  // namespace

std::string VariableText(const Variable& variable) {
  if (auto* const* number = std::get_if<Int16*>(&variable)) return std::to_string(**number);
  if (auto* const* text = std::get_if<std::string*>(&variable)) return **text;
  return *std::get<bool*>(variable) ? "True" : "False";
}

void SetVariable(const Variable& variable, std::string_view text) {
  if (auto* const* number = std::get_if<Int16*>(&variable)) {
    const int value = WholeNumber(text, "the value");
    if (value < kLeastInt16 || value > kMostInt16) {
      throw Refusal{"the value does not fit 16 bits: " + std::string(text)};
    }
    **number = value;
  } else if (auto* const* words = std::get_if<std::string*>(&variable)) {
    (*words)->assign(text);
  } else {
    *std::get<bool*>(variable) = BooleanOf(text);
  }
}

Names::Names(Program& program) : screens_(program.screens) { AddVariables(program); }

void Names::AddVariables(Program& program) {
  HockeyNaming& naming = program.hockey_naming;
  GameSimulation& simulation = program.game_simulation;
  Franchise& franchise = program.franchise;
  Game& game = program.game;
  FDraft& draft = program.f_draft;
  variables_ = {
      {"HockeyNaming.CurName", &naming.CurName},
      {"HockeyNaming.CurPosition", &naming.CurPosition},
      {"HockeyNaming.CurTraining", &naming.CurTraining},
      {"HockeyNaming.CurOverall", &naming.CurOverall},
      {"HockeyNaming.CurPassing", &naming.CurPassing},
      {"HockeyNaming.CurShooting", &naming.CurShooting},
      {"HockeyNaming.CurDefense", &naming.CurDefense},
      {"HockeyNaming.CurAgility", &naming.CurAgility},
      {"HockeyNaming.CurAge", &naming.CurAge},
      {"HockeyNaming.TeamOffense", &naming.TeamOffense},
      {"HockeyNaming.TeamDefense", &naming.TeamDefense},
      {"HockeyNaming.TeamOverall", &naming.TeamOverall},
      {"GameSimulation.PassesLeft", &simulation.PassesLeft},
      {"GameSimulation.PuckCarrier", &simulation.PuckCarrier},
      {"GameSimulation.PasserName", &simulation.PasserName},
      {"GameSimulation.PuckPosition", &simulation.PuckPosition},
      {"GameSimulation.PuckTeam", &simulation.PuckTeam},
      {"GameSimulation.Defender", &simulation.Defender},
      {"GameSimulation.DefenderPosition", &simulation.DefenderPosition},
      {"GameSimulation.GoalsTeam1", &simulation.GoalsTeam1},
      {"GameSimulation.GoalsTeam2", &simulation.GoalsTeam2},
      {"Game.PassesLeft", &game.PassesLeft},
      {"Game.PuckCarrier", &game.PuckCarrier},
      {"Game.PasserName", &game.PasserName},
      {"Game.PuckPosition", &game.PuckPosition},
      {"Game.PuckTeam", &game.PuckTeam},
      {"Game.Defender", &game.Defender},
      {"Game.DefenderPosition", &game.DefenderPosition},
      {"Game.FranchiseMatch", &game.FranchiseMatch},
      {"Franchise.Score1", &franchise.Score1},
      {"Franchise.Score2", &franchise.Score2},
      {"Franchise.SimRunning", &franchise.SimRunning},
      {"FDraft.AwaitingPick", &draft.AwaitingPick},
      {"FDraft.ReleasedPlayer", &draft.ReleasedPlayer},
  };
}

Named Names::Find(const std::string& name) {
  Named named;
  if (name.starts_with('%')) {
    named.scratch = &scratch_[name];
    return named;
  }
  if (const auto found = variables_.find(name); found != variables_.end()) {
    named.variable = found->second;
    return named;
  }
  const std::size_t point = name.find('.');
  Screen* const screen = screens_.Find(std::string_view(name).substr(0, point));
  if (screen != nullptr && point == std::string::npos) {
    named.screen = screen;
  } else if (screen != nullptr) {
    named.control = screen->Find(std::string_view(name).substr(point + 1));
  }
  if (named.screen != nullptr || named.control != nullptr) return named;
  throw Refusal{"there is no " + name};
}

Control& Names::FindControl(const std::string& name) {
  Control* const control = Find(name).control;
  if (control == nullptr) throw Refusal{name + " is no control"};
  return *control;
}

RecordList& Names::FindList(const std::string& name) {
  const Named named = Find(name);
  if (named.scratch != nullptr) return *named.scratch;
  ListBox* const list = named.control == nullptr ? nullptr : AsList(*named.control);
  if (list == nullptr) throw Refusal{name + " is no list"};
  return *list;
}

const Variable& Names::FindVariable(const std::string& name) {
  const auto found = variables_.find(name);
  if (found == variables_.end()) throw Refusal{"there is no variable " + name};
  return found->second;
}

std::vector<std::string> Names::Variables() const {
  std::vector<std::string> all;
  for (const auto& [name, variable] : variables_) all.push_back(name);
  return all;
}

CaptionedControl* AsCaptioned(Control& control) {
  return dynamic_cast<CaptionedControl*>(&control);
}

ListBox* AsList(Control& control) { return dynamic_cast<ListBox*>(&control); }

const Handler* ClickHandler(Control& control) {
  switch (control.Kind()) {
    case ControlKind::kButton:
      return &static_cast<Button&>(control).OnClick;
    case ControlKind::kLabel:
      return &static_cast<Label&>(control).OnClick;
    case ControlKind::kPicture:
      return &static_cast<Picture&>(control).OnClick;
    default:
      return nullptr;
  }
}

std::optional<std::string> TextOf(const Named& named) {
  if (named.variable) return VariableText(*named.variable);
  if (named.screen != nullptr) return named.screen->Caption();
  if (named.control == nullptr) return std::nullopt;
  Control& control = *named.control;
  if (const CaptionedControl* captioned = AsCaptioned(control)) return captioned->Caption();
  if (control.Kind() == ControlKind::kProgressBar) {
    return std::to_string(static_cast<ProgressBar&>(control).Value());
  }
  if (control.Kind() == ControlKind::kTabStrip) return static_cast<TabStrip&>(control).FrontTab();
  return std::nullopt;
}

}  // namespace frostmark
