#pragma once

#include <QString>

namespace frostmark {

// The style sheet of the whole program, with the palette's colours in it.
QString StyleSheet();

// Gives the application its fonts, colours and style sheet.
void DressApplication();

}  // namespace frostmark
