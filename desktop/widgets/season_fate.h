#pragma once

#include <QLabel>
#include <QString>

#include "desktop/painting/place_mark.h"

namespace frostmark {

// What a season has brought to the user's team: its crest, up or down and between which leagues, or
// where it has come in and stays. Its text is the same in a sentence.
class SeasonFate : public QLabel {
  Q_OBJECT

 public:
  struct Season {
    QString team;
    int place = 1;  // in its table
    QString from;   // the letter of the league that it played in
    QString to;     // and of the one that it plays in next
    Fate fate = Fate::kStays;

    bool operator==(const Season&) const = default;
  };

  explicit SeasonFate(QWidget* parent = nullptr) : QLabel(parent) {}

  void SetSeason(const Season& season);
  const Season& Shown() const { return season_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintMove(QPainter& painter, const QRectF& line) const;

  Season season_;
};

}  // namespace frostmark
