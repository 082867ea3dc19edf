#include "desktop/widgets/crest_mark.h"

#include <QPainter>
#include <algorithm>

#include "desktop/painting/team_crest.h"

namespace frostmark {

void CrestMark::SetTeam(const QString& team) {
  if (team == team_) return;
  team_ = team;
  update();
}

QSize CrestMark::sizeHint() const {
  const double high = fontMetrics().height() * lines_;
  return {qRound(high * kCrestBreadth), qRound(high)};
}

void CrestMark::paintEvent(QPaintEvent* /*event*/) {
  if (team_.isEmpty()) return;
  const double high = std::min<double>(sizeHint().height(), height());
  QRectF crest(0, 0, high * kCrestBreadth, high);
  crest.moveCenter(QRectF(rect()).center());
  QPainter painter(this);
  PaintCrest(painter, crest, team_);
}

}  // namespace frostmark
