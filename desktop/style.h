#pragma once

#include <QString>

class QWidget;

namespace frostmark {

// The style sheet of the whole program, with the palette's colors in it.
QString StyleSheet();

// Gives the application its fonts, colors and style sheet. ZOOM is the size of its letters, and so
// of all that is measured in letters, against those of the user's own font.
void DressApplication(double zoom = 1);
// What it was last dressed with.
double Zoom();

// The zoom for somebody who wants WANTED times the usual size: less where the desktop is small or
// the user's font large, so that a main screen has room on it.
double FittingZoom(double wanted = 1);

// Gives the spaces of the layouts on FORM, which are pixels in Designer, the present zoom. May be
// called again after another.
void ZoomLayouts(const QWidget& form);

}  // namespace frostmark
