#include "desktop/widgets/versus_view.h"

#include <QPainter>
#include <QPainterPath>

#include "desktop/painting/measures.h"
#include "desktop/painting/palette.h"
#include "desktop/painting/team_crest.h"

namespace frostmark {
namespace {

void PaintSide(QPainter& painter, const QRectF& side, const QString& team, QRgb color,
               const QFont& face) {
  const double line = QFontMetricsF(face).height();
  const double height = side.height() - line * 1.3;
  QRectF crest(0, side.top(), height * kCrestBreadth, height);
  crest.moveCenter(QPointF(side.center().x(), crest.center().y()));
  // The side is a light behind the crest, whose colors are the team's own.
  QRadialGradient light(crest.center(), height * 0.5);
  QColor glow(color);
  glow.setAlpha(210);
  light.setColorAt(0.7, glow);
  glow.setAlpha(0);
  light.setColorAt(1, glow);
  painter.fillRect(side, light);
  const double halo = height * 0.07;
  PaintCrest(painter, crest.adjusted(halo, halo, -halo, -halo), team);
  painter.setFont(face);
  painter.setPen(QColor(palette::kIce));
  const QRectF name(side.left(), side.bottom() - line * 1.15, side.width(), line * 1.15);
  painter.drawText(name, Qt::AlignCenter,
                   QFontMetricsF(face).elidedText(team, Qt::ElideRight, name.width()));
}

}  // namespace

void VersusView::SetTeams(const QString& left, const QString& right) {
  if (left == left_ && right == right_) return;
  left_ = left;
  right_ = right;
  setAccessibleDescription(left + " - " + right);
  update();
}

QSize VersusView::sizeHint() const {
  const int line = fontMetrics().height();
  return {line * 26, line * 7};
}

void VersusView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF area(rect());
  const double middle = area.width() * 0.14;
  const double side = (area.width() - middle) / 2;

  QFont face = font();
  face.setFamilies({kScriptFace, kScriptStandIn});
  face.setPointSizeF(face.pointSizeF() * 1.5);
  PaintSide(painter, QRectF(area.left(), area.top(), side, area.height()), left_, palette::kBlue,
            face);
  PaintSide(painter, QRectF(area.right() - side, area.top(), side, area.height()), right_,
            palette::kRed, face);

  QFont letters(kPosterFace);
  letters.setPixelSize(std::max(8, static_cast<int>(area.height() * 0.26)));
  letters.setItalic(true);
  painter.setFont(letters);
  const bool both = !left_.isEmpty() && !right_.isEmpty();
  painter.setPen(QColor(both ? palette::kGold : palette::kEdge));
  painter.drawText(area.adjusted(0, 0, 0, -area.height() * 0.2), Qt::AlignCenter, "VS");
}

}  // namespace frostmark
