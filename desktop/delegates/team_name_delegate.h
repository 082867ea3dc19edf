#pragma once

#include <QColor>

#include "desktop/delegates/row_delegate.h"

namespace frostmark {

// Draws a team's name with a small crest in front of it.
class TeamNameDelegate : public RowDelegate {
  Q_OBJECT

 public:
  TeamNameDelegate(QColor colour, QObject* parent) : RowDelegate(parent), colour_(colour) {}

 protected:
  bool PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                const QModelIndex& index) const override;

 private:
  QColor colour_;
};

}  // namespace frostmark
