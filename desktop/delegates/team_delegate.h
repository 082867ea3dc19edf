#pragma once

#include <functional>

#include "desktop/delegates/row_delegate.h"
#include "desktop/widgets/place_mark.h"

namespace frostmark {

// Draws a league's standings: place, team, wins, losses and ties in columns, with the place that
// goes up, the place that goes down and the user's own team marked. Places go by the order of the
// list, as the end of the season does.
class TeamDelegate : public RowDelegate {
  Q_OBJECT

 public:
  // OWN_TEAM is asked at every painting.
  TeamDelegate(League league, std::function<QString()> own_team, QObject* parent);

 protected:
  bool PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                const QModelIndex& index) const override;

 private:
  League league_;
  std::function<QString()> own_team_;
};

}  // namespace frostmark
