#pragma once

#include <QWidget>
#include <string>

class QAbstractItemView;

namespace frostmark {

// The skills of one player, in the half of a list that its rows leave free: those that count at the
// player's position bright. Hidden where the rows need the room.
class SkillCard : public QWidget {
  Q_OBJECT

 public:
  explicit SkillCard(QAbstractItemView& list);

  // Shows the player of RECORD, or hides the card when that is no player's.
  void Tell(const std::string& record);
  const std::string& Record() const { return record_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int EndOfRows() const;  // within the parent
  void Place();

  QAbstractItemView& list_;
  std::string record_;
};

}  // namespace frostmark
