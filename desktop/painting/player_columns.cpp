#include "desktop/painting/player_columns.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "desktop/painting/position_badge.h"
#include "desktop/painting/row_painter.h"

namespace frostmark {
namespace {

QFont Bold(QFont font) {
  font.setWeight(QFont::DemiBold);
  return font;
}

// The room for any number of two digits: the digits of a face need not be equally wide.
double TwoDigits(const QFont& font) {
  const QFontMetricsF metrics(font);
  double widest = 0;
  for (char digit = '0'; digit <= '9'; ++digit) {
    widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
  }
  return std::ceil(2 * widest) + 1;
}

}  // namespace

PlayerColumns::PlayerColumns(const QFont& font)
    : gap(row::Margin(QFontMetrics(font))),
      badge(PositionBadgeSize(QFontMetricsF(font))),
      mark(std::ceil(QFontMetricsF(Bold(font)).horizontalAdvance("x2")) + 1),
      number(TwoDigits(Bold(font))),
      name(QFontMetrics(font).averageCharWidth() * 18.0),
      age(TwoDigits(font)),
      shortest_bar(QFontMetrics(font).averageCharWidth() * 3.0),
      longest_bar(QFontMetrics(font).averageCharWidth() * 16.0) {}

}  // namespace frostmark
