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
// widgets are already connected to the controls of SCREEN.
void DecorateScreen(const Screen& screen, ScreenForm& form);

// Each in screens/, in the file of its screen.
void DecorateStartup(const Startup& screen, ScreenForm& form);
void DecorateTeamCreator(const TeamCreator& screen, ScreenForm& form);
void DecorateFStartGame(const FStartGame& screen, ScreenForm& form);
void DecorateGame(const Game& screen, ScreenForm& form);
void DecorateFranchise(const Franchise& screen, ScreenForm& form);
void DecorateFPlayer(const FPlayer& screen, ScreenForm& form);
void DecorateFResults(const FResults& screen, ScreenForm& form);
void DecorateFDraft(const FDraft& screen, ScreenForm& form);
void DecorateFSelectDraft(const FSelectDraft& screen, ScreenForm& form);

// The widget called NAME on FORM. A form without it is a fault of the build.
template <class Widget>
Widget& Part(const QWidget& form, const char* name) {
  Widget* part = form.findChild<Widget*>(QString::fromLatin1(name));
  Q_ASSERT_X(part != nullptr, "Part", name);
  return *part;
}

}  // namespace frostmark
