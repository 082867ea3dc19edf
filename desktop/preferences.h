#pragma once

#include <QPoint>
#include <optional>

// What the desktop remembers of its user from one sitting to the next. It lies in the user's own
// settings, never in a world.
namespace frostmark::preferences {

// How many times as large as usual everything is drawn, where the desktop has room for it.
double Zoom();
void SetZoom(double zoom);

// Where the user has dragged the middle of the main screens, nothing before that.
std::optional<QPoint> Center();
void SetCenter(const QPoint& center);

bool FullScreen();
void SetFullScreen(bool full);

}  // namespace frostmark::preferences
