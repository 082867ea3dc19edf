#pragma once

#include <QWidget>

namespace frostmark {

// The champion's cup on its pedestal, drawn as vectors in whatever size it gets.
class TrophyPicture : public QWidget {
  Q_OBJECT

 public:
  explicit TrophyPicture(QWidget* parent = nullptr) : QWidget(parent) {}

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace frostmark
