#pragma once

namespace frostmark {

// Makes the shipped fonts known: the one of all plain text, which becomes the application's, and
// free stand-ins for the faces that the game names ("Arial Black", "Papyrus") where the system has
// neither. ZOOM multiplies its size.
void UseShippedFonts(double zoom);

// The size of plain text at a zoom of 1, in points: it follows the user's desktop.
double PlainPoints();

// The same for the two poster faces, which the start screen does without.
void UsePosterFonts();

}  // namespace frostmark
