#pragma once

#include <QString>

class QWidget;

namespace frostmark {

// The style sheet of the whole program, with the palette's colours in it.
QString StyleSheet();

// Gives the application its fonts, colours and style sheet. ZOOM is the size of its letters, and so
// of all that is measured in letters, against those that the user's own font comes to.
void DressApplication(double zoom = 1);
// What it was last dressed with.
double Zoom();

// The zoom at which a main screen has room on the desktop: 1, or less where the desktop is small or
// the user's font large.
double FittingZoom();

// Gives the spaces of the layouts on FORM, which are pixels in Designer, the present zoom.
void ZoomLayouts(const QWidget& form);

}  // namespace frostmark
