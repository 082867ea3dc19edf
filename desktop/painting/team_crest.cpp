#include "desktop/painting/team_crest.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "desktop/painting/measures.h"
#include "desktop/painting/palette.h"

namespace frostmark {
namespace {

// Any of the first stands out from any of the second, and from the night around the crest.
constexpr std::array<QRgb, 8> kLight = {0xFFF2F7FC, 0xFFF4C552, 0xFF9AD0FF, 0xFF7FE0B8,
                                        0xFFFFB067, 0xFFFFA9B8, 0xFFCBE66E, 0xFFCDB8FF};
constexpr std::array<QRgb, 8> kDark = {0xFF143A86, 0xFF8E1624, 0xFF0C4A2E, 0xFF4B1F7A,
                                       0xFF0B4B58, 0xFF5E0F3A, 0xFF161A20, 0xFF5A3210};

constexpr double kRimWidth = 0.075;  // of the crest

QString Initials(const QString& team) {
  QString initials;
  for (const QString& word : team.split(' ', Qt::SkipEmptyParts)) initials += word[0].toUpper();
  return initials.left(2);
}

// A number that a name always gets, on every machine. Names that are nearly the same get numbers
// that are not.
std::uint32_t NumberOf(const QString& team) {
  std::uint32_t number = 2166136261U;
  for (const QChar letter : team) number = (number ^ letter.unicode()) * 16777619U;
  number = (number ^ (number >> 16U)) * 0x7FEB352DU;
  number = (number ^ (number >> 15U)) * 0x846CA68BU;
  return number ^ (number >> 16U);
}

// Paths on a ground of one by one.
QPainterPath Polygon(std::initializer_list<QPointF> points) {
  QPainterPath path;
  path.addPolygon(QPolygonF(QList<QPointF>(points)));
  path.closeSubpath();
  return path;
}

QPainterPath PointedShield() {
  QPainterPath shield(QPointF(0.5, 0));
  shield.quadTo(QPointF(0.72, 0.1), QPointF(0.97, 0.1));
  shield.cubicTo(QPointF(1.0, 0.55), QPointF(0.88, 0.82), QPointF(0.5, 1));
  shield.cubicTo(QPointF(0.12, 0.82), QPointF(0.0, 0.55), QPointF(0.03, 0.1));
  shield.quadTo(QPointF(0.28, 0.1), QPointF(0.5, 0));
  return shield;
}

QPainterPath SquareShield() {
  QPainterPath shield(QPointF(0.04, 0.03));
  shield.lineTo(0.96, 0.03);
  shield.lineTo(0.96, 0.66);
  shield.quadTo(QPointF(0.94, 0.8), QPointF(0.5, 0.98));
  shield.quadTo(QPointF(0.06, 0.8), QPointF(0.04, 0.66));
  shield.closeSubpath();
  return shield;
}

QPainterPath ShapeOf(int shape) {
  switch (shape) {
    case 0:
      return PointedShield();
    case 1:
      return SquareShield();
    case 2: {
      QPainterPath disc;
      disc.addEllipse(QRectF(0, 0.07, 1, 0.86));
      return disc;
    }
    case 3:
      return Polygon({{0.5, 0}, {0.98, 0.23}, {0.98, 0.77}, {0.5, 1}, {0.02, 0.77}, {0.02, 0.23}});
    default:
      return Polygon(
          {{0.2, 0.03}, {0.8, 0.03}, {1, 0.22}, {0.9, 0.72}, {0.5, 0.98}, {0.1, 0.72}, {0, 0.22}});
  }
}

// Leaves the middle to the letters.
QPainterPath PatternOf(int pattern) {
  QPainterPath path;
  switch (pattern) {
    case 0:  // a field of its own
      break;
    case 1:  // a head
      path.addRect(QRectF(0, 0, 1, 0.24));
      break;
    case 2:  // a foot
      path.addRect(QRectF(0, 0.72, 1, 0.28));
      break;
    case 3:  // the sides
      path.addRect(QRectF(0, 0, 0.17, 1));
      path.addRect(QRectF(0.83, 0, 0.17, 1));
      break;
    case 4:  // a bar above and one below
      path.addRect(QRectF(0, 0.17, 1, 0.07));
      path.addRect(QRectF(0, 0.72, 1, 0.07));
      break;
    case 5:  // a chevron
      path = Polygon({{0, 0.64}, {0.5, 0.78}, {1, 0.64}, {1, 0.78}, {0.5, 0.92}, {0, 0.78}});
      break;
    case 6:  // the upper corners
      path = Polygon({{0, 0}, {0.46, 0}, {0, 0.44}});
      path.addPath(Polygon({{1, 0}, {0.54, 0}, {1, 0.44}}));
      break;
    default:  // a head and a point in the foot
      path.addRect(QRectF(0, 0, 1, 0.2));
      path.addPath(Polygon({{0.1, 1}, {0.5, 0.74}, {0.9, 1}}));
      break;
  }
  return path;
}

// SHAPE a little smaller, around its middle.
QPainterPath Within(const QPainterPath& shape, double border) {
  QTransform inward;
  inward.translate(0.5, 0.5);
  inward.scale(1 - 2 * border, 1 - 2 * border);
  inward.translate(-0.5, -0.5);
  return inward.map(shape);
}

void PaintLetters(QPainter& painter, const QRectF& rect, const TeamCrest& crest) {
  QFont face(kPosterFace);
  face.setPixelSize(std::max(6, static_cast<int>(std::lround(rect.height() * 0.38))));
  painter.setFont(face);
  painter.setPen(crest.ornament);
  painter.drawText(rect.adjusted(-rect.width(), 0, rect.width(), -rect.height() * 0.03),
                   Qt::AlignCenter, crest.letters);
}

}  // namespace

QColor TeamCrest::Rim() const {
  return field.lightnessF() > ornament.lightnessF() ? field : ornament;
}

TeamCrest CrestOf(const QString& team) {
  std::uint32_t number = NumberOf(team);
  const auto choose = [&number](std::size_t choices) {
    const std::size_t chosen = number % choices;
    number /= static_cast<std::uint32_t>(choices);
    return chosen;
  };
  QColor field(kDark[choose(kDark.size())]);
  QColor ornament(kLight[choose(kLight.size())]);
  const int shape = static_cast<int>(choose(TeamCrest::kShapes));
  const int pattern = static_cast<int>(choose(TeamCrest::kPatterns));
  // A light field is the rarer one: at night it is the louder one.
  if (choose(3) == 0) std::swap(field, ornament);
  return {shape, pattern, field, ornament, Initials(team)};
}

void PaintCrest(QPainter& painter, const QRectF& rect, const QString& team) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  QTransform onto;
  onto.translate(rect.left(), rect.top());
  onto.scale(rect.width(), rect.height());
  if (team.isEmpty()) {
    painter.setBrush(QColor(255, 255, 255, 14));
    painter.setPen(QPen(QColor(palette::kEdge), rect.height() * 0.045, Qt::DashLine));
    painter.drawPath(onto.map(PointedShield()));
    painter.restore();
    return;
  }
  const TeamCrest crest = CrestOf(team);
  const QPainterPath shape = ShapeOf(crest.shape);
  painter.fillPath(onto.map(shape), crest.Rim());
  QPainterPath inner = Within(shape, kRimWidth / 2);
  if (crest.field == crest.Rim()) {
    painter.fillPath(onto.map(inner), crest.ornament);
    inner = Within(shape, kRimWidth);
  }
  painter.fillPath(onto.map(inner), crest.field);
  painter.fillPath(onto.map(inner.intersected(PatternOf(crest.pattern))), crest.ornament);
  PaintLetters(painter, rect, crest);
  painter.restore();
}

}  // namespace frostmark
