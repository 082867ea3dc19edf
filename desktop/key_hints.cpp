#include "desktop/keys.h"
#include "ui/control.h"

namespace frostmark {
namespace {

constexpr KeyHint kHints[] = {
    {"Startup.HighButton1", "Alt+S", "Play one game between any two teams"},
    {"Startup.HighButton2", "Alt+F", "Begin a franchise or resume a saved one"},
    {"Startup.HighButton4", "Alt+N", "Make a new world and create your team"},
    {"Startup.HighButton5", "Alt+L", "Resume the saved franchise"},
    {"Startup.HighButton3", "Alt+E", "Leave Frostmark"},
    {"Startup.Label1", "Alt+W", "Visit the web page"},
    {"Startup.Label2", "Alt+T", "Open the team creator"},
    {"Startup.Label3", "Esc", "Close the panel"},
    {"Startup.Text1", "Alt+C", "The city of your team"},
    {"Startup.Text2", "Alt+A", "The name of your team"},
    {"Startup.List1", "Alt+1", "Your lead line"},
    {"Startup.List2", "Alt+2", "Your training line"},
    {"Startup.HighButton7", "Alt+G", "Roll a team"},
    {"Startup.HighButton6", "Alt+B", "Begin the franchise with this team"},
    {"Startup.Label12", "Alt+O", "Roll until a team has the overall that you want"},

    {"TeamCreator.Text1", "Alt+C", "The city of the team"},
    {"TeamCreator.Text2", "Alt+A", "The name of the team"},
    {"TeamCreator.Combo1", "Alt+R", "The league of the team"},
    {"TeamCreator.List1", "Alt+1", "The players rolled"},
    {"TeamCreator.List4", "Alt+2", "The positions"},
    {"TeamCreator.List2", "Alt+3", "The given names"},
    {"TeamCreator.List3", "Alt+4", "The family names"},
    {"TeamCreator.Command2", "Alt+G", "Roll a team"},
    {"TeamCreator.Command1", "Alt+S", "Save the team"},

    {"FStartGame.List3", "Alt+1", "Choose the league of your team"},
    {"FStartGame.File1", "Alt+2", "Choose your team"},
    {"FStartGame.List4", "Alt+3", "Choose the league of your opponent"},
    {"FStartGame.File2", "Alt+4", "Choose your opponent"},
    {"FStartGame.HighButton1", "Alt+B", "Go to the game"},
    {"FStartGame.Label2", "Esc", "Back to the start screen"},

    {"Game.XTab1", "Alt+1", "Turn to the rosters or to the game"},
    {"Game.Line1", "Alt+H", "The lead line of the home team"},
    {"Game.Line2", "Alt+V", "The lead line of the visitor"},
    {"Game.Events", "Alt+P", "The play-by-play"},
    {"Game.HighButton1", "Alt+S", "Start the period"},
    {"Game.HighButton2", "Alt+C", "Close the game"},
    {"Game.Label5", "Alt+X", "Abandon the game"},

    {"Franchise.XTab1", "Alt+1", "Turn to the week, the news, the standings or the roster"},
    {"Franchise.HighButton1", "Alt+B", "Play the week"},
    {"Franchise.Command2", "Alt+S", "Simulate up to a week of your choice"},
    {"Franchise.Command5", "Alt+C", "End the simulation after this week"},
    {"Franchise.HighButton3", "Alt+A", "Save the franchise"},
    {"Franchise.Command6", "Alt+M", "Minimize the window"},
    {"Franchise.HighButton2", "Alt+L", "Back to the start screen"},
    {"Franchise.Alerts", "Alt+N", "The news, newest first"},
    {"Franchise.XTab2", "Ctrl+1", "Turn to the standings of a league"},
    {"Franchise.StatRankF", "", "The standings of Rank F"},
    {"Franchise.StatRankE", "", "The standings of Rank E"},
    {"Franchise.StatRankD", "", "The standings of Rank D"},
    {"Franchise.StatRankC", "", "The standings of Rank C"},
    {"Franchise.StatRankB", "", "The standings of Rank B"},
    {"Franchise.StatRankA", "", "The standings of Rank A"},
    {"Franchise.MainRoster", "Alt+D", "Your lead line; Enter shows a player"},
    {"Franchise.TrainingRoster", "Alt+T", "Your training line"},
    {"Franchise.Command3", "Right", "Move the selected lead player to the training line"},
    {"Franchise.Command4", "Left", "Move the selected training player to the lead line"},

    {"FPlayer.XTab1", "", "The player"},
    {"FPlayer.Label5", "Esc", "Close the player"},

    {"FResults.XTab1", "Alt+1", "Turn to the results or the final standings"},
    {"FResults.Command1", "Alt+D", "Go on to the draft"},
    {"FResults.List1", "Ctrl+1", "The final standings of Rank A"},
    {"FResults.List2", "Ctrl+2", "The final standings of Rank B"},
    {"FResults.List3", "Ctrl+3", "The final standings of Rank C"},
    {"FResults.List4", "Ctrl+4", "The final standings of Rank D"},
    {"FResults.List5", "Ctrl+5", "The final standings of Rank E"},
    {"FResults.List6", "Ctrl+6", "The final standings of Rank F"},

    {"FDraft.XTab1", "", "The draft"},
    {"FDraft.List1(0)", "Alt+1", "Goalies; Enter picks one"},
    {"FDraft.List2(0)", "Alt+2", "Left defenders; Enter picks one"},
    {"FDraft.List3(0)", "Alt+3", "Right defenders; Enter picks one"},
    {"FDraft.List4(0)", "Alt+4", "Left forwards; Enter picks one"},
    {"FDraft.List5(0)", "Alt+5", "Center forwards; Enter picks one"},
    {"FDraft.List6(0)", "Alt+6", "Right forwards; Enter picks one"},
    {"FDraft.Events", "Alt+H", "The history of the draft"},
    {"FDraft.Command1", "Alt+N", "Begin the new season"},

    {"FSelectDraft.XTab1", "", "Whom to let go"},
    {"FSelectDraft.List1", "Alt+1", "Your players; Enter lets one go"},
};

}  // namespace

std::span<const KeyHint> KeyHints() { return kHints; }

const KeyHint* HintOf(const Control& control) {
  const std::string name = control.FullName();
  for (const KeyHint& hint : kHints) {
    if (name == hint.control) return &hint;
  }
  return nullptr;
}

QString TipOf(const Control& control) {
  const KeyHint* hint = HintOf(control);
  if (hint == nullptr) return QString::fromUtf8(control.called().words);
  const QString words = QString::fromLatin1(hint->words);
  return *hint->key == '\0' ? words : words + " (" + hint->key + ")";
}

QChar AltLetter(const KeyHint* hint) {
  const QString key = hint == nullptr ? QString() : QString::fromLatin1(hint->key);
  return key.startsWith("Alt+") && key.size() == 5 ? key.back() : QChar();
}

}  // namespace frostmark
