#include "desktop/decorations.h"

namespace frostmark {

void DecorateTeamCreator(TeamCreator& /*screen*/, ScreenForm& /*form*/) {}

}  // namespace frostmark
