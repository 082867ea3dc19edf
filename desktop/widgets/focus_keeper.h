#pragma once

#include <QObject>

class QAbstractButton;

namespace frostmark {

// Brings the keyboard back to a button that disables itself while it works: whoever plays by
// keyboard presses it again and again.
class FocusKeeper : public QObject {
  Q_OBJECT

 public:
  explicit FocusKeeper(QObject* parent) : QObject(parent) {}

  // Keeps the focus for BUTTON, together with those added before: the one pressed last has it.
  void Add(QAbstractButton& button);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const QAbstractButton* pressed_ = nullptr;
};

}  // namespace frostmark
