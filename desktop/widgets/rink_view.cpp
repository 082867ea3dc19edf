#include "desktop/widgets/rink_view.h"

#include <QEasingCurve>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <chrono>

#include "desktop/painting/motion.h"
#include "desktop/painting/palette.h"
#include "desktop/painting/rink_ice.h"
#include "desktop/painting/rink_marks.h"
#include "desktop/widgets/rating_chip.h"

namespace frostmark {

// Where a player stands, in feet.
struct RinkView::Spot {
  const char* label;
  const char* position;
  int team;
  QPointF at;
};

// A right side is the right side of a player who looks at the other goal.
const RinkView::Spot RinkView::kSpots[kSpotCount] = {
    {"vGoalie", "GO", 1, {20, 42.5}},  {"vRDef", "RD", 1, {44, 63}},
    {"vLDef", "LD", 1, {44, 22}},      {"vRFor", "RF", 1, {84, 68}},
    {"vCenter", "CF", 1, {87, 42.5}},  {"vLFor", "LF", 1, {84, 17}},
    {"hGoalie", "GO", 2, {180, 42.5}}, {"hRDef", "RD", 2, {156, 22}},
    {"hLDef", "LD", 2, {156, 63}},     {"hRFor", "RF", 2, {116, 17}},
    {"hCenter", "CF", 2, {113, 42.5}}, {"hLFor", "LF", 2, {116, 68}},
};

namespace {

constexpr std::chrono::milliseconds kLampTime{1200};
constexpr std::chrono::milliseconds kShotTime{450};
// A little less than the 100 ms of a step, so that the puck is there before it goes on.
constexpr std::chrono::milliseconds kGlideTime{90};
constexpr QPointF kCenterSpot(rink::kLength / 2, rink::kWidth / 2);
constexpr double kNameWidth = 25;      // between the centers there is no more room
constexpr double kNameLetters = 0.74;  // of plain text

QColor ColorOf(int team) { return team == 1 ? palette::kBlueDeep : palette::kRedDeep; }

}  // namespace

RinkView::RinkView(QWidget* parent) : QWidget(parent), shown_(kCenterSpot) {
  lamp_.setSingleShot(true);
  lamp_.setInterval(kLampTime);
  connect(&lamp_, &QTimer::timeout, this, &RinkView::PutLampOut);
  shot_.setSingleShot(true);
  shot_.setInterval(kShotTime);
  connect(&shot_, &QTimer::timeout, this, [this] {
    shot_of_ = 0;
    update();
  });
  glide_.setDuration(static_cast<int>(kGlideTime.count()));
  glide_.setEasingCurve(QEasingCurve::InOutQuad);
  connect(&glide_, &QVariantAnimation::valueChanged, this,
          [this](const QVariant& at) { DropPuck(at.toPointF()); });
}

const RinkView::Spot* RinkView::SpotOf(int team, const QString& position) {
  for (const Spot& spot : kSpots) {
    if (spot.team == team && position == QLatin1String(spot.position)) return &spot;
  }
  return nullptr;
}

void RinkView::SetName(int team, const QString& position, const QString& name) {
  const Spot* spot = SpotOf(team, position);
  if (spot == nullptr) return;
  if (auto* chip = findChild<RatingChip*>(QLatin1String(spot->label))) chip->setToolTip(name);
  QString& shown = names_[static_cast<std::size_t>(spot - kSpots)];
  const QString surname = name.section(' ', -1, -1, QString::SectionSkipEmpty);
  if (shown == surname) return;
  shown = surname;
  ground_ = {};
  update();
}

void RinkView::SetPuck(int team, const QString& position) {
  const Spot* spot = SpotOf(team, position);
  if (scored_ != 0) {
    scored_ = 0;
    carrier_ = nullptr;  // it comes from the face-off
    DropPuck(kCenterSpot);
    update();
  }
  if (spot == carrier_) return;
  update(PixelsOfWay());
  before_ = carrier_;
  carrier_ = spot;
  MarkCarrier();
  SendPuck();
  update(PixelsOfWay());
}

QRect RinkView::PixelsOfWay() const {
  return PixelsAround(PuckAt(before_)) | PixelsAround(PuckAt(carrier_));
}

// From where it is drawn, so that it never jumps.
void RinkView::SendPuck() {
  glide_.stop();
  if (!isVisible() || !MotionWanted()) return DropPuck(Puck());
  glide_.setStartValue(shown_);
  glide_.setEndValue(Puck());
  glide_.start();
}

void RinkView::DropPuck(const QPointF& at) {
  update(PixelsAround(shown_));
  shown_ = at;
  update(PixelsAround(shown_));
}

QRect RinkView::PixelsAround(const QPointF& at) const {
  const QPointF reach(rink::kPuck * 1.5, rink::kPuck * 1.5);
  return rink::Feet(size()).mapRect(QRectF(at - reach, at + reach)).toAlignedRect();
}

void RinkView::ShowShot(int team) {
  shot_of_ = team;
  shot_from_ = PuckAt(carrier_);
  shot_.start();
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
  SendPuck();
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
  shot_of_ = 0;
  glide_.stop();
  DropPuck(kCenterSpot);
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
    chip->SetColor(ColorOf(spot.team));
    QRect place(QPoint(), chip->sizeHint());
    place.moveCenter(feet.map(spot.at).toPoint());
    chip->setGeometry(place);
  }
  if (glide_.state() != QAbstractAnimation::Running) shown_ = Puck();
  ground_ = {};
}

QRectF RinkView::Ice() const {
  return rink::Feet(size()).mapRect(QRectF(0, 0, rink::kLength, rink::kWidth));
}

QPointF RinkView::Puck() const { return scored_ != 0 ? rink::GoalOf(scored_) : PuckAt(carrier_); }

QPointF RinkView::PuckAt(const Spot* spot) const {
  if (spot == nullptr) return kCenterSpot;
  // On the stick in front of the chip, clear of the name under it.
  const double chip = fontMetrics().height() / rink::Feet(size()).m11();
  const double ahead = spot->team == 1 ? 1 : -1;
  return spot->at + QPointF(ahead * (chip + rink::kPuck), chip * 0.15);
}

// On a light edge, as a name may lie on a line of the ice. PAINTER is set to pixels.
void RinkView::PaintNames(QPainter& painter) const {
  const QTransform feet = rink::Feet(size());
  QFont letters = font();
  letters.setPixelSize(std::max(7, qRound(fontInfo().pixelSize() * kNameLetters)));
  letters.setWeight(QFont::DemiBold);
  const QFontMetricsF metrics(letters);
  for (int i = 0; i < kSpotCount; ++i) {
    const QString name = metrics.elidedText(names_[static_cast<std::size_t>(i)], Qt::ElideRight,
                                            kNameWidth * feet.m11());
    const QPointF under = feet.map(kSpots[i].at) + QPointF(0, fontMetrics().height() * 1.05);
    QPainterPath text;
    text.addText(under + QPointF(-metrics.horizontalAdvance(name) / 2, metrics.ascent()), letters,
                 name);
    painter.strokePath(text, QPen(QColor(palette::kIce), metrics.height() * 0.22, Qt::SolidLine,
                                  Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(text, QColor(palette::kNight));
  }
}

void RinkView::PaintGround() {
  const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
  if (ground_.size() == pixels) return;
  ground_ = QPixmap(pixels);
  ground_.setDevicePixelRatio(devicePixelRatioF());
  ground_.fill(Qt::transparent);
  QPainter painter(&ground_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.save();
  painter.setTransform(rink::Feet(size()), true);
  rink::PaintIce(painter);
  painter.restore();
  PaintNames(painter);
}

void RinkView::paintEvent(QPaintEvent* /*event*/) {
  PaintGround();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawPixmap(0, 0, ground_);
  painter.setTransform(rink::Feet(size()), true);
  if (lamp_of_ != 0) rink::PaintLamp(painter, lamp_of_);
  if (shot_of_ != 0) rink::PaintShot(painter, shot_from_, shot_of_, ColorOf(shot_of_));
  if (scored_ == 0 && (before_ != nullptr || carrier_ != nullptr)) {
    rink::PaintWay(painter, PuckAt(before_), PuckAt(carrier_));
  }
  rink::PaintPuck(painter, shown_);
}

}  // namespace frostmark
