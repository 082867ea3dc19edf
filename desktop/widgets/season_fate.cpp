#include "desktop/widgets/season_fate.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "desktop/painting/measures.h"
#include "desktop/painting/palette.h"
#include "desktop/painting/team_crest.h"

namespace frostmark {
namespace {

constexpr double kWidth = 25;  // lines of the font
constexpr double kHeight = 8;

QString Ordinal(int place) {
  static const QStringList kEndings = {"th", "st", "nd", "rd"};
  return QString::number(place) + kEndings.value(place < 4 ? place : 0);
}

QString Headline(Fate fate) {
  switch (fate) {
    case Fate::kChampion:
      return QStringLiteral("CHAMPIONS!");
    case Fate::kGoesUp:
      return QStringLiteral("PROMOTED");
    case Fate::kGoesDown:
      return QStringLiteral("RELEGATED");
    case Fate::kStays:
      break;
  }
  return QStringLiteral("STAYS");
}

QString Sentence(const SeasonFate::Season& season) {
  const QString finish = QStringLiteral("%1 finished %2 in Rank %3")
                             .arg(season.team, Ordinal(season.place), season.from);
  switch (season.fate) {
    case Fate::kChampion:
      return finish + " and is the champion.";
    case Fate::kGoesUp:
      return finish + " and goes up to Rank " + season.to + ".";
    case Fate::kGoesDown:
      return finish + " and goes down to Rank " + season.to + ".";
    case Fate::kStays:
      break;
  }
  return finish + " and stays there.";
}

// In one line, as large as SIZE allows and LINE has room for.
void Write(QPainter& painter, const QRectF& line, QFont font, double size, const QColor& color,
           const QString& text) {
  font.setPixelSize(std::max(8, qRound(size)));
  while (font.pixelSize() > 8 && QFontMetricsF(font).horizontalAdvance(text) > line.width()) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  painter.setFont(font);
  painter.setPen(color);
  painter.drawText(line, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine,
                   text);
}

// The letter of a league in a disc.
void PaintLeague(QPainter& painter, const QRectF& disc, const QString& letter, const QColor& ring) {
  painter.setPen(QPen(ring, disc.width() * 0.08));
  painter.setBrush(QColor(palette::kDeep));
  painter.drawEllipse(disc.adjusted(1.5, 1.5, -1.5, -1.5));
  QFont face = painter.font();
  face.setPixelSize(std::max(8, qRound(disc.height() * 0.56)));
  face.setWeight(QFont::Bold);
  painter.setFont(face);
  painter.setPen(QColor(palette::kIce));
  painter.drawText(disc, Qt::AlignCenter, letter);
}

}  // namespace

void SeasonFate::SetSeason(const Season& season) {
  if (season == season_) return;
  season_ = season;
  setText(season.team.isEmpty() ? QString() : Sentence(season));
  update();
}

QSize SeasonFate::sizeHint() const {
  return (QSizeF(kWidth, kHeight) * fontMetrics().height()).toSize();
}

// From the old league to the new one, with the place in the old one after them.
void SeasonFate::PaintMove(QPainter& painter, const QRectF& line) const {
  QRectF disc(line.topLeft(), QSizeF(line.height(), line.height()));
  PaintLeague(painter, disc, season_.from, QColor(palette::kEdge));
  double end = disc.right();
  if (season_.from != season_.to) {
    const QColor color = FateColor(season_.fate);
    const double gap = disc.width() * 0.35;
    const double tip = disc.right() + gap + disc.width() * 0.9;
    const double head = disc.width() * 0.22;
    const double middle = disc.center().y();
    painter.setPen(QPen(color, disc.width() * 0.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(QPointF(disc.right() + gap, middle), QPointF(tip, middle));
    painter.drawPolyline(
        QPolygonF({{tip - head, middle - head}, {tip, middle}, {tip - head, middle + head}}));
    disc.moveLeft(tip + gap);
    PaintLeague(painter, disc, season_.to, color);
    end = disc.right();
  }
  const double gap = disc.width() * 0.45;
  Write(painter, {end + gap, line.top(), line.right() - end - gap, line.height()}, font(),
        line.height() * 0.55, QColor(palette::kFrost),
        QStringLiteral("%1 in Rank %2").arg(Ordinal(season_.place), season_.from));
}

void SeasonFate::paintEvent(QPaintEvent* /*event*/) {
  if (season_.team.isEmpty()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QRectF block(QPointF(0, 0), QSizeF(sizeHint()));
  block.moveCenter(QRectF(rect()).center());
  const double em = block.height() / kHeight;

  QRectF crest(0, 0, em * 6 * kCrestBreadth, em * 6);
  crest.moveCenter({block.left() + crest.width() / 2 + em * 0.5, block.center().y()});
  PaintCrest(painter, crest, season_.team);

  const double left = crest.right() + em * 1.2;
  const double width = block.right() - left;
  QFont script = font();
  script.setFamilies({kScriptFace, kScriptStandIn});
  Write(painter, {left, block.top() + em * 0.9, width, em * 1.7}, script, em * 1.35,
        QColor(palette::kGold), season_.team);
  const bool stays = season_.fate == Fate::kStays;
  Write(painter, {left, block.top() + em * 2.7, width, em * 2.1}, QFont(kPosterFace), em * 1.6,
        stays ? QColor(palette::kIce) : FateColor(season_.fate), Headline(season_.fate));
  PaintMove(painter, {left, block.top() + em * 5.2, width, em * 1.8});
}

}  // namespace frostmark
