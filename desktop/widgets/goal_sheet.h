#pragma once

#include <QLabel>
#include <QStringList>

namespace frostmark {

// The goals of one team under its score, newest first, on at most two lines. What finds no room
// there stands in the tooltip with the rest.
class GoalSheet : public QLabel {
  Q_OBJECT

 public:
  explicit GoalSheet(QWidget* parent = nullptr);

  // In the PERIOD, by SCORER, with the help of ASSIST ("" for nobody's). Full names; their last
  // words are shown.
  void Add(int period, const QString& scorer, const QString& assist);
  void Clear();

  // One goal an item, newest first, with full names.
  const QStringList& Goals() const { return whole_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return false; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowThem();

  QStringList whole_;
  QStringList brief_;
};

}  // namespace frostmark
