#pragma once

#include "desktop/delegates/paragraph_delegate.h"

namespace frostmark {

// Draws a line of the play-by-play with a sign of what happened in front.
class PlayDelegate : public ParagraphDelegate {
  Q_OBJECT

 public:
  using ParagraphDelegate::ParagraphDelegate;

 protected:
  Sentence SentenceOf(const QStyleOptionViewItem& option) const override;
  double Indent(const QStyleOptionViewItem& option) const override;
  void PaintSign(QPainter& painter, const QStyleOptionViewItem& option) const override;
};

}  // namespace frostmark
