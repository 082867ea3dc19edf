#include <QPushButton>

#include "desktop/decorations.h"
#include "desktop/screen_form.h"
#include "shell/f_player.h"

namespace frostmark {

void DecorateFPlayer(const FPlayer& /*screen*/, ScreenForm& form) {
  // One look at the numbers, then Enter puts them away.
  Part<QPushButton>(form, "Label5").setFocus();
}

}  // namespace frostmark
