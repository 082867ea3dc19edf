#pragma once

#include <QPixmap>
#include <QPointF>
#include <QTimer>
#include <QWidget>
#include <optional>

namespace frostmark {

// The rink of a watched game with twelve chips on it, the puck at its carrier and the way it came,
// and the lamp behind a goal that has just been scored. The chips are children of the view, named
// "vGoalie" to "vLFor" (home, on the left) and "hGoalie" to "hLFor" (visitor).
class RinkView : public QWidget {
  Q_OBJECT

 public:
  explicit RinkView(QWidget* parent = nullptr);

  // The puck is with TEAM's (1 home, 2 visitor) player of POSITION ("GO" to "LF"). Anything else is
  // the spot in the middle.
  void SetPuck(int team, const QString& position);

  // Lights the lamp behind the goal that TEAM (1 or 2) has scored in, for a moment, and lays the
  // puck into it until the next SetPuck.
  void FlashGoal(int team);

  // Where the puck lies, in feet, and the team whose goal the lamp tells of, 0 for none.
  QPointF Puck() const;
  int Lamp() const { return lamp_of_; }

  // Takes puck and lamp back to the start of a game.
  void Reset();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  void LampChanged(int team, bool lit);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Spot;
  static const Spot kSpots[12];

  static const Spot* SpotOf(int team, const QString& position);
  void PlaceChips();
  void MarkCarrier();
  QPointF PuckAt(const Spot* spot) const;
  void PaintPuck(QPainter& painter, const QPointF& at) const;
  void PaintWay(QPainter& painter, const QPointF& from, const QPointF& to) const;
  void PaintLamp(QPainter& painter) const;
  void PutLampOut();

  QPixmap ice_;
  const Spot* carrier_ = nullptr;
  const Spot* before_ = nullptr;
  int lamp_of_ = 0;  // the team that has scored
  int scored_ = 0;   // the same, until the puck is back in play
  QTimer lamp_;
};

}  // namespace frostmark
