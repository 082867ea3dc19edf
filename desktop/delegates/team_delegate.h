#pragma once

#include <functional>

#include "desktop/delegates/row_delegate.h"
#include "desktop/painting/place_mark.h"

namespace frostmark {

// Draws a league's standings: place, team, wins, losses and ties in columns, with what the end of
// the season brings to a place and the user's own team marked. Places go by the order of the list,
// as the end of the season does.
class TeamDelegate : public RowDelegate {
  Q_OBJECT

 public:
  // FATE_OF, for places from 0, and OWN_TEAM are asked at every painting.
  TeamDelegate(std::function<Fate(int place)> fate_of, std::function<QString()> own_team,
               QObject* parent);

  // What the row of PLACE is marked with.
  Fate FateOfPlace(int place) const { return fate_of_(place); }

 protected:
  bool PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                const QModelIndex& index) const override;

 private:
  std::function<Fate(int place)> fate_of_;
  std::function<QString()> own_team_;
};

}  // namespace frostmark
