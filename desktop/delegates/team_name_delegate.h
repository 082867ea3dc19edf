#pragma once

#include <QColor>
#include <QStyledItemDelegate>

namespace frostmark {

// Draws a team's name with a small crest in front of it.
class TeamNameDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  TeamNameDelegate(QColor colour, QObject* parent) : QStyledItemDelegate(parent), colour_(colour) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  QColor colour_;
};

}  // namespace frostmark
