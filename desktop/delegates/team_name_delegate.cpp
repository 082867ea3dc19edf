#include "desktop/delegates/team_name_delegate.h"

#include <QPainter>

#include "desktop/delegates/row_painter.h"
#include "desktop/widgets/team_crest.h"

namespace frostmark {

void TeamNameDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  QStyleOptionViewItem prepared = option;
  initStyleOption(&prepared, index);
  painter->save();
  row::PaintGround(*painter, prepared);
  const double margin = row::Margin(prepared);
  const double high = prepared.rect.height() * 0.78;
  const QRectF crest(prepared.rect.left() + margin, prepared.rect.center().y() - high / 2 + 0.5,
                     high * 0.86, high);
  PaintCrest(*painter, crest, prepared.text, colour_);
  QRectF name(prepared.rect);
  name.setLeft(crest.right() + margin);
  name.setRight(name.right() - margin);
  row::PaintText(*painter, name, prepared.text, row::TextColor(prepared));
  painter->restore();
}

QSize TeamNameDelegate::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& /*index*/) const {
  return {0, row::Height(option)};
}

}  // namespace frostmark
