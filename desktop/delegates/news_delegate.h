#pragma once

#include <functional>

#include "desktop/delegates/paragraph_delegate.h"

namespace frostmark {

// Draws a line of the season's news with the winner's name bold. A game of the user's own stands
// out, with a disc that tells whether it was won, lost or tied.
class NewsDelegate : public ParagraphDelegate {
  Q_OBJECT

 public:
  // OWN_TEAM is asked at every painting.
  NewsDelegate(std::function<QString()> own_team, QObject* parent);

 protected:
  Sentence SentenceOf(const QStyleOptionViewItem& option) const override;
  double Indent(const QStyleOptionViewItem& option) const override;
  void PaintSign(QPainter& painter, const QStyleOptionViewItem& option) const override;

 private:
  std::function<QString()> own_team_;
};

}  // namespace frostmark
