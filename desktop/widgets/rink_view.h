#pragma once

#include <QPixmap>
#include <QPointF>
#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>
#include <array>

namespace frostmark {

// The rink of a watched game with twelve chips on it and the names under them, the puck at its
// carrier and the way it came, a line to the goal for a shot, and the lamp behind a goal that has
// just been scored. The chips are children of the view, named "vGoalie" to "vLFor" (home, on the
// left) and "hGoalie" to "hLFor" (visitor).
class RinkView : public QWidget {
  Q_OBJECT

 public:
  explicit RinkView(QWidget* parent = nullptr);

  // Who plays POSITION ("GO" to "LF") of TEAM (1 home, 2 visitor). The last word of NAME is written
  // under the chip, all of it is the chip's tooltip.
  void SetName(int team, const QString& position, const QString& name);

  // The puck goes to TEAM's player of POSITION. Anything else is the spot in the middle.
  void SetPuck(int team, const QString& position);

  // TEAM has shot at the other goal from where the puck is: shown for a moment.
  void ShowShot(int team);

  // Lights the lamp behind the goal that TEAM (1 or 2) has scored in, for a moment, and lays the
  // puck into it until the next SetPuck.
  void FlashGoal(int team);

  // Where the puck belongs, and where it is drawn on its way there, in feet.
  QPointF Puck() const;
  QPointF ShownPuck() const { return shown_; }
  // The team whose goal the lamp tells of, and whose shot is shown; 0 for none.
  int Lamp() const { return lamp_of_; }
  int Shot() const { return shot_of_; }

  // The ice without its boards, in pixels.
  QRectF Ice() const;

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
  static constexpr int kSpotCount = 12;
  static const Spot kSpots[kSpotCount];

  static const Spot* SpotOf(int team, const QString& position);
  void PlaceChips();
  void MarkCarrier();
  QPointF PuckAt(const Spot* spot) const;
  void SendPuck();
  void DropPuck(const QPointF& at);
  QRect PixelsAround(const QPointF& at) const;
  QRect PixelsOfWay() const;
  void PaintGround();
  void PaintNames(QPainter& painter) const;
  void PutLampOut();

  QPixmap ground_;  // the ice and the names
  std::array<QString, kSpotCount> names_;
  const Spot* carrier_ = nullptr;
  const Spot* before_ = nullptr;
  QPointF shown_;
  QVariantAnimation glide_{this};
  QPointF shot_from_;
  int shot_of_ = 0;
  QTimer shot_;
  int lamp_of_ = 0;  // the team that has scored
  int scored_ = 0;   // the same, until the puck is back in play
  QTimer lamp_;
};

}  // namespace frostmark
