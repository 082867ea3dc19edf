#pragma once

#include <QObject>
#include <QTimer>

namespace frostmark {

// Gives a window its keyboard back that the X server believes it still has. The toolkit passes a
// focus on to the box that is open; where the box closes at that very moment, nobody has the
// keyboard any more, until another program has had it.
class KeyboardReturn : public QObject {
  Q_OBJECT

 public:
  KeyboardReturn();

 private:
  void Look();

  QTimer soon_;
};

}  // namespace frostmark
