#include "desktop/widgets/rink_view.h"

#include <QEvent>
#include <QPainter>
#include <chrono>

#include "desktop/palette.h"
#include "desktop/widgets/rating_chip.h"
#include "desktop/widgets/rink_ice.h"

namespace frostmark {

// Where a player stands, in feet.
struct RinkView::Spot {
  const char* label;
  const char* position;
  int team;
  QPointF at;
};

// A right side is the right side of a player who looks at the other goal.
const RinkView::Spot RinkView::kSpots[12] = {
    {"vGoalie", "GO", 1, {20, 42.5}},  {"vRDef", "RD", 1, {44, 63}},
    {"vLDef", "LD", 1, {44, 22}},      {"vRFor", "RF", 1, {84, 68}},
    {"vCenter", "CF", 1, {87, 42.5}},  {"vLFor", "LF", 1, {84, 17}},
    {"hGoalie", "GO", 2, {180, 42.5}}, {"hRDef", "RD", 2, {156, 22}},
    {"hLDef", "LD", 2, {156, 63}},     {"hRFor", "RF", 2, {116, 17}},
    {"hCenter", "CF", 2, {113, 42.5}}, {"hLFor", "LF", 2, {116, 68}},
};

namespace {

constexpr std::chrono::milliseconds kLampTime{1200};
constexpr QPointF kCentreSpot(rink::kLength / 2, rink::kWidth / 2);
constexpr double kLight = 32;  // how far the lamp shines
constexpr double kPuck = 1.9;  // its radius; a true one could not be seen

QPointF GoalOf(int scoring_team) {
  const double deep = rink::kGoalLine - 2;
  return {scoring_team == 1 ? rink::kLength - deep : deep, rink::kWidth / 2};
}

}  // namespace

RinkView::RinkView(QWidget* parent) : QWidget(parent) {
  lamp_.setSingleShot(true);
  lamp_.setInterval(kLampTime);
  connect(&lamp_, &QTimer::timeout, this, &RinkView::PutLampOut);
}

const RinkView::Spot* RinkView::SpotOf(int team, const QString& position) {
  for (const Spot& spot : kSpots) {
    if (spot.team == team && position == QLatin1String(spot.position)) return &spot;
  }
  return nullptr;
}

void RinkView::SetPuck(int team, const QString& position) {
  const Spot* spot = SpotOf(team, position);
  if (scored_ != 0) {
    scored_ = 0;
    carrier_ = nullptr;  // it comes from the face-off
    update();
  }
  if (spot == carrier_) return;
  before_ = carrier_;
  carrier_ = spot;
  MarkCarrier();
  update();
}

void RinkView::MarkCarrier() {
  for (auto* chip : findChildren<RatingChip*>()) {
    chip->SetCarrier(carrier_ != nullptr && chip->objectName() == QLatin1String(carrier_->label));
  }
}

void RinkView::FlashGoal(int team) {
  if (lamp_of_ != team) PutLampOut();
  lamp_of_ = team;
  scored_ = team;
  lamp_.start();
  emit LampChanged(team, true);
  update();
}

void RinkView::PutLampOut() {
  lamp_.stop();
  if (lamp_of_ != 0) emit LampChanged(lamp_of_, false);
  lamp_of_ = 0;
  update();
}

void RinkView::Reset() {
  carrier_ = nullptr;
  before_ = nullptr;
  scored_ = 0;
  MarkCarrier();
  PutLampOut();
}

QSize RinkView::sizeHint() const {
  const int line = fontMetrics().height();
  return {line * 37, line * 16};
}

bool RinkView::event(QEvent* event) {
  // The chips' sizes follow their font and their text.
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::FontChange) PlaceChips();
  return QWidget::event(event);
}

void RinkView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceChips();
}

void RinkView::PlaceChips() {
  const QTransform feet = rink::Feet(size());
  for (const Spot& spot : kSpots) {
    auto* chip = findChild<RatingChip*>(QLatin1String(spot.label));
    if (chip == nullptr) continue;
    chip->SetColour(QColor(spot.team == 1 ? palette::kBlueDeep : palette::kRedDeep));
    QRect place(QPoint(), chip->sizeHint());
    place.moveCenter(feet.map(spot.at).toPoint());
    chip->setGeometry(place);
  }
}

QPointF RinkView::Puck() const { return scored_ != 0 ? GoalOf(scored_) : PuckAt(carrier_); }

QPointF RinkView::PuckAt(const Spot* spot) const {
  if (spot == nullptr) return kCentreSpot;
  // On the stick, in front of the chip and a little aside.
  const double chip = fontMetrics().height() / rink::Feet(size()).m11();
  const double ahead = spot->team == 1 ? 1 : -1;
  return spot->at + QPointF(ahead * (chip + kPuck * 0.8), chip * 0.75);
}

void RinkView::PaintPuck(QPainter& painter, const QPointF& at) const {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(10, 24, 48, 70));
  painter.drawEllipse(at + QPointF(0.5, 0.8), kPuck, kPuck * 0.85);
  painter.setBrush(QColor(0x10, 0x18, 0x26));
  painter.drawEllipse(at, kPuck, kPuck * 0.85);
  painter.setPen(QPen(QColor(0x6F, 0x84, 0xA2), 0.3));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(at, kPuck * 0.6, kPuck * 0.5);
}

void RinkView::PaintWay(QPainter& painter, const QPointF& from, const QPointF& to) const {
  QLinearGradient fade(from, to);
  fade.setColorAt(0, QColor(12, 28, 54, 0));
  fade.setColorAt(1, QColor(12, 28, 54, 150));
  painter.setPen(QPen(QBrush(fade), 1.1, Qt::DashLine, Qt::RoundCap));
  painter.drawLine(from, to);
}

void RinkView::PaintLamp(QPainter& painter) const {
  // Off the goal towards the middle, so that the light is gone where the boards are.
  const QPointF goal = GoalOf(lamp_of_);
  const QPointF middle(goal.x() < rink::kLength / 2 ? kLight : rink::kLength - kLight, goal.y());
  QRadialGradient light(middle, kLight, goal);
  light.setColorAt(0, QColor(255, 236, 170, 235));
  light.setColorAt(0.25, QColor(244, 120, 82, 190));
  light.setColorAt(1, QColor(217, 48, 62, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(light);
  painter.drawEllipse(middle, kLight, kLight);
}

void RinkView::paintEvent(QPaintEvent* /*event*/) {
  const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
  const QTransform feet = rink::Feet(size());
  if (ice_.size() != pixels) {
    ice_ = QPixmap(pixels);
    ice_.setDevicePixelRatio(devicePixelRatioF());
    ice_.fill(Qt::transparent);
    QPainter painter(&ice_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(feet, true);
    rink::PaintIce(painter);
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawPixmap(0, 0, ice_);
  painter.setTransform(feet, true);
  if (lamp_of_ != 0) PaintLamp(painter);
  if (scored_ == 0 && (before_ != nullptr || carrier_ != nullptr)) {
    PaintWay(painter, PuckAt(before_), PuckAt(carrier_));
  }
  PaintPuck(painter, Puck());
}

}  // namespace frostmark
