#pragma once

#include <QLabel>
#include <QTimer>

class QAbstractItemView;

namespace frostmark {

// Says over a list why there is nothing in it. A list that is rebuilt is not empty: the note comes
// a moment after the last row has gone.
class EmptyNote : public QLabel {
  Q_OBJECT

 public:
  // WHY is for LIST, whose model is set.
  EmptyNote(QAbstractItemView& list, const QString& why);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsDue() const;
  void Follow();
  void Place();

  QAbstractItemView& list_;
  QTimer wait_;
};

}  // namespace frostmark
