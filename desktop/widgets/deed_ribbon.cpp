#include "desktop/widgets/deed_ribbon.h"

#include <QPainter>
#include <algorithm>
#include <chrono>

#include "desktop/painting/measures.h"
#include "desktop/painting/palette.h"

namespace frostmark {
namespace {

constexpr std::chrono::milliseconds kReadable{1500};
// A team needs the puck back before its next deed, six steps at the least, so this many come in the
// time that each has to stay.
constexpr std::size_t kRows = 3;
constexpr double kNewest = 1.6;  // lines of text
constexpr double kOlder = 1.1;

}  // namespace

DeedRibbon::DeedRibbon(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  old_.setInterval(kReadable / 6);
  connect(&old_, &QTimer::timeout, this, &DeedRibbon::DropOld);
}

void DeedRibbon::Tell(int team, const QString& word, const QString& name, const QColor& color) {
  if (team != 1 && team != 2) return;
  auto& deeds = deeds_[static_cast<std::size_t>(team - 1)];
  deeds.insert(deeds.begin(), {word, name, color, QDeadlineTimer(kReadable)});
  if (deeds.size() > kRows) deeds.pop_back();
  old_.start();
  update();
}

void DeedRibbon::DropOld() {
  bool more = false;
  for (auto& deeds : deeds_) {
    const std::size_t before = deeds.size();
    while (deeds.size() > 1 && deeds.back().until.hasExpired()) deeds.pop_back();
    if (deeds.size() != before) update();
    more = more || deeds.size() > 1;
  }
  if (!more) old_.stop();
}

void DeedRibbon::Clear() {
  for (auto& deeds : deeds_) deeds.clear();
  old_.stop();
  update();
}

QStringList DeedRibbon::Lines(int team) const {
  QStringList lines;
  for (const Deed& deed : deeds_[static_cast<std::size_t>(team - 1)]) {
    lines.append(deed.word + " " + deed.name);
  }
  return lines;
}

double DeedRibbon::LineHeight(std::size_t row) const {
  return fontMetrics().height() * (row == 0 ? kNewest : kOlder);
}

QSize DeedRibbon::sizeHint() const {
  double height = 0;
  for (std::size_t row = 0; row < kRows; ++row) height += LineHeight(row);
  return {fontMetrics().horizontalAdvance('n') * 60, qRound(height + fontMetrics().height() * 0.3)};
}

void DeedRibbon::PaintLine(QPainter& painter, const QRectF& line, const Deed& deed, bool newest,
                           bool home) const {
  QFont letters = font();
  letters.setPixelSize(qRound(line.height() * (newest ? 0.66 : 0.7)));
  letters.setWeight(QFont::DemiBold);
  QFont poster = letters;
  poster.setFamily(kPosterFace);
  poster.setWeight(QFont::Normal);
  const double gap = letters.pixelSize() * 0.6;
  const double word = QFontMetricsF(poster).horizontalAdvance(deed.word);
  const QString name =
      QFontMetricsF(letters).elidedText(deed.name, Qt::ElideRight, line.width() - word - 3 * gap);
  const double used = word + QFontMetricsF(letters).horizontalAdvance(name) + 3 * gap;
  QRectF strip = line.adjusted(0, 1, 0, -1);
  if (home) strip.setRight(strip.left() + used);
  if (!home) strip.setLeft(strip.right() - used);
  QColor ground(home ? palette::kBlueDeep : palette::kRedDeep);
  if (!newest) ground = ground.darker(150);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawRoundedRect(strip, strip.height() * 0.25, strip.height() * 0.25);
  painter.setFont(poster);
  painter.setPen(newest ? deed.color : QColor(palette::kFrost));
  painter.drawText(strip.adjusted(gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, deed.word);
  painter.setFont(letters);
  painter.setPen(newest ? QColor(Qt::white) : QColor(palette::kFrost));
  painter.drawText(strip.adjusted(0, 0, -gap, 0), Qt::AlignRight | Qt::AlignVCenter, name);
}

void DeedRibbon::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double half = (width() - fontMetrics().height()) / 2.0;
  for (std::size_t side = 0; side < deeds_.size(); ++side) {
    const bool home = side == 0;
    double top = 0;
    for (std::size_t row = 0; row < deeds_[side].size(); ++row) {
      const QRectF line(home ? 0 : width() - half, top, half, LineHeight(row));
      PaintLine(painter, line, deeds_[side][row], row == 0, home);
      top += line.height();
    }
  }
}

}  // namespace frostmark
