#include "desktop/widgets/match_tally.h"

#include <QPainter>
#include <algorithm>

#include "desktop/painting/palette.h"

namespace frostmark {
namespace {

constexpr const char* kWords[] = {"Saves", "Steals", "Face-offs"};
constexpr MatchTally::Count kCounts[] = {MatchTally::kSaves, MatchTally::kSteals,
                                         MatchTally::kFaceOffs};

QString Word(MatchTally::Count count) { return QString::fromLatin1(kWords[count]); }

}  // namespace

MatchTally::MatchTally(QWidget* parent) : QWidget(parent) { SpeakThem(); }

void MatchTally::Add(Count count, int team) {
  if (team != 1 && team != 2) return;
  ++counts_[count][static_cast<std::size_t>(team - 1)];
  SpeakThem();
  update();
}

void MatchTally::Clear() {
  counts_ = {};
  SpeakThem();
  update();
}

int MatchTally::Of(Count count, int team) const {
  return counts_[count][static_cast<std::size_t>(team - 1)];
}

void MatchTally::SpeakThem() {
  QStringList words;
  for (const Count count : kCounts) {
    words += QStringLiteral("%1: %2 home, %3 visitor")
                 .arg(Word(count))
                 .arg(Of(count, 1))
                 .arg(Of(count, 2));
  }
  setAccessibleName(words.join("; "));
}

QSize MatchTally::sizeHint() const {
  const int line = fontMetrics().height();
  return {line * 30, qRound(line * 1.7)};
}

// The bar under the word shows how the two share.
void MatchTally::PaintCount(QPainter& painter, const QRectF& room, Count count) const {
  const double line = fontMetrics().height();
  QFont figure = font();
  figure.setPixelSize(qRound(line * 0.95));
  figure.setWeight(QFont::DemiBold);
  const QRectF text(room.left(), room.top(), room.width(), line * 1.2);
  painter.setFont(figure);
  painter.setPen(QColor(palette::kBlueBright));
  painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, QString::number(Of(count, 1)));
  painter.setPen(QColor(palette::kRedBright));
  painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter, QString::number(Of(count, 2)));
  painter.setFont(font());
  painter.setPen(QColor(palette::kFrost));
  painter.drawText(text, Qt::AlignCenter, Word(count));

  const int all = Of(count, 1) + Of(count, 2);
  QRectF bar(room.left(), text.bottom() + line * 0.1, room.width(), line * 0.22);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(all == 0 ? palette::kRaised : palette::kRed));
  painter.drawRoundedRect(bar, bar.height() / 2, bar.height() / 2);
  if (all == 0) return;
  const double share = bar.width() * Of(count, 1) / all;
  painter.setClipRect(QRectF(bar.left(), bar.top(), share, bar.height()));
  painter.setBrush(QColor(palette::kBlue));
  painter.drawRoundedRect(bar, bar.height() / 2, bar.height() / 2);
  painter.setClipping(false);
}

void MatchTally::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double gap = fontMetrics().height() * 1.8;
  const double width = (this->width() - 2 * gap) / 3;
  double left = 0;
  for (const Count count : kCounts) {
    PaintCount(painter, QRectF(left, 0, width, height()), count);
    left += width + gap;
  }
}

}  // namespace frostmark
