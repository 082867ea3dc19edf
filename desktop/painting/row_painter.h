#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <QStyleOptionViewItem>
#include <vector>

class QPainter;

namespace frostmark {

// What all drawn rows of a list have in common: their measures, their ground with selection, hover
// and keyboard focus, and their texts.
namespace row {

// The height of a row and the space at its two ends, from the font alone. A row has no width of its
// own: it fills its list, whose form sees to it that there is room.
int Height(const QStyleOptionViewItem& option);
double Margin(const QStyleOptionViewItem& option);
double Margin(const QFontMetrics& metrics);

// Draws the ground of a row as the style sheet wants it, with the keyboard's frame when the row has
// the focus, and leaves PAINTER in the row's font.
void PaintGround(QPainter& painter, const QStyleOptionViewItem& option);

// The color of plain text on the row, and of text that stands back.
QColor TextColor(const QStyleOptionViewItem& option);
QColor QuietColor(const QStyleOptionViewItem& option);

// Notes while it lives whether a text has been cut.
class CutWatch {
 public:
  CutWatch();
  ~CutWatch();
  CutWatch(const CutWatch&) = delete;
  CutWatch& operator=(const CutWatch&) = delete;
  bool Any() const { return any_; }

 private:
  friend void NoteCut();
  bool any_ = false;
};

// Draws TEXT into RECT on one line, with dots at its end where it does not fit.
void PaintText(QPainter& painter, const QRectF& rect, const QString& text, const QColor& color,
               Qt::Alignment alignment = Qt::AlignLeft);

// A piece of a line that is drawn in one manner.
struct Run {
  QString text;
  bool bold = false;
};

// Draws RUNS one after the other into RECT, centerd in height, broken between words onto as many
// lines as its width asks for.
void PaintParagraph(QPainter& painter, const QRectF& rect, const std::vector<Run>& runs,
                    const QFont& font, const QColor& color);

// How high PaintParagraph draws RUNS in WIDTH.
double ParagraphHeight(double width, const std::vector<Run>& runs, const QFont& font);

// Marks the row as the user's own: a tint and a bright edge at its left end.
void PaintOwn(QPainter& painter, const QStyleOptionViewItem& option);

// Draws the whole row as plain text: a line that is in no known form.
void PaintPlain(QPainter& painter, const QStyleOptionViewItem& option, const QString& text);

}  // namespace row
}  // namespace frostmark
