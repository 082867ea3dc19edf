#pragma once

#include <QWidget>

namespace frostmark {

// Two teams that are going to meet: their crests and names, left in blue and right in red, with a
// "VS" between them.
class VersusView : public QWidget {
  Q_OBJECT

 public:
  explicit VersusView(QWidget* parent = nullptr) : QWidget(parent) {}

  // An empty name is a team that has not been chosen yet.
  void SetTeams(const QString& left, const QString& right);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString left_;
  QString right_;
};

}  // namespace frostmark
