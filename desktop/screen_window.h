#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <memory>

#include "desktop/binder.h"

namespace frostmark {

class FocusGuide;
class Guard;
class Screen;
class ScreenForm;
class Stage;

// The window of one screen. A screen without a frame gets round corners and a shadow of its own and
// is moved by the window system when the game asks for it; any other keeps the system's title bar.
class ScreenWindow : public QWidget {
  Q_OBJECT

 public:
  // CLOSE_PROGRAM is what closing the window of a main screen does.
  ScreenWindow(Screen& screen, Guard& guard, Stage& stage, std::function<void()> close_program);
  ~ScreenWindow() override;

  // Brings the window to the screen's present state. Newly shown, a main screen takes the stage; a
  // popup lies beside OPENER and stays in front of it.
  void Follow(QWidget* opener);

  // Moves the window with the mouse, whose button is down on it, until the button is let go.
  void StartDrag();

  // Takes the present zoom and the present state of the stage.
  void Refit();

  ScreenForm& form() const { return *form_; }

 signals:
  // The user asks for larger (1) or smaller (-1) letters, or for the usual ones (0).
  void ZoomWanted(int steps);
  // The user asks for the whole desktop, or for a window again.
  void FullScreenWanted();

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeFrameless();
  void OfferWayOut();
  void OfferComfort();
  void Help();
  void LeaveProgram();
  void Appear(QWidget* opener);
  void StayOverOpener();
  void ShowInState();
  bool FillsDesktop() const;
  void FitSize();
  void Place();
  void FitShadow();
  int TitleBar() const;
  void Drag(const QMouseEvent& move);
  void EndDrag();

  Screen& screen_;
  Guard& guard_;
  Stage& stage_;
  std::function<void()> close_program_;
  ScreenForm* form_;
  std::unique_ptr<Binder> binder_;
  FocusGuide* focus_guide_;
  QPointer<QWidget> opener_;
  bool has_shadow_ = false;
  bool has_been_minimized_ = false;
  bool painted_ = false;        // since it was last shown
  bool moved_by_user_ = false;  // the same
  QPoint placed_at_;
  bool dragging_ = false;
  bool moving_itself_ = false;  // where the window system does not move windows for us
  QPoint drag_start_;
  QPoint drag_origin_;
};

}  // namespace frostmark
