#pragma once

#include <QWidget>
#include <array>

namespace frostmark {

// What the two teams of a watched game have done beside scoring: saves, steals, and face-offs won,
// the home team's figure on the left of each word and the visitor's on the right.
class MatchTally : public QWidget {
  Q_OBJECT

 public:
  enum Count { kSaves, kSteals, kFaceOffs };

  explicit MatchTally(QWidget* parent = nullptr);

  void Add(Count count, int team);
  void Clear();
  // How often for TEAM (1 home, 2 visitor).
  int Of(Count count, int team) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void SpeakThem();
  void PaintCount(QPainter& painter, const QRectF& room, Count count) const;

  std::array<std::array<int, 2>, 3> counts_{};
};

}  // namespace frostmark
