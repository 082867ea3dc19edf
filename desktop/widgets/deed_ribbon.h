#pragma once

#include <QColor>
#include <QDeadlineTimer>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <array>
#include <vector>

namespace frostmark {

// The ribbon over the ice that keeps what matters in reach of the eye: the last goals, saves and
// steals of the home team on the left and of the visitor on the right, newest on top and largest.
// Each can be read for at least 1.5 seconds, the newest of a team until its next. It takes no
// mouse.
class DeedRibbon : public QWidget {
  Q_OBJECT

 public:
  explicit DeedRibbon(QWidget* parent = nullptr);

  // TEAM (1 home, 2 visitor) has done what WORD says ("SAVE") through NAME. COLOR marks the word.
  void Tell(int team, const QString& word, const QString& name, const QColor& color);
  void Clear();

  // What can be read of TEAM, newest first: "SAVE Tyrell Stone".
  QStringList Lines(int team) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Deed {
    QString word;
    QString name;
    QColor color;
    QDeadlineTimer until;
  };

  void DropOld();
  double LineHeight(std::size_t row) const;
  void PaintLine(QPainter& painter, const QRectF& line, const Deed& deed, bool newest,
                 bool home) const;

  std::array<std::vector<Deed>, 2> deeds_;
  QTimer old_;
};

}  // namespace frostmark
