#include "desktop/decorations.h"
#include "desktop/screen_form.h"
#include "shell/f_player.h"

namespace frostmark {

// The form says it all.
void DecorateFPlayer(FPlayer& /*screen*/, ScreenForm& /*form*/) {}

}  // namespace frostmark
