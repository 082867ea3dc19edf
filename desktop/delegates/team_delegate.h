#pragma once

#include <QStyledItemDelegate>
#include <functional>

#include "desktop/widgets/place_mark.h"

namespace frostmark {

// Draws a league's standings: place, team, wins, losses and ties in columns, with the place that
// goes up, the place that goes down and the user's own team marked. Places go by the order of the
// list, as the end of the season does.
class TeamDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // OWN_TEAM is asked at every painting.
  TeamDelegate(League league, std::function<QString()> own_team, QObject* parent);

  // Makes the rows TIMES as high as those of other lists.
  void StretchRows(double times) { row_stretch_ = times; }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  League league_;
  std::function<QString()> own_team_;
  double row_stretch_ = 1;
};

}  // namespace frostmark
