#pragma once

#include <QStyledItemDelegate>

namespace frostmark {

// What the drawing of every list has in common: the ground of a row with selection, hover and
// keyboard focus, the list's own text where a row is in no known form, and a tooltip with the whole
// text where it does not fit. The list's text itself stays as it is.
class RowDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // Makes the rows TIMES as high as those of other lists.
  void StretchRows(double times) { stretch_ = times; }

  // Whether some of the text of the row is left out in the room that OPTION gives it.
  bool IsCut(const QStyleOptionViewItem& option, const QModelIndex& index) const;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const final;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 protected:
  // Draws what heads the row of OPTION and takes its room off OPTION's rect; nothing in most lists.
  virtual void PaintHead(QPainter& /*painter*/, QStyleOptionViewItem& /*option*/,
                         const QModelIndex& /*index*/) const {}

  // Draws the row of OPTION, whose text and font are set, on its ground. Returns false, with
  // nothing drawn, when the text is in no form that the delegate knows.
  virtual bool PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const = 0;

 private:
  void PaintText(QPainter& painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const;

  double stretch_ = 1;
};

}  // namespace frostmark
