#include "desktop/decorations.h"

namespace frostmark {

void DecorateFStartGame(FStartGame& /*screen*/, ScreenForm& /*form*/) {}

}  // namespace frostmark
