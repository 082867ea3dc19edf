#include "desktop/decorations.h"
#include "desktop/delegates/record_delegate.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/widgets/room.h"
#include "world/team_creator.h"

namespace frostmark {

void DecorateTeamCreator(const TeamCreator& /*screen*/, ScreenForm& form) {
  auto& roster = Part<ListView>(form, "List1");
  roster.setItemDelegate(new RecordDelegate(&roster));
  GiveRoom(roster, 68, 11);
  GiveRoom(Part<ListView>(form, "List4"), 16, 3);
  GiveRoom(Part<ListView>(form, "List2"), 16, 3);
  GiveRoom(Part<ListView>(form, "List3"), 16, 3);
}

}  // namespace frostmark
