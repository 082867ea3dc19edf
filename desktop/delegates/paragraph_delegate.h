#pragma once

#include <QFont>
#include <QHash>
#include <vector>

#include "desktop/delegates/row_delegate.h"
#include "desktop/painting/row_painter.h"

namespace frostmark {

// Draws rows that are whole sentences: a sign at the left end and the sentence beside it, on as
// many lines as the width of the list asks for. A list of such rows is not uniform.
class ParagraphDelegate : public RowDelegate {
  Q_OBJECT

 public:
  using RowDelegate::RowDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const final;

 protected:
  // The sentence of a row, and how it is drawn.
  struct Sentence {
    std::vector<row::Run> runs;
    QColor color;
    bool small = false;  // in small letters and close to its neighbbors
  };

  // Takes the text of OPTION apart. Without runs the row is drawn as plain text.
  virtual Sentence SentenceOf(const QStyleOptionViewItem& option) const = 0;

  // The room to the left of the sentence, and what is drawn there and under the sentence.
  virtual double Indent(const QStyleOptionViewItem& option) const = 0;
  virtual void PaintSign(QPainter& painter, const QStyleOptionViewItem& option) const = 0;

  bool PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                const QModelIndex& index) const final;

 private:
  Sentence Whole(const QStyleOptionViewItem& option) const;
  static QFont FontOf(const Sentence& sentence, const QStyleOptionViewItem& option);

  // The heights of the texts met so far, in the width and font that they were measured for: a
  // play-by-play of a thousand lines is laid out again at every new line.
  mutable QHash<QString, int> heights_;
  mutable int width_ = 0;
  mutable QFont font_;
};

}  // namespace frostmark
