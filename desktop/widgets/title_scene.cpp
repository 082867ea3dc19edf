#include "desktop/widgets/title_scene.h"

#include <QLayout>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <array>
#include <cmath>

#include "desktop/painting/palette.h"
#include "desktop/painting/wordmark.h"

namespace frostmark {
namespace {

constexpr double kHorizon = 0.46;  // of the height: where the ice meets the boards
constexpr int kCorner = 13;        // just inside the window's own edge

QColor Glass(QRgb color, int alpha) {
  QColor glass(color);
  glass.setAlpha(alpha);
  return glass;
}

// Points on the ice. ACROSS runs from -1 (left boards) to 1; DEPTH from 0 (at our feet) to 1 (the
// far boards).
class Perspective {
 public:
  explicit Perspective(const QRectF& area) : area_(area) {}

  QPointF At(double across, double depth) const {
    const double nearness = 1 / (1 + 3.4 * depth);
    const double horizon = area_.top() + area_.height() * kHorizon;
    const double fall = (nearness - 1 / 4.4) / (1 - 1 / 4.4);  // 1 at our feet, 0 at the boards
    return {area_.center().x() + area_.width() * (0.17 + across * nearness * 1.25),
            horizon + fall * (area_.bottom() - horizon)};
  }

 private:
  QRectF area_;
};

void DrawNight(QPainter& painter, const QRectF& area) {
  QLinearGradient night(area.topLeft(), area.bottomLeft());
  night.setColorAt(0, QColor(palette::kDeep));
  night.setColorAt(kHorizon, QColor(0x1B, 0x45, 0x83));
  painter.fillRect(QRectF(area.topLeft(), QSizeF(area.width(), area.height() * kHorizon)), night);
}

// The floodlights: cones of light from under the roof.
void DrawLights(QPainter& painter, const QRectF& area) {
  painter.setPen(Qt::NoPen);
  const double floor = area.top() + area.height() * (kHorizon + 0.1);
  for (const double at : {0.42, 0.62, 0.82, 1.02}) {
    const QPointF lamp(area.left() + area.width() * at, area.top() - area.height() * 0.02);
    QLinearGradient fade(lamp, QPointF(lamp.x(), floor));
    fade.setColorAt(0, Glass(palette::kIce, 62));
    fade.setColorAt(1, Glass(palette::kIce, 0));
    painter.setBrush(fade);
    const double lean = (at - 0.72) * area.width() * 0.3;
    const double half = area.width() * 0.13;
    painter.drawPolygon(QPolygonF(
        {lamp, QPointF(lamp.x() + lean - half, floor), QPointF(lamp.x() + lean + half, floor)}));
    QRadialGradient glare(lamp, area.height() * 0.12);
    glare.setColorAt(0, Glass(0xFFFFFFFF, 150));
    glare.setColorAt(1, Glass(0xFFFFFFFF, 0));
    painter.setBrush(glare);
    painter.drawEllipse(lamp, area.height() * 0.12, area.height() * 0.12);
  }
}

// A piece of the far stand: rows of heads, a little uneven, every time the same. The rows behind
// are darker.
QPixmap CrowdPiece(double size, int heads, double scale) {
  constexpr std::array<QRgb, 5> kCoats = {0xFF22406E, 0xFF2D548C, 0xFF183259, 0xFF7E3347,
                                          0xFF50709D};
  constexpr int kRows = 7;
  const double pitch = size * 1.75;
  QPixmap piece((QSizeF(pitch * heads, size * (kRows * 1.5 + 1)) * scale).toSize());
  piece.setDevicePixelRatio(scale);
  piece.fill(Qt::transparent);
  QPainter painter(&piece);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  unsigned int noise = 7;
  for (int row = 0; row < kRows; ++row) {
    for (int head = -1; head <= heads; ++head) {
      noise = noise * 1103515245U + 12345U;
      QColor coat(kCoats[(noise >> 16U) % kCoats.size()]);
      coat.setAlpha(66 + row * 24);
      painter.setBrush(coat);
      const double nudge = size * 0.5 * ((noise >> 20U) % 8U) / 8.0;
      const double x = head * pitch + nudge + (row % 2) * size * 0.9;
      painter.drawEllipse(QPointF(x, size * (1 + row * 1.5) - nudge), size * 0.8, size);
    }
  }
  return piece;
}

double HeadSize(const QRectF& area) { return area.height() * 0.0145; }

// One piece of the crowd, again and again: nobody looks at the faces.
void DrawCrowd(QPainter& painter, const QRectF& area, const QPixmap& piece) {
  const double high = piece.deviceIndependentSize().height();
  const double floor = area.top() + area.height() * (kHorizon - 0.02);
  painter.drawTiledPixmap(QRectF(area.left(), floor - high, area.width(), high), piece);
}

// A line across the whole ice, between two depths.
QPolygonF LineAcross(const Perspective& ice, double near, double far) {
  return QPolygonF({ice.At(-3, near), ice.At(3, near), ice.At(3, far), ice.At(-3, far)});
}

QPainterPath Ring(const Perspective& ice, double across, double depth, double radius) {
  QPainterPath ring;
  constexpr int kSteps = 72;
  for (int i = 0; i <= kSteps; ++i) {
    const double angle = i * 2 * 3.14159265358979 / kSteps;
    const QPointF point =
        ice.At(across + std::cos(angle) * radius, depth + std::sin(angle) * radius * 0.32);
    if (i == 0) {
      ring.moveTo(point);
    } else {
      ring.lineTo(point);
    }
  }
  return ring;
}

// The mark in the center circle: six arms of frost.
void DrawFrost(QPainter& painter, const Perspective& ice, double line) {
  constexpr double kAcross = 0;
  constexpr double kDepth = 0.25;
  const auto at = [&ice](double angle, double out) {
    return ice.At(kAcross + std::cos(angle) * out, kDepth + std::sin(angle) * out * 0.32);
  };
  painter.setPen(QPen(Glass(palette::kBlue, 150), line, Qt::SolidLine, Qt::RoundCap));
  for (int arm = 0; arm < 6; ++arm) {
    const double angle = (arm + 0.5) * 3.14159265358979 / 3;
    painter.drawLine(at(angle, 0.06), at(angle, 0.23));
    for (const double side : {-0.24, 0.24}) {
      painter.drawLine(at(angle, 0.13), at(angle + side, 0.19));
      painter.drawLine(at(angle, 0.18), at(angle + side * 0.7, 0.235));
    }
  }
}

// What skates have left: long, thin arcs, every time the same.
void DrawTraces(QPainter& painter, const QRectF& area) {
  struct Trace {
    double x, y, to_x, to_y, bend;
  };
  constexpr std::array<Trace, 7> kTraces = {{{0.33, 0.97, 0.62, 0.84, -0.05},
                                             {0.38, 0.99, 0.70, 0.88, -0.06},
                                             {0.02, 0.82, 0.40, 0.93, 0.04},
                                             {0.30, 0.70, 0.46, 0.62, -0.02},
                                             {0.86, 0.64, 0.99, 0.72, 0.02},
                                             {0.52, 0.93, 0.80, 0.985, 0.02},
                                             {0.90, 0.58, 0.78, 0.64, 0.02}}};
  const auto place = [&area](double x, double y) {
    return QPointF(area.left() + area.width() * x, area.top() + area.height() * y);
  };
  // Filled, as a long thin line is slow to stroke; and a trace runs out at its ends.
  painter.setPen(Qt::NoPen);
  const QPointF depth(0, area.height() * 0.0052);
  for (const Trace& trace : kTraces) {
    const QPointF from = place(trace.x, trace.y);
    const QPointF to = place(trace.to_x, trace.to_y);
    const QPointF by = place((trace.x + trace.to_x) / 2, (trace.y + trace.to_y) / 2 + trace.bend);
    const auto cut = [&](const QPointF& upper, const QPointF& lower, const QColor& color) {
      QPainterPath path(from);
      path.quadTo(upper, to);
      path.quadTo(lower, from);
      painter.setBrush(color);
      painter.drawPath(path);
    };
    cut(by, by + depth, QColor(0x6F, 0x97, 0xC4, 150));
    cut(by + depth, by + depth * 1.8, QColor(255, 255, 255, 210));
  }
}

// The far goal, on the ice before the boards.
void DrawGoal(QPainter& painter, const QRectF& area) {
  const QPointF foot = Perspective(area).At(0, 0.5);
  const double wide = area.width() * 0.135;
  const double high = area.height() * 0.15;
  const double depth = high * 0.2;
  const QRectF mouth(foot.x() - wide / 2, foot.y() - high, wide, high);
  // The crease.
  painter.setPen(QPen(Glass(palette::kRed, 190), area.height() * 0.006));
  painter.setBrush(QColor(0x8F, 0xC1, 0xF2, 190));
  QPainterPath crease(mouth.bottomLeft() - QPointF(wide * 0.1, 0));
  crease.quadTo(QPointF(foot.x(), foot.y() + area.height() * 0.085),
                mouth.bottomRight() + QPointF(wide * 0.1, 0));
  crease.closeSubpath();
  painter.drawPath(crease);
  // The net, which narrows to the back.
  const QRectF back = mouth.adjusted(wide * 0.09, depth * 0.5, -wide * 0.09, -depth * 0.6);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(12, 28, 54, 110));
  painter.drawRect(mouth);
  // Hairlines, which are drawn fast.
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(QColor(238, 246, 252, 150), 0));
  constexpr int kMeshes = 11;
  const auto between = [](const QPointF& one, const QPointF& other, double share) {
    return one + (other - one) * share;
  };
  for (int i = 0; i <= kMeshes; ++i) {
    const double share = static_cast<double>(i) / kMeshes;
    painter.drawLine(between(back.topLeft(), back.topRight(), share),
                     between(back.bottomLeft(), back.bottomRight(), share));
    painter.drawLine(between(mouth.topLeft(), mouth.topRight(), share),
                     between(back.topLeft(), back.topRight(), share));
    painter.drawLine(between(back.topLeft(), back.bottomLeft(), share),
                     between(back.topRight(), back.bottomRight(), share));
    painter.drawLine(between(mouth.topLeft(), mouth.bottomLeft(), share),
                     between(back.topLeft(), back.bottomLeft(), share));
    painter.drawLine(between(mouth.topRight(), mouth.bottomRight(), share),
                     between(back.topRight(), back.bottomRight(), share));
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(palette::kRedDeep), area.height() * 0.013, Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  const std::array frame = {mouth.bottomLeft(), mouth.topLeft(), mouth.topRight(),
                            mouth.bottomRight()};
  painter.drawPolyline(frame.data(), static_cast<int>(frame.size()));
  painter.setPen(QPen(QColor(0xFF, 0x8A, 0x92), area.height() * 0.003));
  painter.drawLine(mouth.topLeft(), mouth.topRight());
}

// Our own stick, its blade beside the puck.
void DrawStick(QPainter& painter, const QRectF& area) {
  const auto place = [&area](double x, double y) {
    return QPointF(area.left() + area.width() * x, area.top() + area.height() * y);
  };
  const double unit = area.height();
  const QPointF heel = place(0.912, 0.905);
  const QPointF toe = place(0.79, 0.888);
  const QPointF grip = place(1.085, 0.50);
  painter.setBrush(Qt::NoBrush);
  const auto stroke = [&painter](const QPainterPath& path, const QColor& color, double wide,
                                 Qt::PenCapStyle cap) {
    painter.setPen(QPen(color, wide, Qt::SolidLine, cap, Qt::RoundJoin));
    painter.drawPath(path);
  };
  QPainterPath whole(grip);
  whole.lineTo(heel);
  whole.quadTo(place(0.85, 0.925), toe);
  stroke(whole.translated(unit * 0.012, unit * 0.03), QColor(10, 24, 48, 46), unit * 0.034,
         Qt::RoundCap);
  QPainterPath shaft(grip);
  shaft.lineTo(heel);
  stroke(shaft, QColor(0x1A, 0x22, 0x30), unit * 0.036, Qt::FlatCap);
  stroke(shaft, QColor(palette::kRed), unit * 0.024, Qt::FlatCap);
  stroke(shaft.translated(-unit * 0.006, -unit * 0.002), QColor(255, 255, 255, 90), unit * 0.005,
         Qt::FlatCap);
  QPainterPath blade(heel);
  blade.quadTo(place(0.85, 0.925), toe);
  stroke(blade, QColor(0x12, 0x19, 0x26), unit * 0.054, Qt::RoundCap);
  // Tape around the blade.
  for (int turn = 1; turn < 12; ++turn) {
    const QPointF at = blade.pointAtPercent(turn / 12.5);
    QPainterPath tape(at - QPointF(unit * 0.006, unit * 0.022));
    tape.lineTo(at + QPointF(unit * 0.006, unit * 0.022));
    stroke(tape, QColor(0x4A, 0x58, 0x6E), unit * 0.0035, Qt::RoundCap);
  }
}

void DrawIce(QPainter& painter, const QRectF& area) {
  const double horizon = area.top() + area.height() * kHorizon;
  QLinearGradient shine(QPointF(0, horizon), area.bottomLeft());
  shine.setColorAt(0, QColor(0xBF, 0xD8, 0xEE));
  shine.setColorAt(0.35, QColor(palette::kIce));
  shine.setColorAt(1, QColor(0x9F, 0xC0, 0xE0));
  painter.fillRect(QRectF(area.left(), horizon, area.width(), area.bottom() - horizon), shine);

  const Perspective ice(area);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Glass(palette::kBlue, 200));
  painter.drawPolygon(LineAcross(ice, 0.62, 0.68));
  painter.setBrush(Glass(palette::kRed, 215));
  painter.drawPolygon(LineAcross(ice, 0.235, 0.262));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Glass(palette::kBlue, 215), area.height() * 0.011));
  painter.drawPath(Ring(ice, 0, 0.25, 0.3));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(palette::kBlue));
  painter.drawPath(Ring(ice, 0, 0.25, 0.022));
}

void DrawBoards(QPainter& painter, const QRectF& area) {
  const double horizon = area.top() + area.height() * kHorizon;
  const double height = area.height() * 0.034;
  painter.fillRect(QRectF(area.left(), horizon - height, area.width(), height),
                   QColor(0xF7, 0xFA, 0xFD));
  painter.fillRect(QRectF(area.left(), horizon - height, area.width(), height * 0.2),
                   QColor(palette::kRed));
  painter.fillRect(QRectF(area.left(), horizon - height * 0.25, area.width(), height * 0.25),
                   QColor(palette::kGold));
}

// The puck on the center spot with its shadow.
void DrawPuck(QPainter& painter, const QRectF& area) {
  const QPointF at = Perspective(area).At(0.14, 0.1);
  const double r = area.height() * 0.062;
  const double high = r * 0.42;
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(10, 24, 48, 80));
  painter.drawEllipse(QPointF(at.x() + r * 0.25, at.y() + r * 0.16), r * 1.15, r * 0.42);
  QPainterPath side;
  side.moveTo(at.x() - r, at.y() - high);
  side.arcTo(QRectF(at.x() - r, at.y() - r * 0.4, 2 * r, r * 0.8), 180, 180);
  side.lineTo(at.x() + r, at.y() - high);
  side.closeSubpath();
  QLinearGradient rubber(QPointF(at.x() - r, 0), QPointF(at.x() + r, 0));
  rubber.setColorAt(0, QColor(0x10, 0x18, 0x26));
  rubber.setColorAt(0.35, QColor(0x44, 0x52, 0x68));
  rubber.setColorAt(1, QColor(0x08, 0x0D, 0x16));
  painter.setBrush(rubber);
  painter.drawPath(side);
  const QPointF top(at.x(), at.y() - high);
  painter.setBrush(QColor(0x24, 0x30, 0x43));
  painter.drawEllipse(top, r, r * 0.4);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(0x8F, 0xA6, 0xC4), r * 0.05));
  painter.drawEllipse(top, r * 0.66, r * 0.26);
}

// The name of the game, in ice with a blue and a red line under it.
// The name begins at LEFT, above what stands below it.
void DrawName(QPainter& painter, const QRectF& area, double left) {
  const double top = area.height() * 0.06;
  const double scale = area.height() * 0.1 / kWordmarkHeight;
  const QPainterPath name = QTransform::fromTranslate(area.left() + left, area.top() + top)
                                .scale(scale, scale)
                                .map(Wordmark());
  const QRectF at = name.boundingRect();

  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(2, 8, 20, 120));
  painter.drawPath(name.translated(area.height() * 0.006, area.height() * 0.009));
  QLinearGradient frozen(at.topLeft(), at.bottomLeft());
  frozen.setColorAt(0, Qt::white);
  frozen.setColorAt(0.52, QColor(0xDD, 0xEE, 0xFB));
  frozen.setColorAt(0.53, QColor(0xA9, 0xCD, 0xEF));
  frozen.setColorAt(1, QColor(0xE9, 0xF5, 0xFF));
  painter.setBrush(frozen);
  painter.drawPath(name);

  const double line = area.height() * 0.011;
  const QRectF under(at.left(), at.bottom() + line * 1.9, at.width(), line);
  painter.fillRect(under, QColor(palette::kBlue));
  painter.fillRect(QRectF(under.left(), under.top(), under.width() * 0.36, line),
                   QColor(palette::kRed));
}

// Takes away what lies outside the round corners of the window.
void CutCorners(QPainter& painter, const QRectF& area) {
  painter.setCompositionMode(QPainter::CompositionMode_Clear);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::black);
  for (const bool right : {false, true}) {
    for (const bool lower : {false, true}) {
      const QPointF corner(right ? area.right() : area.left(), lower ? area.bottom() : area.top());
      const QPointF inward(right ? -kCorner : kCorner, lower ? -kCorner : kCorner);
      QPainterPath cut;
      cut.addRect(QRectF(corner, corner + inward).normalized());
      QPainterPath round;
      round.addEllipse(corner + inward, kCorner, kCorner);
      painter.drawPath(cut.subtracted(round));
    }
  }
}

}  // namespace

TitleScene::TitleScene(QWidget* parent) : QWidget(parent) {}

QSize TitleScene::sizeHint() const {
  const int line = fontMetrics().height();
  const QSize content = layout() == nullptr ? QSize() : layout()->totalMinimumSize();
  return QSize(line * 55, line * 34).expandedTo(content);
}

int TitleScene::NameHeight(int height) { return static_cast<int>(height * 0.18); }

QPixmap TitleScene::Drawn() const {
  const QRect area(rect());
  QPixmap scene(size() * devicePixelRatioF());
  scene.setDevicePixelRatio(devicePixelRatioF());
  scene.fill(Qt::transparent);
  QPainter painter(&scene);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawNight(painter, area);
  DrawCrowd(painter, area, CrowdPiece(HeadSize(area), 16, devicePixelRatioF()));
  DrawLights(painter, area);
  DrawIce(painter, area);
  DrawBoards(painter, area);
  DrawPuck(painter, area);
  DrawName(painter, area, layout() == nullptr ? 0 : layout()->contentsMargins().left());
  CutCorners(painter, area);
  return scene;
}

void TitleScene::DrawDetails() {
  const QRect area(rect());
  QPainter painter(&scene_);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawFrost(painter, Perspective(area), area.height() * 0.007);
  DrawTraces(painter, area);
  DrawGoal(painter, area);
  DrawStick(painter, area);
}

void TitleScene::paintEvent(QPaintEvent* /*event*/) {
  // Drawn beside the window, whose shadow lies under the corners that are cut.
  if (scene_.isNull() || scene_.devicePixelRatio() != devicePixelRatioF()) {
    scene_ = Drawn();
    if (detailed_) {
      DrawDetails();
    } else {
      // The program is there sooner with an empty rink, which nobody sees for so short a time.
      QTimer::singleShot(0, this, &TitleScene::AddDetails);
    }
  }
  QPainter(this).drawPixmap(0, 0, scene_);
}

void TitleScene::AddDetails() {
  if (detailed_) return;
  detailed_ = true;
  if (!scene_.isNull()) DrawDetails();
  update();
}

void TitleScene::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  scene_ = QPixmap();
}

}  // namespace frostmark
