#include "desktop/delegates/row_painter.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QWidget>

#include "desktop/palette.h"

namespace frostmark::row {

namespace {

constexpr double kDimmed = 0.4;

QPalette::ColorGroup Group(const QStyleOptionViewItem& option) {
  return option.state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled;
}

}  // namespace

int Height(const QStyleOptionViewItem& option) { return option.fontMetrics.height() * 17 / 10; }

double Margin(const QStyleOptionViewItem& option) { return option.fontMetrics.height() * 0.45; }

void PaintGround(QPainter& painter, const QStyleOptionViewItem& option) {
  const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
  style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, &painter, option.widget);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(option.font);
  if (option.state & QStyle::State_HasFocus) {
    painter.setPen(QPen(QColor(palette::kBlueBright), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), 5, 5);
  }
  if (!(option.state & QStyle::State_Enabled)) painter.setOpacity(kDimmed);
}

QColor TextColor(const QStyleOptionViewItem& option) {
  const bool selected = option.state & QStyle::State_Selected;
  return option.palette.color(Group(option), selected ? QPalette::HighlightedText : QPalette::Text);
}

QColor QuietColor(const QStyleOptionViewItem& option) {
  QColor color = TextColor(option);
  color.setAlphaF(color.alphaF() * 0.62);
  return color;
}

void PaintText(QPainter& painter, const QRectF& rect, const QString& text, const QColor& color,
               Qt::Alignment alignment) {
  painter.setPen(color);
  const QString fitting =
      QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, rect.width());
  painter.drawText(rect, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                   fitting);
}

void PaintRuns(QPainter& painter, const QRectF& rect, const std::vector<Run>& runs,
               const QColor& color) {
  const QFont font = painter.font();
  QRectF rest = rect;
  for (const Run& run : runs) {
    QFont own = font;
    if (run.bold) own.setWeight(QFont::DemiBold);
    painter.setFont(own);
    PaintText(painter, rest, run.text, color);
    rest.setLeft(rest.left() + QFontMetricsF(own).horizontalAdvance(run.text));
    if (rest.width() <= 0) break;
  }
  painter.setFont(font);
}

void PaintOwn(QPainter& painter, const QStyleOptionViewItem& option) {
  const QRectF rect = QRectF(option.rect).adjusted(1, 1, -1, -1);
  painter.setPen(Qt::NoPen);
  QColor tint(palette::kGold);
  tint.setAlphaF(0.16F);
  painter.setBrush(tint);
  painter.drawRoundedRect(rect, 5, 5);
  painter.setBrush(QColor(palette::kGold));
  painter.drawRoundedRect(QRectF(rect.left(), rect.top() + 3, 3.5, rect.height() - 6), 1.75, 1.75);
}

void PaintPlain(QPainter& painter, const QStyleOptionViewItem& option, const QString& text) {
  const double margin = Margin(option);
  PaintText(painter, QRectF(option.rect).adjusted(margin, 0, -margin, 0), text, TextColor(option));
}

}  // namespace frostmark::row
