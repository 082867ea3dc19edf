#pragma once

#include <QString>
#include <functional>

class QLabel;

namespace frostmark {

class Screen;

// How to ask for the name of the user's team in the program of SCREEN, for all that marks the team.
// The empty text before a franchise has begun, which no team of a list is called.
std::function<QString()> OwnTeam(const Screen& screen);

// Writes LABEL in the color of the user's own team, or in its ordinary one.
void ShowOwn(QLabel& label, bool own);

}  // namespace frostmark
