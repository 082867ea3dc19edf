#include "desktop/delegates/team_name_delegate.h"

#include <QPainter>

#include "desktop/painting/row_painter.h"
#include "desktop/painting/team_crest.h"

namespace frostmark {

bool TeamNameDelegate::PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                                const QModelIndex& /*index*/) const {
  const double margin = row::Margin(option);
  const double high = option.rect.height() * 0.78;
  const QRectF crest(option.rect.left() + margin, option.rect.center().y() - high / 2 + 0.5,
                     high * kCrestBreadth, high);
  PaintCrest(painter, crest, option.text);
  QRectF name(option.rect);
  name.setLeft(crest.right() + margin);
  name.setRight(name.right() - margin);
  row::PaintText(painter, name, option.text, row::TextColor(option));
  return true;
}

}  // namespace frostmark
