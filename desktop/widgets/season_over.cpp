#include "desktop/widgets/season_over.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/painting/cup.h"
#include "desktop/painting/palette.h"

namespace frostmark {

namespace {

constexpr const char* kOver = "The season is over";
constexpr const char* kNext = "Begin leads to its results and the draft";

}  // namespace

SeasonOver::SeasonOver(QWidget& card, QWidget& from) : QWidget(&card), from_(from) {
  setAccessibleName(QStringLiteral("%1. %2").arg(kOver, kNext));
  card.installEventFilter(this);
  from.installEventFilter(this);
  hide();
}

void SeasonOver::Place() {
  constexpr int kEdge = 2;
  const QRect card = parentWidget()->rect().adjusted(kEdge, kEdge, -kEdge, -kEdge);
  setGeometry(card.adjusted(from_.mapTo(parentWidget(), QPoint()).x() - card.left(), 0, -8, 0));
  raise();
}

bool SeasonOver::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Move) Place();
  return false;
}

void SeasonOver::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), QColor(palette::kPanel));
  const double line = fontMetrics().height();
  const double cup = std::min(line * 3, height() * 0.42);
  const double all = cup + line * 2.8;
  double top = (height() - all) / 2;
  PaintCup(painter, QRectF((width() - cup) / 2, top, cup, cup), palette::kGold);
  top += cup + line * 0.3;
  QFont large = font();
  large.setPixelSize(qRound(QFontInfo(large).pixelSize() * 1.2));
  large.setWeight(QFont::DemiBold);
  painter.setFont(large);
  painter.setPen(QColor(palette::kIce));
  painter.drawText(QRectF(0, top, width(), line * 1.3), Qt::AlignCenter, kOver);
  painter.setFont(font());
  painter.setPen(QColor(palette::kFrost));
  painter.drawText(QRectF(0, top + line * 1.35, width(), line * 1.15), Qt::AlignCenter, kNext);
}

}  // namespace frostmark
