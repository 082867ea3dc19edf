#include "desktop/painting/row_painter.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QWidget>
#include <algorithm>

#include "desktop/painting/palette.h"

namespace frostmark::row {

namespace {

QPalette::ColorGroup Group(const QStyleOptionViewItem& option) {
  return option.state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled;
}

}  // namespace

int Height(const QStyleOptionViewItem& option) { return option.fontMetrics.height() * 17 / 10; }

double Margin(const QFontMetrics& metrics) { return metrics.height() * 0.45; }

double Margin(const QStyleOptionViewItem& option) { return Margin(option.fontMetrics); }

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
}

QColor TextColor(const QStyleOptionViewItem& option) {
  const bool selected = option.state & QStyle::State_Selected;
  return option.palette.color(Group(option), selected ? QPalette::HighlightedText : QPalette::Text);
}

QColor QuietColor(const QStyleOptionViewItem& option) {
  QColor color = TextColor(option);
  // On the blue of the selection, or faint as it is, it would be too pale.
  if (option.state & QStyle::State_Selected || !(option.state & QStyle::State_Enabled)) {
    return color;
  }
  color.setAlphaF(color.alphaF() * 0.62);
  return color;
}

namespace {
CutWatch* watch_now = nullptr;
}  // namespace

CutWatch::CutWatch() { watch_now = this; }
CutWatch::~CutWatch() { watch_now = nullptr; }

void NoteCut() {
  if (watch_now != nullptr) watch_now->any_ = true;
}

void PaintText(QPainter& painter, const QRectF& rect, const QString& text, const QColor& color,
               Qt::Alignment alignment) {
  painter.setPen(color);
  const QString fitting =
      QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, rect.width());
  if (fitting != text) NoteCut();
  painter.drawText(rect, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                   fitting);
}

namespace {

// Lays RUNS out and returns their height.
double LayOut(QTextLayout& layout, double width, const std::vector<Run>& runs) {
  QList<QTextLayout::FormatRange> formats;
  QString text;
  for (const Run& run : runs) {
    if (run.bold) {
      QTextLayout::FormatRange range{
          static_cast<int>(text.size()), static_cast<int>(run.text.size()), {}};
      range.format.setFontWeight(QFont::DemiBold);
      formats.append(range);
    }
    text += run.text;
  }
  layout.setText(text);
  layout.setFormats(formats);
  QTextOption between_words;
  between_words.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(between_words);
  layout.beginLayout();
  double height = 0;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(std::max(1.0, width));
    line.setPosition(QPointF(0, height));
    height += line.height();
  }
  layout.endLayout();
  return height;
}

}  // namespace

double ParagraphHeight(double width, const std::vector<Run>& runs, const QFont& font) {
  QTextLayout layout(QString(), font);
  return LayOut(layout, width, runs);
}

void PaintParagraph(QPainter& painter, const QRectF& rect, const std::vector<Run>& runs,
                    const QFont& font, const QColor& color) {
  QTextLayout layout(QString(), font);
  const double height = LayOut(layout, rect.width(), runs);
  if (height > rect.height() + 1) NoteCut();
  painter.setPen(color);
  layout.draw(&painter, QPointF(rect.left(), rect.center().y() - height / 2));
}

void PaintOwn(QPainter& painter, const QStyleOptionViewItem& option) {
  const QRectF rect = QRectF(option.rect).adjusted(1, 1, -1, -1);
  painter.setPen(Qt::NoPen);
  QColor tint(palette::kGold);
  tint.setAlphaF(option.state & QStyle::State_Enabled ? 0.16F : 0.05F);
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
