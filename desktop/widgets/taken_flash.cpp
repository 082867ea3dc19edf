#include "desktop/widgets/taken_flash.h"

#include <QAbstractItemView>
#include <QPainter>
#include <chrono>

#include "desktop/painting/motion.h"
#include "desktop/painting/palette.h"
#include "desktop/painting/row_painter.h"
#include "desktop/painting/team_crest.h"

namespace frostmark {
namespace {

constexpr std::chrono::milliseconds kStay{1400};

}  // namespace

TakenFlash::TakenFlash(QAbstractItemView& list) : QWidget(list.viewport()) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
  stay_.setSingleShot(true);
  stay_.setInterval(kStay);
  connect(&stay_, &QTimer::timeout, this, [this] {
    player_.clear();
    hide();
  });
  // Read first, faded then.
  fade_.setDuration(static_cast<int>(kStay.count()));
  fade_.setKeyValueAt(0, 1.0);
  fade_.setKeyValueAt(0.6, 1.0);
  fade_.setKeyValueAt(1, 0.0);
  connect(&fade_, &QVariantAnimation::valueChanged, this, [this](const QVariant& strength) {
    if (strength.toDouble() == strength_) return;
    strength_ = strength.toDouble();
    update();
  });
}

void TakenFlash::Flash(const QRect& row, const QString& player, const QString& team) {
  fade_.stop();
  player_ = player;
  team_ = team;
  strength_ = 1;
  setGeometry(row);
  show();
  raise();
  update();
  stay_.start();
  if (MotionWanted()) fade_.start();
}

void TakenFlash::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setOpacity(strength_);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(palette::kGold));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);
  const double margin = row::Margin(fontMetrics());
  const double high = height() * 0.84;
  const QRectF crest(width() - margin - high * kCrestBreadth, (height() - high) / 2,
                     high * kCrestBreadth, high);
  PaintCrest(painter, crest, team_);
  QFont bold = font();
  bold.setWeight(QFont::DemiBold);
  painter.setFont(bold);
  const QRectF name(margin, 0, crest.left() - 2 * margin, height());
  row::PaintText(painter, name, player_, QColor(palette::kDeep));
}

}  // namespace frostmark
