#include "desktop/screen_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "desktop/compositing.h"
#include "desktop/decorations.h"
#include "desktop/guard.h"
#include "desktop/palette.h"
#include "desktop/screen_form.h"
#include "ui/screen.h"

namespace frostmark {
namespace {

constexpr int kShadow = 18;  // how far the shadow reaches
constexpr int kCorner = 14;  // as in the style sheet

// Draws the shadow of CARD, denser below it, as rings of nearly transparent night.
void PaintShadow(QPainter& painter, const QRect& card) {
  // What the card covers is left out: it is most of the window, and shading it takes long.
  const QRect covered = card.adjusted(kCorner, 0, -kCorner, 0);
  painter.setClipRegion(QRegion(painter.window()) - covered -
                        card.adjusted(0, kCorner, 0, -kCorner));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(2, 8, 20, 11));
  for (int reach = kShadow - 4; reach > 0; reach -= 2) {
    const QRect ring = card.adjusted(-reach, -reach, reach, reach).translated(0, 4);
    painter.drawRoundedRect(ring, kCorner + reach, kCorner + reach);
  }
}

// WINDOW moved so that it lies on the desktop: where it does not fit, its top left corner does.
QRect OnDesktop(QRect window) {
  const QScreen* monitor = QGuiApplication::screenAt(window.center());
  if (monitor == nullptr) monitor = QGuiApplication::primaryScreen();
  const QRect room = monitor->availableGeometry();
  window.moveRight(std::min(window.right(), room.right()));
  window.moveBottom(std::min(window.bottom(), room.bottom()));
  window.moveLeft(std::max(window.left(), room.left()));
  window.moveTop(std::max(window.top(), room.top()));
  return window;
}

}  // namespace

ScreenWindow::ScreenWindow(Screen& screen, Guard& guard, std::function<void()> close_program)
    : screen_(screen),
      guard_(guard),
      close_program_(std::move(close_program)),
      form_(new ScreenForm(this)) {
  setObjectName("look_window");
  setWindowTitle(QString::fromStdString(screen_.Caption()));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  if (screen_.border() == Screen::Border::kNone) MakeFrameless();
  layout->addWidget(form_);
  SetUpForm(screen_, *form_);
  binder_ = std::make_unique<Binder>(screen_, *form_, guard_);
  DecorateScreen(screen_, *form_);
}

ScreenWindow::~ScreenWindow() = default;

void ScreenWindow::MakeFrameless() {
  setWindowFlag(Qt::FramelessWindowHint);
  form_->setProperty("frameless", true);
  has_shadow_ = DesktopIsComposited();
  if (!has_shadow_) return;
  setAttribute(Qt::WA_TranslucentBackground);
  layout()->setContentsMargins(kShadow, kShadow, kShadow, kShadow);
}

void ScreenWindow::Follow(QPoint centre) {
  if (!screen_.Visible()) {
    hide();
    return;
  }
  if (screen_.Minimized()) {
    showMinimized();
    return;
  }
  if (!isVisible()) {
    if (focusWidget() == nullptr) FocusFirst();
    adjustSize();
    QRect at(QPoint(), size());
    at.moveCenter(centre);
    move(OnDesktop(at).topLeft());
  }
  if (isMinimized()) {
    showNormal();
  } else {
    show();
  }
  raise();
  activateWindow();
}

void ScreenWindow::FocusFirst() {
  // The keyboard begins at the first thing to do, not at a mark or a spot on the edge.
  for (QWidget* next = form_->nextInFocusChain(); next != form_; next = next->nextInFocusChain()) {
    const QString role = next->property("role").toString();
    if (role == "mark" || role == "hotspot") continue;
    if ((next->focusPolicy() & Qt::TabFocus) != 0 && next->isVisibleTo(form_) &&
        next->isEnabled()) {
      next->setFocus(Qt::OtherFocusReason);
      return;
    }
  }
}

void ScreenWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange || isMinimized() == screen_.Minimized()) return;
  guard_.Call([this] {
    if (isMinimized()) {
      screen_.Minimize();
    } else {
      screen_.Restore();
    }
  });
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
  // A window is only ever hidden, by the screen that it belongs to.
  event->setAccepted(guard_.Ended());
  guard_.Call([this] {
    switch (screen_.on_close()) {
      case Screen::OnClose::kEndsProgram:
        close_program_();
        break;
      case Screen::OnClose::kHides:
        screen_.Hide();
        break;
      case Screen::OnClose::kNothing:
        break;
    }
  });
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
  // Enter presses the button with the focus, as Space does.
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* button = qobject_cast<QAbstractButton*>(focusWidget());
  if (enter && button != nullptr && button->isEnabled() && !event->isAutoRepeat()) {
    button->click();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void ScreenWindow::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (screen_.OnMouseDown) {
    guard_.Call([this] { screen_.OnMouseDown(); });
  } else if (screen_.border() == Screen::Border::kNone) {
    StartDrag();  // nothing else on such a window could move it
  }
}

void ScreenWindow::StartDrag() {
  if (dragging_) return;
  dragging_ = true;
  moving_itself_ = false;
  drag_start_ = QCursor::pos();
  drag_origin_ = pos();
  qApp->installEventFilter(this);
}

void ScreenWindow::EndDrag() {
  dragging_ = false;
  qApp->removeEventFilter(this);
}

void ScreenWindow::Drag(const QMouseEvent& move) {
  if ((move.buttons() & Qt::LeftButton) == 0) {
    EndDrag();
    return;
  }
  const QPoint way = move.globalPosition().toPoint() - drag_start_;
  if (!moving_itself_) {
    // A press that does not go anywhere is a click, on a tab for instance, and no drag.
    if (way.manhattanLength() < QApplication::startDragDistance()) return;
    if (windowHandle() != nullptr && windowHandle()->startSystemMove()) {
      EndDrag();
      return;
    }
    moving_itself_ = true;
  }
  QWidget::move(drag_origin_ + way);
}

bool ScreenWindow::eventFilter(QObject* watched, QEvent* event) {
  if (dragging_ && watched->isWidgetType()) {
    if (event->type() == QEvent::MouseMove) Drag(*static_cast<QMouseEvent*>(event));
    if (event->type() == QEvent::MouseButtonRelease) EndDrag();
  }
  return QWidget::eventFilter(watched, event);
}

void ScreenWindow::paintEvent(QPaintEvent* event) {
  if (!has_shadow_ || form_->geometry().contains(event->rect())) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintShadow(painter, form_->geometry());
}

void ScreenWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (has_shadow_ || screen_.border() != Screen::Border::kNone) return;
  // Without a compositor nothing can be half transparent: the corners are cut instead.
  QPainterPath outline;
  outline.addRoundedRect(rect(), kCorner, kCorner);
  setMask(QRegion(outline.toFillPolygon().toPolygon()));
}

}  // namespace frostmark
