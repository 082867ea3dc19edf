#include "desktop/decorations.h"
#include "desktop/delegates/scout_delegate.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/widgets/glow_frame.h"
#include "desktop/widgets/room.h"
#include "draft/f_select_draft.h"

namespace frostmark {

void DecorateFSelectDraft(const FSelectDraft& screen, ScreenForm& form) {
  auto& list = Part<ListView>(form, "List1");
  list.setItemDelegate(new ScoutDelegate(screen.List2, &list));
  GiveRoom(list, 40, 11);
  list.setFocus();
  // The screen is only ever there when the user's choice is awaited.
  Part<GlowFrame>(form, "look_choice").SetLit(true);
}

}  // namespace frostmark
