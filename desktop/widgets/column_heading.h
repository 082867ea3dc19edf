#pragma once

#include <QLabel>

namespace frostmark {

// A heading over several columns. Its text holds the words of all columns with wide gaps between
// them ("Offense      Defense        Overall"); the gaps say which words belong together, and the
// widget sets each over a column of equal width.
class ColumnHeading : public QLabel {
  Q_OBJECT
  // The space between the columns below.
  Q_PROPERTY(int columnGap MEMBER column_gap_)

 public:
  explicit ColumnHeading(QWidget* parent = nullptr) : QLabel(parent) {}

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QStringList Words() const;

  int column_gap_ = 0;
};

}  // namespace frostmark
