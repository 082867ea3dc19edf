#pragma once

#include <QFontMetricsF>

namespace frostmark {

// The columns of a league's standings, from the font alone, so that the heading stands over them.
struct TeamColumns {
  explicit TeamColumns(const QFont& font) {
    const QFontMetricsF metrics(font);
    gap = metrics.height() * 0.45;
    mark = metrics.height() * 0.75;
    place = metrics.horizontalAdvance("0") * 1.3;         // the own place is bold
    count = metrics.horizontalAdvance("00") + gap * 0.8;  // ten weeks: no more than two digits
  }

  double gap;
  double mark;
  double place;
  double count;  // each of wins, losses, ties
};

}  // namespace frostmark
