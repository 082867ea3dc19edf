#include "desktop/delegates/play_delegate.h"

#include <QPainter>
#include <QPainterPath>
#include <optional>
#include <string>

#include "desktop/painting/palette.h"
#include "desktop/painting/row_painter.h"
#include "records/lines/play_line.h"

namespace frostmark {
namespace {

QColor ColorOf(Play play) {
  switch (play) {
    case Play::kGoal:
      return palette::kGold;
    case Play::kSave:
      return palette::kBlueBright;
    case Play::kSteal:
      return palette::kRedBright;
    case Play::kFaceOff:
      return palette::kGreen;
    case Play::kMatchEnd:
    case Play::kWin:
    case Play::kTie:
      return palette::kIce;
    case Play::kPass:
    case Play::kOutletPass:
    case Play::kFirstPeriod:
    case Play::kSecondPeriod:
      break;
  }
  return palette::kEdge;
}

// The sign of PLAY in the circle BOUNDS, with the pen of its color.
void PaintPlay(QPainter& painter, const QRectF& bounds, Play play) {
  const QColor color = ColorOf(play);
  const double r = bounds.width() / 2;
  const QPointF at = bounds.center();
  painter.setPen(QPen(color, r * 0.22, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  switch (play) {
    case Play::kGoal: {  // the lamp behind the goal
      QRadialGradient lamp(at, r);
      lamp.setColorAt(0, Qt::white);
      lamp.setColorAt(0.45, color);
      lamp.setColorAt(1, QColor(palette::kRed));
      painter.setPen(Qt::NoPen);
      painter.setBrush(lamp);
      painter.drawEllipse(bounds);
      break;
    }
    case Play::kFaceOff:  // the dot in its circle
      painter.drawEllipse(at, r * 0.8, r * 0.8);
      painter.setBrush(color);
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
    case Play::kPass:
    case Play::kOutletPass:  // on it goes
      painter.drawLine(at + QPointF(-r * 0.7, 0), at + QPointF(r * 0.6, 0));
      painter.drawLine(at + QPointF(r * 0.6, 0), at + QPointF(r * 0.15, -r * 0.4));
      painter.drawLine(at + QPointF(r * 0.6, 0), at + QPointF(r * 0.15, r * 0.4));
      break;
    case Play::kFirstPeriod:
    case Play::kSecondPeriod:
    case Play::kMatchEnd:
    case Play::kWin:
    case Play::kTie:
      painter.setBrush(color);
      painter.drawEllipse(at, r * 0.22, r * 0.22);
      break;
  }
}

// The play of the row; nothing for a line that tells none.
std::optional<Play> PlayOf(const QStyleOptionViewItem& option) {
  const std::string text = option.text.toStdString();
  const auto line = ParsePlayLine(text);
  return line ? std::optional(line->play) : std::nullopt;
}

bool EndsPeriod(Play play) { return play == Play::kFirstPeriod || play == Play::kSecondPeriod; }

bool EndsMatch(Play play) {
  return play == Play::kMatchEnd || play == Play::kWin || play == Play::kTie;
}

bool IsPass(Play play) { return play == Play::kPass || play == Play::kOutletPass; }

}  // namespace

double PlayDelegate::Indent(const QStyleOptionViewItem& option) const {
  return option.fontMetrics.height() + row::Margin(option) * 2.3;
}

void PlayDelegate::PaintSign(QPainter& painter, const QStyleOptionViewItem& option) const {
  const auto play = PlayOf(option);
  if (!play) return;
  const double size = option.fontMetrics.height();
  const double shrink = IsPass(*play) ? 0.6 : 1;
  QRectF sign(0, 0, size * shrink, size * shrink);
  sign.moveCenter({option.rect.left() + row::Margin(option) + size / 2,
                   static_cast<double>(option.rect.center().y())});
  PaintPlay(painter, sign, *play);
}

PlayDelegate::Sentence PlayDelegate::SentenceOf(const QStyleOptionViewItem& option) const {
  const auto play = PlayOf(option);
  if (!play) return {};
  const bool loud = *play == Play::kGoal || EndsMatch(*play);
  const bool quiet = IsPass(*play) || EndsPeriod(*play);
  const bool selected = option.state & QStyle::State_Selected;
  return {{{option.text, loud}},
          selected               ? row::TextColor(option)
          : *play == Play::kGoal ? ColorOf(*play)
          : quiet                ? row::QuietColor(option)
                                 : row::TextColor(option),
          IsPass(*play)};
}

}  // namespace frostmark
