#pragma once

#include <QWidget>

class QAbstractItemView;

namespace frostmark {

// The words over the columns of a list of players, whose rows are marked.
class PlayerHeading : public QWidget {
  Q_OBJECT

 public:
  explicit PlayerHeading(QWidget* parent = nullptr) : QWidget(parent) {}

  // Sets the words over the columns of PLAYERS, a list in the same window.
  void StandOver(QAbstractItemView& players);

  bool eventFilter(QObject* watched, QEvent* event) override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QAbstractItemView* players_ = nullptr;
};

}  // namespace frostmark
