#include "desktop/decorations.h"

namespace frostmark {

void DecorateGame(Game& /*screen*/, ScreenForm& /*form*/) {}

}  // namespace frostmark
