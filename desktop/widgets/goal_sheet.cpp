#include "desktop/widgets/goal_sheet.h"

namespace frostmark {
namespace {

QString LastWord(const QString& name) {
  return name.section(' ', -1, -1, QString::SectionSkipEmpty);
}

QString Entry(int period, const QString& scorer, const QString& assist) {
  const QString goal = QStringLiteral("P%1 %2").arg(period).arg(scorer);
  return assist.isEmpty() ? goal : goal + " (" + assist + ")";
}

// Its words stay together when lines are broken.
QString Unbroken(QString entry) { return entry.replace(' ', QChar(QChar::Nbsp)); }

}  // namespace

GoalSheet::GoalSheet(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void GoalSheet::Add(int period, const QString& scorer, const QString& assist) {
  whole_.prepend(Entry(period, scorer, assist));
  brief_.prepend(Unbroken(Entry(period, LastWord(scorer), LastWord(assist))));
  ShowThem();
}

void GoalSheet::Clear() {
  whole_.clear();
  brief_.clear();
  ShowThem();
}

QSize GoalSheet::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 40, fontMetrics().lineSpacing() * 2};
}

QSize GoalSheet::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 12, sizeHint().height()};
}

void GoalSheet::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  ShowThem();
}

void GoalSheet::ShowThem() {
  QString shown;
  for (int i = 0; i < brief_.size(); ++i) {
    const QString& goal = brief_[i];
    const QString more = shown.isEmpty() ? goal : shown + QStringLiteral("  \u00B7 ") + goal;
    const QRect needed = fontMetrics().boundingRect(
        QRect(0, 0, width(), 10000), static_cast<int>(alignment()) | Qt::TextWordWrap,
        more + (i + 1 == brief_.size() ? "" : QStringLiteral(" \u2026")));
    if (needed.height() > fontMetrics().lineSpacing() * 2) {
      shown += QStringLiteral(" \u2026");
      break;
    }
    shown = more;
  }
  setText(shown);
  // As markup in any case: a single goal by somebody with an "&" would not be taken for it.
  setToolTip(whole_.isEmpty()
                 ? QString()
                 : "<p style='white-space:pre'>" + whole_.join('\n').toHtmlEscaped() + "</p>");
  setAccessibleName(whole_.isEmpty() ? QStringLiteral("No goals") : whole_.join(", "));
}

}  // namespace frostmark
