#pragma once

namespace frostmark {

// Makes the shipped fonts known: the one of all plain text, which becomes the application's, and
// free stand-ins for the faces that the game names ("Arial Black", "Papyrus") where the system has
// neither.
void UseShippedFonts();

// The same for the two poster faces, which the start screen does without.
void UsePosterFonts();

}  // namespace frostmark
