#include "desktop/widgets/confetti.h"

#include <QEvent>
#include <QPainter>
#include <array>
#include <chrono>
#include <cmath>

#include "desktop/painting/motion.h"
#include "desktop/painting/palette.h"

namespace frostmark {
namespace {

constexpr std::chrono::milliseconds kFall{3000};
constexpr int kPieces = 130;
constexpr double kStill = 0.34;  // the time at which it hangs where nothing moves

constexpr std::array<QRgb, 6> kPapers = {palette::kGold, palette::kIce,        palette::kRed,
                                         palette::kBlue, palette::kBlueBright, palette::kGreen};

// Anything between 0 and 1, the same for a piece at every call.
double Chance(int piece, unsigned int what) {
  unsigned int noise = static_cast<unsigned int>(piece) * 2654435761U + what * 40503U;
  noise = (noise ^ (noise >> 15U)) * 0x846CA68BU;
  noise ^= noise >> 13U;
  return (noise % 1024U) / 1023.0;
}

}  // namespace

Confetti::Confetti(QWidget& card) : QWidget(&card) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  card.installEventFilter(this);
  setGeometry(card.rect());
  hide();
  stay_.setSingleShot(true);
  stay_.setInterval(kFall);
  connect(&stay_, &QTimer::timeout, this, [this] {
    fall_.stop();
    hide();
  });
  fall_.setStartValue(0.0);
  fall_.setEndValue(1.0);
  fall_.setDuration(static_cast<int>(kFall.count()));
  connect(&fall_, &QVariantAnimation::valueChanged, this, [this](const QVariant& time) {
    time_ = time.toDouble();
    update();
  });
}

bool Confetti::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  return QWidget::eventFilter(watched, event);
}

void Confetti::Throw() {
  time_ = kStill;
  show();
  raise();
  stay_.start();
  fall_.stop();
  if (MotionWanted()) fall_.start();
}

void Confetti::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const double size = fontMetrics().height() * 0.42;
  for (int piece = 0; piece < kPieces; ++piece) {
    // All are below the card's edge at the end; the fast ones long before.
    const double speed = 1.15 + Chance(piece, 1);
    const double start = -0.05 - 0.9 * Chance(piece, 2) * (speed - 1.1);
    const double y = (start + speed * time_) * (height() + 2 * size);
    if (y < -size || y > height() + size) continue;
    const double sway = std::sin((time_ * 3 + Chance(piece, 3)) * 6.283) * size * 1.5;
    const double turn = (time_ * (2 + 3 * Chance(piece, 4)) + Chance(piece, 5)) * 6.283;
    painter.save();
    painter.translate(Chance(piece, 6) * width() + sway, y);
    painter.rotate(Chance(piece, 7) * 360 + time_ * 200);
    // Paper that turns over is seen from the side now and then.
    const double broad = size * (0.25 + 0.75 * std::abs(std::cos(turn)));
    painter.setBrush(QColor(kPapers[static_cast<std::size_t>(piece) % kPapers.size()]));
    painter.drawRect(QRectF(-size / 2, -broad / 2, size, broad * 0.7));
    painter.restore();
  }
}

}  // namespace frostmark
