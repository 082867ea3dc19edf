#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

class QPainter;

namespace frostmark {

// How a team's crest looks. It follows from the name alone, on every machine, so that a team is
// known again wherever it stands. Of the two colors one is light and one is dark: letters in the
// one are legible on the other, and the light one stands out from every ground of the desktop.
struct TeamCrest {
  static constexpr int kShapes = 5;
  static constexpr int kPatterns = 8;

  int shape;        // of the shield, from 0
  int pattern;      // on it, from 0
  QColor field;     // under the letters
  QColor ornament;  // of the pattern and the letters
  QString letters;  // the first ones of the name's words, two at most

  QColor Rim() const;  // the lighter of the two

  bool operator==(const TeamCrest&) const = default;
};

TeamCrest CrestOf(const QString& team);

// The breadth of a crest against its height.
inline constexpr double kCrestBreadth = 0.86;

// Draws the crest of a team into RECT. Without a name the shield is empty.
void PaintCrest(QPainter& painter, const QRectF& rect, const QString& team);

}  // namespace frostmark
