#pragma once

#include <QObject>
#include <QString>

#include "records/lines/play_line.h"

namespace frostmark {

class Game;
class ScreenForm;

// Something that happened in a watched game.
struct Deed {
  Play play;
  int team;  // whose deed it is, 1 home or 2 visitor; 0 for what neither did
  int period;
  QString who;
  QString whom;
};

// Tells what happens in a watched game, line by line of its play-by-play, with the team that a line
// does not name.
class MatchStory : public QObject {
  Q_OBJECT

 public:
  MatchStory(const Game& game, ScreenForm& form);

 signals:
  void Happened(const Deed& deed);
  // The play-by-play is empty again.
  void Restarted();

 private:
  void Read(int row);
  int TeamOf(Play play) const;
  int Period() const;

  const Game& game_;
};

}  // namespace frostmark
