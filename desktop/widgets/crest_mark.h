#pragma once

#include <QString>
#include <QWidget>

namespace frostmark {

// The crest of a team beside its name, where the name stands large.
class CrestMark : public QWidget {
  Q_OBJECT
  // The height in lines of the font.
  Q_PROPERTY(double lines MEMBER lines_)

 public:
  explicit CrestMark(QWidget* parent = nullptr) : QWidget(parent) {}

  // Nothing is drawn for the empty name.
  void SetTeam(const QString& team);
  const QString& Team() const { return team_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString team_;
  double lines_ = 2.6;
};

}  // namespace frostmark
