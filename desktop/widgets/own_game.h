#pragma once

#include <QWidget>

namespace frostmark {

// The user's own last game over the news, so that it need not be looked for. Hidden until there is
// one.
class OwnGame : public QWidget {
  Q_OBJECT

 public:
  explicit OwnGame(QWidget* parent = nullptr);

  // Shows LINE, a line of the news, as a game of OWN_TEAM; nothing when it is none.
  void Tell(const QString& line, const QString& own_team);

  QString Line() const { return line_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString line_;
  QString own_team_;
};

}  // namespace frostmark
