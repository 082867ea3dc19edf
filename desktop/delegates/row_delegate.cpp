#include "desktop/delegates/row_delegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QImage>
#include <QPainter>
#include <QToolTip>

#include "desktop/painting/row_painter.h"

namespace frostmark {

void RowDelegate::PaintText(QPainter& painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  painter.setFont(option.font);
  if (!PaintRow(painter, option, index)) row::PaintPlain(painter, option, option.text);
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  QStyleOptionViewItem prepared = option;
  initStyleOption(&prepared, index);
  painter->save();
  PaintHead(*painter, prepared, index);
  row::PaintGround(*painter, prepared);
  PaintText(*painter, prepared, index);
  painter->restore();
}

bool RowDelegate::IsCut(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem prepared = option;
  initStyleOption(&prepared, index);
  QImage nowhere(1, 1, QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&nowhere);
  const row::CutWatch watch;
  PaintHead(painter, prepared, index);
  PaintText(painter, prepared, index);
  return watch.Any();
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option,
                            const QModelIndex& /*index*/) const {
  return {0, qRound(row::Height(option) * stretch_)};
}

bool RowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                            const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid() || !IsCut(option, index)) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  // Escaped, as a tooltip may take a text for markup.
  QToolTip::showText(event->globalPos(),
                     "<p style='white-space:pre'>" +
                         index.data(Qt::DisplayRole).toString().toHtmlEscaped() + "</p>",
                     view);
  return true;
}

}  // namespace frostmark
