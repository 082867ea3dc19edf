#pragma once

#include <QString>
#include <functional>

namespace frostmark {

class Screen;

// How to ask for the name of the user's team in the program of SCREEN, for all that marks the team.
// The empty text before a franchise has begun, which no team of a list is called.
std::function<QString()> OwnTeam(const Screen& screen);

}  // namespace frostmark
