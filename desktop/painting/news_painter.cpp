#include "desktop/painting/news_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "desktop/painting/palette.h"
#include "desktop/painting/row_painter.h"
#include "desktop/painting/row_text.h"

namespace frostmark {
namespace {

QColor ColorOf(Fortune fortune) {
  switch (fortune) {
    case Fortune::kWon:
      return palette::kGreen;
    case Fortune::kLost:
      return palette::kRedBright;
    case Fortune::kTied:
      break;
  }
  return palette::kFrost;
}

QFont Bold(QFont font) {
  font.setWeight(QFont::DemiBold);
  return font;
}

}  // namespace

std::optional<Fortune> FortuneOf(const NewsLine& news, std::string_view team) {
  if (!news.Has(team)) return std::nullopt;
  if (news.outcome == Outcome::kTied) return Fortune::kTied;
  return news.WonBy(team) ? Fortune::kWon : Fortune::kLost;
}

QString LetterOf(Fortune fortune) {
  return fortune == Fortune::kWon ? "W" : fortune == Fortune::kLost ? "L" : "T";
}

void PaintFortune(QPainter& painter, const QRectF& rect, Fortune fortune) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ColorOf(fortune));
  painter.drawEllipse(rect);
  QFont letter = painter.font();
  letter.setPixelSize(std::max(1, qRound(rect.height() * 0.74)));
  letter.setWeight(QFont::DemiBold);
  painter.setFont(letter);
  painter.setPen(QColor(palette::kDeep));
  painter.drawText(rect, Qt::AlignCenter, LetterOf(fortune));
  painter.restore();
}

void PaintNews(QPainter& painter, const QRectF& rect, const NewsLine& news,
               std::optional<Fortune> own, const QColor& text, const QColor& quiet) {
  const QFont plain = painter.font();
  const double line = QFontMetricsF(plain).height();
  const double gap = line * 0.45;
  const double disc_size = std::min(line * 1.1, rect.height() - 2);
  QRectF disc(rect.left() + gap * 1.4, 0, disc_size, disc_size);
  disc.moveTop(rect.center().y() - disc_size / 2);
  if (own) PaintFortune(painter, disc, *own);

  const QRectF sides(rect.left() + gap * 2 + line * 1.1, rect.top(),
                     rect.width() - gap * 3 - line * 1.1, rect.height());
  const bool tie = news.outcome == Outcome::kTied;
  const auto side = [&](const QRectF& room, std::string_view team, Qt::Alignment alignment) {
    const bool won = news.WonBy(team);
    painter.setFont(won ? Bold(plain) : plain);
    row::PaintText(painter, room, Shown(team), won || tie ? text : quiet, alignment);
  };
  const double score_room = QFontMetricsF(Bold(plain)).horizontalAdvance("00 - 00");
  const double middle = sides.center().x();
  const double beside = score_room / 2 + gap;
  side(sides.adjusted(0, 0, middle - beside - sides.right(), 0), news.first, Qt::AlignRight);
  side(sides.adjusted(middle + beside - sides.left(), 0, 0, 0), news.second, Qt::AlignLeft);

  // The goals stand on both sides of the middle, so that ten of them move nothing.
  painter.setFont(Bold(plain));
  const double dash = line * 0.35;
  const QRectF score(middle - score_room / 2, rect.top(), score_room, rect.height());
  row::PaintText(painter, score, "-", quiet, Qt::AlignHCenter);
  row::PaintText(painter, score.adjusted(0, 0, -score_room / 2 - dash, 0), Shown(news.goals1), text,
                 Qt::AlignRight);
  row::PaintText(painter, score.adjusted(score_room / 2 + dash, 0, 0, 0), Shown(news.goals2), text);
  painter.setFont(plain);
}

}  // namespace frostmark
