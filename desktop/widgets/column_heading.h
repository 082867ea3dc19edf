#pragma once

#include <QLabel>
#include <QList>

class QAbstractItemView;

namespace frostmark {

// A heading over several columns. Its text holds the words of all columns with wide gaps between
// them ("Offense      Defense        Overall"); the gaps say which words belong together, and the
// widget sets each over a column of equal width, or over a list of its own.
class ColumnHeading : public QLabel {
  Q_OBJECT
  // The space between the columns below.
  Q_PROPERTY(int columnGap MEMBER column_gap_)

 public:
  explicit ColumnHeading(QWidget* parent = nullptr) : QLabel(parent) {}

  // Sets the words over the texts of LISTS, from the left. They must be in the same window.
  void StandOver(const QList<QAbstractItemView*>& lists);

  QString Word(int index) const { return Words().value(index); }
  // Where word INDEX begins, from the left end of the heading.
  double Start(int index) const;

  bool eventFilter(QObject* watched, QEvent* event) override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QStringList Words() const;

  int column_gap_ = 0;
  QList<QAbstractItemView*> lists_;
};

}  // namespace frostmark
