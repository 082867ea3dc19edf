#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <optional>

namespace frostmark {

// Where windows go. The main screens take turns on one stage: they share one size and one center,
// so that the game seems to be a single window. The center is the screen's at the start and moves
// when the user drags a main screen. Popups lie beside the stage.
class Stage {
 public:
  // The size of a main screen without its shadow, in the application's letters.
  static QSize Size();
  // The same in letters of POINTS.
  static QSize Size(double points);

  // The place of a main screen's window of SIZE.
  QRect ForScreen(QSize size) const;
  // The place of a popup of SIZE beside OPENER: to the right of it, to the left of it, or over its
  // right edge, where the desktop has no room beside it.
  QRect ForPopup(QSize size, const QRect& opener) const;

  // The user has dragged a main screen there.
  void MoveTo(const QRect& window);
  // Begins around CENTER, if there still is a screen.
  void BeginAround(const QPoint& center);
  // The middle of the main screens, once the user has moved it.
  std::optional<QPoint> MovedTo() const;

  // Whether main screens cover the whole desktop.
  bool full_screen = false;

 private:
  bool moved_ = false;
  QPointF center_;
};

}  // namespace frostmark
