#pragma once

#include <QPixmap>
#include <QWidget>

namespace frostmark {

// The picture behind the start screen: an arena at night, seen from the ice level, with the name of
// the game over it.
class TitleScene : public QWidget {
  Q_OBJECT

 public:
  explicit TitleScene(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  // How far the name of the game reaches down in a picture of HEIGHT.
  static int NameHeight(int height);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QPixmap Drawn() const;
  // What stands on the ice comes after the first frame, which is not to wait for it.
  void DrawDetails();
  void AddDetails();

  QPixmap scene_;  // as it was last drawn
  bool detailed_ = false;
};

}  // namespace frostmark
