#pragma once

#include <QMargins>
#include <QObject>

class QWidget;

namespace frostmark {

// Holds a widget at an edge or a corner of its parent, outside the parent's layout: a close mark
// beside a frame's title, a spot on the very edge.
class Pin : public QObject {
  Q_OBJECT

 public:
  // WHERE is an alignment within the parent, INSET the space kept to its edges. The pin belongs to
  // CHILD.
  Pin(QWidget& child, Qt::Alignment where, QMargins inset = {});

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Place();

  QWidget& child_;
  Qt::Alignment where_;
  QMargins inset_;
};

}  // namespace frostmark
