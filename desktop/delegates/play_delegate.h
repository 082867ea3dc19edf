#pragma once

#include <QStyledItemDelegate>

namespace frostmark {

// What a line of the play-by-play tells.
enum class Play { kPass, kFaceOff, kSteal, kSave, kGoal, kPeriodEnd, kResult, kOther };

Play PlayOf(const QString& line);

// Draws a line of the play-by-play on two lines of text, with a sign of what happened in front. The
// text is the list's own, broken between words.
class PlayDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace frostmark
