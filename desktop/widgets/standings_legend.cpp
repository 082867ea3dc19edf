#include "desktop/widgets/standings_legend.h"

#include <QFontMetricsF>
#include <QPainter>
#include <array>
#include <cmath>

#include "desktop/painting/palette.h"

namespace frostmark {

namespace {

struct Entry {
  Fate fate;  // kStays stands for the user's own team
  const char* text;
};

constexpr std::array kEntries = {
    Entry{Fate::kGoesUp, "goes up"},
    Entry{Fate::kGoesDown, "goes down"},
    Entry{Fate::kChampion, "champion"},
    Entry{Fate::kStays, "your team"},
};

}  // namespace

QSize StandingsLegend::sizeHint() const {
  const QFontMetricsF metrics(font());
  double width = 0;
  for (const Entry& entry : kEntries) {
    width += metrics.height() * 2.6 + metrics.horizontalAdvance(entry.text);
  }
  return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(metrics.height() * 1.5))};
}

void StandingsLegend::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QFontMetricsF metrics(font());
  const double size = metrics.height() * 0.7;
  const double middle = height() / 2.0;
  double left = metrics.height() * 0.4;
  for (const Entry& entry : kEntries) {
    QRectF mark(left, middle - size / 2, size, size);
    if (entry.fate == Fate::kStays) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(QColor(palette::kGold));
      painter.drawRoundedRect(QRectF(mark.center().x() - 1.75, mark.top(), 3.5, size), 1.75, 1.75);
    } else {
      PaintFate(painter, mark, entry.fate);
    }
    left += size + metrics.height() * 0.5;
    const double width = metrics.horizontalAdvance(entry.text);
    painter.setPen(QColor(palette::kFrost));
    painter.drawText(QRectF(left, 0, width + 1, height()), Qt::AlignVCenter, entry.text);
    left += width + metrics.height() * 1.4;
  }
}

}  // namespace frostmark
