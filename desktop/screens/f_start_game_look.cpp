#include "desktop/decorations.h"
#include "desktop/delegates/team_name_delegate.h"
#include "desktop/fonts.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/widgets/empty_note.h"
#include "desktop/widgets/pin.h"
#include "desktop/widgets/room.h"
#include "desktop/widgets/versus_view.h"
#include "match/f_start_game.h"

namespace frostmark {
namespace {

void ShowTeams(ListView& list) {
  list.setItemDelegate(new TeamNameDelegate(&list));
  GiveRoom(list, 32, 7);
  new EmptyNote(list, "Choose a league first.");
}

QString Chosen(const RecordList& teams) {
  return QString::fromStdString(teams.List(teams.ListIndex()));
}

}  // namespace

void DecorateFStartGame(const FStartGame& screen, ScreenForm& form) {
  UsePosterFonts();
  GiveRoom(Part<ListView>(form, "List3"), 13, 7);
  GiveRoom(Part<ListView>(form, "List4"), 13, 7);
  ShowTeams(Part<ListView>(form, "File1"));
  ShowTeams(Part<ListView>(form, "File2"));
  new Pin(Part<QWidget>(form, "Label2"), Qt::AlignTop | Qt::AlignRight, {0, 12, 48, 0});

  auto& versus = Part<VersusView>(form, "look_versus");
  const auto follow = [&screen, &versus] {
    versus.SetTeams(Chosen(screen.File1), Chosen(screen.File2));
  };
  follow();
  QObject::connect(&form, &ScreenForm::Refreshed, &versus, follow);
}

}  // namespace frostmark
