#pragma once

#include <QFrame>

namespace frostmark {

// A frame around what may become important. Lit, it has a golden edge that glows outward.
class GlowFrame : public QFrame {
  Q_OBJECT

 public:
  explicit GlowFrame(QWidget* parent = nullptr) : QFrame(parent) {}

  void SetLit(bool lit);
  bool Lit() const { return lit_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool lit_ = false;
};

}  // namespace frostmark
