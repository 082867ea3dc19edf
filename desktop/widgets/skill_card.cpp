#include "desktop/widgets/skill_card.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>
#include <QStringList>
#include <array>

#include "desktop/painting/palette.h"
#include "desktop/painting/position_badge.h"
#include "desktop/painting/rating_painter.h"
#include "desktop/painting/row_painter.h"
#include "desktop/painting/row_text.h"
#include "records/lines/player_record.h"

namespace frostmark {
namespace {

struct Skill {
  Field field;
  const char* word;
};

constexpr std::array kSkills = {
    Skill{Field::kShooting, "Shooting"}, Skill{Field::kPassing, "Passing"},
    Skill{Field::kDefense, "Defense"}, Skill{Field::kAgility, "Agility"}};

constexpr double kLines = 8.2;  // of text, the height of the card

QFont Bold(QFont font) {
  font.setWeight(QFont::DemiBold);
  return font;
}

void PaintSkill(QPainter& painter, const QRectF& row, const QString& word, int rating,
                bool counts) {
  const QFontMetricsF metrics(painter.font());
  const double words = metrics.horizontalAdvance("Shooting") + metrics.height() * 0.6;
  const double figure = metrics.horizontalAdvance("000");
  painter.setPen(QColor(counts ? palette::kIce : palette::kFaint));
  painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, word);
  painter.drawText(row, Qt::AlignRight | Qt::AlignVCenter, QString::number(rating));
  QRectF bar = row.adjusted(words, 0, -figure, 0);
  bar.setHeight(metrics.height() * 0.45);
  bar.moveTop(row.center().y() - bar.height() / 2);
  if (counts) {
    PaintRatingBar(painter, bar, rating);
  } else {
    PaintShare(painter, bar, RatingShare(rating), QColor(palette::kEdge));
  }
}

}  // namespace

SkillCard::SkillCard(QAbstractItemView& list) : QWidget(list.parentWidget()), list_(list) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  list.installEventFilter(this);
  hide();
}

void SkillCard::Tell(const std::string& record) {
  record_ = ParsePlayerRecord(record) ? record : std::string();
  QStringList words;
  const std::string_view position = FieldView(record_, Field::kPosition);
  for (const Skill& skill : kSkills) {
    words += QStringLiteral("%1 %2%3").arg(skill.word, Shown(FieldView(record_, skill.field)),
                                           CountsAt(position, skill.field) ? " (counts)" : "");
  }
  setAccessibleName(Shown(FieldView(record_, Field::kName)) + ": " + words.join(", "));
  Place();
  update();
}

int SkillCard::EndOfRows() const {
  const QAbstractItemModel* rows = list_.model();
  if (rows == nullptr) return 0;
  const QRect last = list_.visualRect(rows->index(rows->rowCount() - 1, 0));
  return list_.viewport()->mapTo(parentWidget(), last.bottomLeft()).y();
}

void SkillCard::Place() {
  const double line = list_.fontMetrics().height();
  const int margin = qRound(line * 0.6);
  const int height = qRound(line * kLines);
  const QRect list = list_.geometry();
  setGeometry(list.left() + margin, list.bottom() - margin - height, list.width() - 2 * margin,
              height);
  setVisible(!record_.empty() && EndOfRows() < y());
  raise();
}

bool SkillCard::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Move) Place();
  return false;
}

void SkillCard::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(palette::kEdge), 1));
  painter.setBrush(QColor(palette::kPanel));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);

  const QFontMetricsF metrics(font());
  const double line = metrics.height();
  const QRectF inner = QRectF(rect()).adjusted(line * 0.8, line * 0.6, -line * 0.8, -line * 0.5);
  const std::string_view position = FieldView(record_, Field::kPosition);
  const QRectF badge(inner.topLeft(), PositionBadgeSize(metrics));
  PaintPositionBadge(painter, badge, Shown(position));
  painter.setFont(Bold(font()));
  row::PaintText(painter,
                 QRectF(badge.right() + line * 0.5, badge.top(),
                        inner.right() - badge.right() - line * 0.5, badge.height()),
                 Shown(FieldView(record_, Field::kName)), QColor(palette::kIce));
  painter.setFont(font());
  QRectF row(inner.left(), badge.bottom() + line * 0.35, inner.width(), line * 1.35);
  for (const Skill& skill : kSkills) {
    PaintSkill(painter, row, skill.word, Shown(FieldView(record_, skill.field)).toInt(),
               CountsAt(position, skill.field));
    row.translate(0, line * 1.35);
  }
}

}  // namespace frostmark
