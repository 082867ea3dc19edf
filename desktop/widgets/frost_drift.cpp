#include "desktop/widgets/frost_drift.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>
#include <chrono>
#include <cmath>

#include "desktop/painting/motion.h"

namespace frostmark {
namespace {

constexpr std::chrono::milliseconds kAfterFirstFrame{600};
// Slow enough for a crystal to move by about a pixel.
constexpr std::chrono::milliseconds kTick{66};
constexpr std::size_t kCrystals = 26;
// Nobody watches for longer; the next time the window is the active one they drift again.
constexpr int kTicks = 1800;

// Anything between 0 and 1, the same for a crystal at every call.
double Chance(std::size_t crystal, unsigned int what) {
  unsigned int noise = static_cast<unsigned int>(crystal) * 2654435761U + what * 40503U;
  noise = (noise ^ (noise >> 15U)) * 0x846CA68BU;
  noise ^= noise >> 13U;
  return (noise % 1024U) / 1023.0;
}

// Near ones are large and fast.
double Nearness(std::size_t crystal) { return 0.35 + 0.65 * Chance(crystal, 1); }

}  // namespace

FrostDrift::FrostDrift(QWidget& picture) : QWidget(&picture) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  picture.installEventFilter(this);
  setGeometry(picture.rect());
  lower();
  start_.setSingleShot(true);
  start_.setInterval(kAfterFirstFrame);
  connect(&start_, &QTimer::timeout, this, &FrostDrift::Follow);
  tick_.setInterval(kTick);
  connect(&tick_, &QTimer::timeout, this, &FrostDrift::Tick);
}

bool FrostDrift::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  return QWidget::eventFilter(watched, event);
}

bool FrostDrift::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) start_.start();
  if (event->type() == QEvent::WindowDeactivate) tick_.stop();
  return QWidget::event(event);
}

void FrostDrift::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  start_.start();
}

void FrostDrift::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  start_.stop();
  tick_.stop();
}

void FrostDrift::Follow() {
  if (!isVisible() || !isActiveWindow() || !MotionWanted()) return tick_.stop();
  ticks_left_ = kTicks;
  if (!tick_.isActive()) tick_.start();
}

QRegion FrostDrift::Open() const {
  QRegion open(rect());
  for (const QObject* child : parentWidget()->children()) {
    const auto* widget = qobject_cast<const QWidget*>(child);
    if (widget != nullptr && widget != this && widget->isVisible()) open -= widget->geometry();
  }
  return open;
}

QRect FrostDrift::Around(std::size_t crystal) const {
  const double reach = height() * 0.006 + 2;
  const QPointF at = places_[crystal];
  return QRectF(at.x() - reach, at.y() - reach, 2 * reach, 2 * reach).toAlignedRect();
}

void FrostDrift::Tick() {
  if (--ticks_left_ == 0) tick_.stop();
  time_ += std::chrono::duration<double>(kTick).count();
  QRegion changed;
  for (std::size_t i = 0; i < places_.size(); ++i) changed += Around(i);
  places_.resize(kCrystals);
  for (std::size_t i = 0; i < kCrystals; ++i) {
    const double near = Nearness(i);
    const double down = std::fmod(Chance(i, 2) + time_ * 0.018 * near, 1.0);
    const double across =
        Chance(i, 3) + 0.012 * near * std::sin(time_ * 0.5 + 6.283 * Chance(i, 4));
    places_[i] = {across * width(), down * height()};
    changed += Around(i);
  }
  update(changed & Open());
}

void FrostDrift::paintEvent(QPaintEvent* /*event*/) {
  if (places_.empty()) return;
  QPainter painter(this);
  painter.setClipRegion(Open());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  for (std::size_t i = 0; i < places_.size(); ++i) {
    const double near = Nearness(i);
    // They come and go with the light that they turn into.
    const double light = 0.55 + 0.45 * std::sin(time_ * (0.6 + near) + 6.283 * Chance(i, 5));
    const double down = places_[i].y() / std::max(1, height());
    const double edge = std::min({1.0, down * 8, (1 - down) * 8});
    painter.setBrush(QColor(255, 255, 255, static_cast<int>(210 * light * edge)));
    const double radius = height() * 0.0042 * near;
    painter.drawEllipse(places_[i], radius, radius);
  }
}

}  // namespace frostmark
