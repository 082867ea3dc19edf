#include "desktop/widgets/ice_banner.h"

#include <QEasingCurve>
#include <QEvent>
#include <QPainter>
#include <algorithm>
#include <chrono>

#include "desktop/painting/measures.h"
#include "desktop/painting/motion.h"
#include "desktop/painting/team_crest.h"

namespace frostmark {
namespace {

constexpr std::chrono::milliseconds kSweep{1600};
constexpr std::chrono::milliseconds kSlide{260};

}  // namespace

IceBanner::IceBanner(QWidget& parent) : QWidget(&parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  parent.installEventFilter(this);
  setGeometry(parent.rect());
  hide();
  stay_.setSingleShot(true);
  stay_.setInterval(kSweep);
  connect(&stay_, &QTimer::timeout, this, &IceBanner::Clear);
  slide_.setDuration(static_cast<int>(kSlide.count()));
  slide_.setEasingCurve(QEasingCurve::OutCubic);
  connect(&slide_, &QVariantAnimation::valueChanged, this, [this](const QVariant& place) {
    place_ = place.toDouble();
    update();
  });
}

bool IceBanner::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  return QWidget::eventFilter(watched, event);
}

void IceBanner::Show(const Banner& banner) {
  stay_.stop();
  slide_.stop();
  banner_ = banner;
  place_ = 1;
  show();
  raise();
  update();
}

void IceBanner::Sweep(const Banner& banner, bool from_right) {
  Show(banner);
  from_right_ = from_right;
  stay_.start();
  if (!isVisible() || !MotionWanted()) return;
  slide_.setStartValue(0.0);
  slide_.setEndValue(1.0);
  slide_.start();
}

void IceBanner::Hang(const Banner& banner) { Show(banner); }

void IceBanner::Clear() {
  stay_.stop();
  slide_.stop();
  banner_ = {};
  hide();
}

QRectF IceBanner::Band() const {
  const double height = std::min(this->height() * 0.4, fontMetrics().height() * 5.4);
  QRectF band(0, 0, width() * 0.8, height);
  band.moveCenter(QRectF(rect()).center());
  const double away = (1 - place_) * (width() + band.width()) / 2;
  return band.translated(from_right_ ? away : -away, 0);
}

void IceBanner::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF band = Band();
  QColor ground = banner_.ground;
  ground.setAlpha(235);
  painter.setPen(QPen(banner_.letters, band.height() * 0.025));
  painter.setBrush(ground);
  painter.drawRoundedRect(band, band.height() * 0.1, band.height() * 0.1);

  QRectF words = band.adjusted(band.height() * 0.2, 0, -band.height() * 0.2, 0);
  if (!banner_.team.isEmpty()) {
    QRectF crest(0, 0, band.height() * 0.62, band.height() * 0.72);
    crest.moveCenter({words.left() + crest.width() / 2, band.center().y()});
    PaintCrest(painter, crest, banner_.team);
    words.setLeft(crest.right() + band.height() * 0.2);
  }
  const auto write = [&](QRectF line, QFont font, double share, const QString& text) {
    font.setPixelSize(std::max(8, static_cast<int>(band.height() * share)));
    while (font.pixelSize() > 8 && QFontMetricsF(font).horizontalAdvance(text) > line.width()) {
      font.setPixelSize(font.pixelSize() - 1);
    }
    painter.setFont(font);
    painter.setPen(banner_.letters);
    painter.drawText(line, Qt::AlignCenter, text);
  };
  QFont poster = font();
  poster.setFamily(kPosterFace);
  const double split = banner_.detail.isEmpty() ? band.height() : band.height() * 0.6;
  write({words.left(), band.top(), words.width(), split}, poster, 0.42, banner_.headline);
  if (banner_.detail.isEmpty()) return;
  QFont plain = font();
  plain.setWeight(QFont::DemiBold);
  write({words.left(), band.top() + split * 0.94, words.width(), band.height() * 0.34}, plain, 0.2,
        banner_.detail);
}

}  // namespace frostmark
