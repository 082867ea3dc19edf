#pragma once

#include <QString>
#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

class QAbstractItemView;

namespace frostmark {

// Lights up where a row of a list was taken away, with the player's name and the crest of the team
// that has them now, and fades.
class TakenFlash : public QWidget {
  Q_OBJECT

 public:
  explicit TakenFlash(QAbstractItemView& list);

  // ROW is the place of the row that is gone, on the list's viewport.
  void Flash(const QRect& row, const QString& player, const QString& team);

  // Who was taken last, as long as it is lit.
  const QString& Player() const { return player_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString player_;
  QString team_;
  QTimer stay_;
  QVariantAnimation fade_;
  double strength_ = 1;
};

}  // namespace frostmark
