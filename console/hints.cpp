#include "console/hints.h"

#include <functional>
#include <map>

namespace frostmark {
namespace {

using Hints = std::map<std::string, const char*, std::less<>>;

const Hints kHints = {
    {"Startup.Label1", "Visit the web page"},
    {"Startup.Label2", "(the top right corner)"},
    {"Startup.Label3", "Close the panel"},
    {"Startup.Label11", ""},
    {"Startup.Label10", "Offense"},
    {"Startup.Label9", "Defense"},
    {"Startup.Label8", "Overall"},
    {"Startup.Label12", "(the left edge of the panel)"},
    {"TeamCreator.Label4", ""},
    {"TeamCreator.Label5", "Offense"},
    {"TeamCreator.Label6", "Defense"},
    {"TeamCreator.Label7", "Overall"},
    {"TeamCreator.List1", "Roster:"},
    {"TeamCreator.List2", ""},
    {"TeamCreator.List3", ""},
    {"TeamCreator.Combo1", "Rank"},
    {"FStartGame.Label1", ""},
    {"FStartGame.List3", "Your league:"},
    {"FStartGame.List4", "Your opponent's league:"},
    {"FStartGame.File1", "Your team:"},
    {"FStartGame.File2", "Your opponent:"},
    {"FStartGame.Label2", "Back to the start screen"},
    {"Game.Line1", "Lead line:"},
    {"Game.Line2", "Lead line:"},
    {"Game.Label3", "Goals"},
    {"Game.Label4", "Goals"},
    {"Game.Events", "Play-by-play:"},
    {"Game.Period1", "Period 1"},
    {"Game.Period2", "Period 2"},
    {"Game.Period3", "Period 3"},
    {"Game.Label5", "Abandon the game"},
    {"Game.vGoalie", "Home GO"},
    {"Game.vRDef", "RD"},
    {"Game.vLDef", "LD"},
    {"Game.vRFor", "RF"},
    {"Game.vCenter", "CF"},
    {"Game.vLFor", "LF"},
    {"Game.hGoalie", "Visitor GO"},
    {"Game.hRDef", "RD"},
    {"Game.hLDef", "LD"},
    {"Game.hRFor", "RF"},
    {"Game.hCenter", "CF"},
    {"Game.hLFor", "LF"},
    {"Franchise.Alerts", "News:"},
    {"Franchise.StatRankF", "Rank F:"},
    {"Franchise.StatRankE", "Rank E:"},
    {"Franchise.StatRankD", "Rank D:"},
    {"Franchise.StatRankC", "Rank C:"},
    {"Franchise.StatRankB", "Rank B:"},
    {"Franchise.StatRankA", "Rank A:"},
    {"Franchise.Command3", "Move the selected lead player to the training line"},
    {"Franchise.Command4", "Move the selected training player to the lead line"},
    {"Franchise.Command6", "Minimize"},
    {"FPlayer.Label5", "Close the player"},
    {"FResults.List1", "Standings:"},
    {"FResults.List2", "Standings:"},
    {"FResults.List3", "Standings:"},
    {"FResults.List4", "Standings:"},
    {"FResults.List5", "Standings:"},
    {"FResults.List6", "Standings:"},
    {"FDraft.Label4", ""},
    {"FDraft.Label6", ""},
    {"FDraft.List1(0)", "Goalies:"},
    {"FDraft.List2(0)", "Left Defenders:"},
    {"FDraft.List3(0)", "Right Defenders:"},
    {"FDraft.List4(0)", "Left Forwards:"},
    {"FDraft.List5(0)", "Center Forwards:"},
    {"FDraft.List6(0)", "Right Forwards:"},
    {"FSelectDraft.List1", "Who has to go?"},
};

}  // namespace

const char* HintFor(const Control& control) {
  const auto found = kHints.find(control.FullName());
  return found == kHints.end() ? nullptr : found->second;
}

const std::string& TitleFor(const Screen& screen) {
  return screen.Name() == "Game" ? screen.Name() : screen.Caption();
}

bool GrowsAtItsEnd(const Control& list) { return list.FullName() == "FDraft.Events"; }

bool SelectionCounts(const Control& list) {
  return list.Name() == "MainRoster" || list.Name() == "TrainingRoster";
}

}  // namespace frostmark
