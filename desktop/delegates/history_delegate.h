#pragma once

#include <functional>

#include "desktop/delegates/paragraph_delegate.h"

namespace frostmark {

// Draws a line of the draft's history beside a sign for what happened: a player retired, was let go
// or was taken. The lines of the user's own team stand out.
class HistoryDelegate : public ParagraphDelegate {
  Q_OBJECT

 public:
  // OWN_TEAM is asked at every painting.
  HistoryDelegate(std::function<QString()> own_team, QObject* parent);

 protected:
  Sentence SentenceOf(const QStyleOptionViewItem& option) const override;
  double Indent(const QStyleOptionViewItem& option) const override;
  void PaintSign(QPainter& painter, const QStyleOptionViewItem& option) const override;

 private:
  std::function<QString()> own_team_;
};

}  // namespace frostmark
