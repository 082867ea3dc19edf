#include "desktop/delegates/play_delegate.h"

#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>
#include <utility>

#include "desktop/delegates/row_painter.h"
#include "desktop/palette.h"

namespace frostmark {
namespace {

constexpr int kLines = 2;

QColor ColourOf(Play play) {
  switch (play) {
    case Play::kGoal:
      return palette::kGold;
    case Play::kSave:
      return palette::kBlueBright;
    case Play::kSteal:
      return palette::kRedBright;
    case Play::kFaceOff:
      return palette::kGreen;
    case Play::kResult:
      return palette::kIce;
    case Play::kPass:
    case Play::kPeriodEnd:
    case Play::kOther:
      break;
  }
  return palette::kEdge;
}

// The sign of PLAY in the circle BOUNDS, with the pen of its colour.
void PaintSign(QPainter& painter, const QRectF& bounds, Play play) {
  const QColor colour = ColourOf(play);
  const double r = bounds.width() / 2;
  const QPointF at = bounds.center();
  painter.setPen(QPen(colour, r * 0.22, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  switch (play) {
    case Play::kGoal: {  // the lamp behind the goal
      QRadialGradient lamp(at, r);
      lamp.setColorAt(0, Qt::white);
      lamp.setColorAt(0.45, colour);
      lamp.setColorAt(1, QColor(palette::kRed));
      painter.setPen(Qt::NoPen);
      painter.setBrush(lamp);
      painter.drawEllipse(bounds);
      break;
    }
    case Play::kFaceOff:  // the dot in its circle
      painter.drawEllipse(at, r * 0.8, r * 0.8);
      painter.setBrush(colour);
      painter.drawEllipse(at, r * 0.2, r * 0.2);
      break;
    case Play::kSave: {  // a shield
      QPainterPath shield(at + QPointF(-r * 0.7, -r * 0.7));
      shield.lineTo(at + QPointF(r * 0.7, -r * 0.7));
      shield.lineTo(at + QPointF(r * 0.7, r * 0.1));
      shield.quadTo(at + QPointF(r * 0.5, r * 0.7), at + QPointF(0, r * 0.9));
      shield.quadTo(at + QPointF(-r * 0.5, r * 0.7), at + QPointF(-r * 0.7, r * 0.1));
      shield.closeSubpath();
      painter.drawPath(shield);
      break;
    }
    case Play::kSteal:  // the puck turns round
      painter.drawArc(bounds.adjusted(r * 0.25, r * 0.25, -r * 0.25, -r * 0.25), 60 * 16, 240 * 16);
      painter.drawLine(at + QPointF(r * 0.38, -r * 0.65), at + QPointF(r * 0.8, -r * 0.5));
      painter.drawLine(at + QPointF(r * 0.38, -r * 0.65), at + QPointF(r * 0.3, -r * 0.2));
      break;
    case Play::kPass:  // on it goes
      painter.drawLine(at + QPointF(-r * 0.7, 0), at + QPointF(r * 0.6, 0));
      painter.drawLine(at + QPointF(r * 0.6, 0), at + QPointF(r * 0.15, -r * 0.4));
      painter.drawLine(at + QPointF(r * 0.6, 0), at + QPointF(r * 0.15, r * 0.4));
      break;
    case Play::kPeriodEnd:
    case Play::kResult:
    case Play::kOther:
      painter.setBrush(colour);
      painter.drawEllipse(at, r * 0.22, r * 0.22);
      break;
  }
}

// Draws TEXT from the top of BOUNDS on at most kLines lines, centred in height.
void PaintWrapped(QPainter& painter, const QRectF& bounds, const QString& text) {
  QTextLayout layout(text, painter.font());
  QTextOption between_words;
  between_words.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(between_words);
  layout.beginLayout();
  double height = 0;
  for (int i = 0; i < kLines; ++i) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(bounds.width());
    line.setPosition(QPointF(0, height));
    height += line.height();
  }
  layout.endLayout();
  layout.draw(&painter, QPointF(bounds.left(), bounds.center().y() - height / 2));
}

}  // namespace

Play PlayOf(const QString& line) {
  static const std::pair<QLatin1String, Play> kSigns[] = {
      {QLatin1String(" SCORES! Assist by: "), Play::kGoal},
      {QLatin1String(" wins the face off!"), Play::kFaceOff},
      {QLatin1String(" steals the puck from "), Play::kSteal},
      {QLatin1String(" blocks a shot from "), Play::kSave},
      {QLatin1String(" passes it to "), Play::kPass},
      {QLatin1String(" passes the puck to "), Play::kPass},
      {QLatin1String("End of the "), Play::kPeriodEnd},
      {QLatin1String("The match has ended"), Play::kResult},
      {QLatin1String(" beat "), Play::kResult},
      {QLatin1String(" tied the game with "), Play::kResult},
  };
  for (const auto& [sign, play] : kSigns) {
    if (line.contains(sign)) return play;
  }
  return Play::kOther;
}

void PlayDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem prepared = option;
  initStyleOption(&prepared, index);
  const Play play = PlayOf(prepared.text);
  painter->save();
  row::PaintGround(*painter, prepared);
  const double margin = row::Margin(prepared);
  const double size = prepared.fontMetrics.height();
  QRectF sign(prepared.rect.left() + margin, 0, size, size);
  sign.moveTop(prepared.rect.center().y() - size / 2);
  PaintSign(*painter, sign, play);

  QRectF text(prepared.rect);
  text.setLeft(sign.right() + margin * 1.3);
  text.setRight(text.right() - margin * 0.5);
  const bool loud = play == Play::kGoal || play == Play::kResult;
  QFont font = prepared.font;
  font.setBold(loud);
  painter->setFont(font);
  const bool quiet = play == Play::kPass || play == Play::kPeriodEnd;
  painter->setPen(play == Play::kGoal ? ColourOf(play)
                  : quiet             ? row::QuietColor(prepared)
                                      : row::TextColor(prepared));
  PaintWrapped(*painter, text, prepared.text);
  painter->restore();
}

QSize PlayDelegate::sizeHint(const QStyleOptionViewItem& option,
                             const QModelIndex& /*index*/) const {
  return {0, option.fontMetrics.height() * kLines + option.fontMetrics.height() / 2};
}

}  // namespace frostmark
