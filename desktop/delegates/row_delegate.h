#pragma once

#include <QStyledItemDelegate>

namespace frostmark {

// The base of the delegates that draw a list's rows. It draws what all rows share: the ground under
// the mouse, of the selected row and of the one with the keyboard focus. The content is PaintRow's.
class RowDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  // Draws TEXT, the list's own item, into BOUNDS, the row without its margins. The painter has the
  // row's font and the colour of plain text.
  virtual void PaintRow(QPainter& painter, const QRect& bounds, const QString& text,
                        const QStyleOptionViewItem& option) const;

  // How high a row is, in heights of a line of text.
  virtual double RowHeight() const { return 1.75; }
};

// Draws TEXT in BOUNDS, cut with three dots where it does not fit.
void DrawCut(QPainter& painter, const QRect& bounds, const QString& text,
             Qt::Alignment alignment = Qt::AlignVCenter | Qt::AlignLeft);

// Draws the small plate with a player's position (GO red, defence blue, forwards ice) in BOUNDS.
void DrawPositionBadge(QPainter& painter, const QRect& bounds, const QString& position);

// Draws a bar of RATING (0 to 99) in BOUNDS. Bars begin at 50, so that differences can be seen.
void DrawRatingBar(QPainter& painter, const QRect& bounds, int rating);

// The colour that goes with a rating: faint below 70, gold from 90.
QColor RatingColour(int rating);

}  // namespace frostmark
