#include "desktop/delegates/paragraph_delegate.h"

#include <QAbstractItemView>
#include <QPainter>
#include <cmath>

namespace frostmark {

namespace {

constexpr qsizetype kMostHeights = 4096;
constexpr double kSmallLetters = 0.85;
constexpr double kSmallPadding = 0.2;

QRectF SentenceRect(const QRectF& row, const QStyleOptionViewItem& option, double indent) {
  return row.adjusted(indent, 0, -row::Margin(option) / 2, 0);
}

}  // namespace

ParagraphDelegate::Sentence ParagraphDelegate::Whole(const QStyleOptionViewItem& option) const {
  Sentence sentence = SentenceOf(option);
  if (sentence.runs.empty()) sentence = {{{option.text}}, row::TextColor(option)};
  return sentence;
}

QFont ParagraphDelegate::FontOf(const Sentence& sentence, const QStyleOptionViewItem& option) {
  QFont font = option.font;
  if (sentence.small) font.setPixelSize(qRound(QFontInfo(font).pixelSize() * kSmallLetters));
  return font;
}

bool ParagraphDelegate::PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& /*index*/) const {
  PaintSign(painter, option);
  const Sentence sentence = Whole(option);
  row::PaintParagraph(painter, SentenceRect(option.rect, option, Indent(option)), sentence.runs,
                      FontOf(sentence, option), sentence.color);
  return true;
}

QSize ParagraphDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
  const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
  const int width = view == nullptr ? option.rect.width() : view->viewport()->width();
  if (width != width_ || option.font != font_ || heights_.size() > kMostHeights) {
    heights_.clear();
    width_ = width;
    font_ = option.font;
  }
  const QString text = index.data().toString();
  const auto known = heights_.constFind(text);
  if (known != heights_.constEnd()) return {0, *known};
  QStyleOptionViewItem prepared = option;
  initStyleOption(&prepared, index);
  const QRectF row(0, 0, width, 0);
  const Sentence sentence = Whole(prepared);
  const double text_height =
      row::ParagraphHeight(SentenceRect(row, prepared, Indent(prepared)).width(), sentence.runs,
                           FontOf(sentence, prepared));
  const double padding = (row::Height(prepared) - prepared.fontMetrics.height()) *
                         (sentence.small ? kSmallPadding : 1);
  const int height = static_cast<int>(std::ceil(text_height + padding));
  heights_.insert(text, height);
  return {0, height};
}

}  // namespace frostmark
