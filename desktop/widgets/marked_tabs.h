#pragma once

#include <QTabWidget>

namespace frostmark {

// Tabs of which one may be marked, in gold: the one that is the user's own, or the one where
// something waits for them. That one glows a few times and then keeps still.
class MarkedTabs : public QTabWidget {
  Q_OBJECT

 public:
  enum class Manner { kStill, kCalling };

  explicit MarkedTabs(QWidget* parent = nullptr);

  // Marks TAB, -1 for none. WHY stands before its tooltip, and a screen reader
  // says both.
  void Mark(int tab, Manner manner, const QString& why);

  int Marked() const;

 private:
  class Bar;
  Bar* bar_;
};

}  // namespace frostmark
