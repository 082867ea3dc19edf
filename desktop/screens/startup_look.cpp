#include "desktop/decorations.h"

namespace frostmark {

void DecorateStartup(Startup& /*screen*/, ScreenForm& /*form*/) {}

}  // namespace frostmark
