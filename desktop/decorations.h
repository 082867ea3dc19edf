#pragma once

#include <QString>
#include <QWidget>

namespace frostmark {

class FDraft;
class FPlayer;
class FResults;
class FSelectDraft;
class FStartGame;
class Franchise;
class Game;
class Screen;
class ScreenForm;
class Startup;
class TeamCreator;

// Puts the widgets of SCREEN's Designer form on FORM.
void SetUpForm(const Screen& screen, ScreenForm& form);

// Adds what a form cannot say: delegates, pictures, what follows more than one control. FORM's
// widgets are already connected to the controls of SCREEN, which is only read.
void DecorateScreen(Screen& screen, ScreenForm& form);

// Each in screens/, in the file of its screen.
void DecorateStartup(Startup& screen, ScreenForm& form);
void DecorateTeamCreator(TeamCreator& screen, ScreenForm& form);
void DecorateFStartGame(FStartGame& screen, ScreenForm& form);
void DecorateGame(Game& screen, ScreenForm& form);
void DecorateFranchise(Franchise& screen, ScreenForm& form);
void DecorateFPlayer(FPlayer& screen, ScreenForm& form);
void DecorateFResults(FResults& screen, ScreenForm& form);
void DecorateFDraft(FDraft& screen, ScreenForm& form);
void DecorateFSelectDraft(FSelectDraft& screen, ScreenForm& form);

// The widget called NAME on FORM. A form without it is a fault of the build.
template <class Widget>
Widget& Part(const QWidget& form, const char* name) {
  Widget* part = form.findChild<Widget*>(QString::fromLatin1(name));
  Q_ASSERT_X(part != nullptr, "Part", name);
  return *part;
}

}  // namespace frostmark
