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
#include <QShortcut>
#include <QVBoxLayout>
#include <QWindow>
#include <QtMath>
#include <algorithm>

#include "desktop/compositing.h"
#include "desktop/decorations.h"
#include "desktop/focus_guide.h"
#include "desktop/guard.h"
#include "desktop/help_page.h"
#include "desktop/keys.h"
#include "desktop/painting/measures.h"
#include "desktop/painting/palette.h"
#include "desktop/screen_form.h"
#include "desktop/stage.h"
#include "desktop/style.h"
#include "desktop/widgets/leave_mark.h"
#include "desktop/widgets/pin.h"
#include "ui/screen.h"

namespace frostmark {
namespace {

constexpr int kShadow = 18;  // how far the shadow reaches
constexpr int kInset = 12;   // of the mark in the corner

// Draws the shadow of CARD, denser below it, as rings of nearly transparent night.
void PaintShadow(QPainter& painter, const QRect& card) {
  // What the card covers is left out: it is most of the window, and shading it takes long.
  const QRect covered = card.adjusted(kWindowCorner, 0, -kWindowCorner, 0);
  painter.setClipRegion(QRegion(painter.window()) - covered -
                        card.adjusted(0, kWindowCorner, 0, -kWindowCorner));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(2, 8, 20, 11));
  for (int reach = kShadow - 4; reach > 0; reach -= 2) {
    const QRect ring = card.adjusted(-reach, -reach, reach, reach).translated(0, 4);
    painter.drawRoundedRect(ring, kWindowCorner + reach, kWindowCorner + reach);
  }
}

}  // namespace

ScreenWindow::ScreenWindow(Screen& screen, Guard& guard, Stage& stage,
                           std::function<void()> close_program)
    : screen_(screen),
      guard_(guard),
      stage_(stage),
      close_program_(std::move(close_program)),
      form_(new ScreenForm(this)) {
  setObjectName("look_window");
  setWindowTitle(QString::fromStdString(screen_.Caption()));
  setAccessibleName(QString::fromStdString(screen_.Title()));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  // Window managers keep only dialogs above what opened them.
  if (screen_.IsPopup()) setWindowFlag(Qt::Dialog);
  if (screen_.border() == Screen::Border::kNone) MakeFrameless();
  layout->addWidget(form_);
  SetUpForm(screen_, *form_);
  ZoomLayouts(*form_);
  binder_ = std::make_unique<Binder>(screen_, *form_, guard_);
  InstallKeys(screen_, *form_);
  DecorateScreen(screen_, *form_);
  focus_guide_ = new FocusGuide(*form_);
  OfferWayOut();
  OfferComfort();
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

void ScreenWindow::OfferWayOut() {
  auto* keys = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), this);
  connect(keys, &QShortcut::activated, this, &ScreenWindow::LeaveProgram);
  if (screen_.border() != Screen::Border::kNone || screen_.IsPopup()) return;
  auto* mark = new LeaveMark(form_);
  connect(mark, &QAbstractButton::clicked, this, &ScreenWindow::LeaveProgram);
  new Pin(*mark, Qt::AlignTop | Qt::AlignRight, {0, kInset, kInset, 0});
}

void ScreenWindow::OfferComfort() {
  new QShortcut(QKeySequence(Qt::Key_F1), this, this, &ScreenWindow::Help);
  new QShortcut(QKeySequence(Qt::Key_F11), this, this, &ScreenWindow::FullScreenWanted);
  const auto add_zoom = [this](const QList<QKeySequence>& keys, int steps) {
    auto* shortcut = new QShortcut(this);
    shortcut->setKeys(keys);
    const auto ask = [this, steps] { emit ZoomWanted(steps); };
    connect(shortcut, &QShortcut::activated, this, ask);
    // Where plus and equal share a key, either of them may be meant.
    connect(shortcut, &QShortcut::activatedAmbiguously, this, ask);
  };
  add_zoom({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, 1);
  add_zoom({Qt::CTRL | Qt::Key_Minus}, -1);
  add_zoom({Qt::CTRL | Qt::Key_0}, 0);
}

// Over the window and before everything else on it, which goes on underneath.
void ScreenWindow::Help() {
  auto* page = new HelpPage(screen_, *form_);
  auto* leave = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), page);
  connect(leave, &QShortcut::activated, this, &ScreenWindow::LeaveProgram);
  page->open();
}

void ScreenWindow::LeaveProgram() {
  guard_.Call([this] { close_program_(); });
}

void ScreenWindow::Follow(QWidget* opener) {
  if (!screen_.Visible()) {
    hide();
    return;
  }
  if (screen_.Minimized()) {
    showMinimized();
    return;
  }
  const bool is_new = !isVisible();
  if (is_new) Appear(opener);
  ShowInState();
  raise();
  // A new window is given the keyboard anyway. Asked for as well, it would come once more and
  // later, and be taken from a box that has opened over the window meanwhile.
  if (!is_new) activateWindow();
}

void ScreenWindow::ShowInState() {
  if (FillsDesktop()) {
    showFullScreen();
  } else if (isMinimized() || isFullScreen()) {
    showNormal();
  } else {
    show();
  }
}

bool ScreenWindow::FillsDesktop() const { return stage_.full_screen && !screen_.IsPopup(); }

void ScreenWindow::Refit() {
  ZoomLayouts(*form_);
  // What its widgets ask for now, and not what they asked for in the letters before.
  for (auto* layout : form_->findChildren<QLayout*>()) layout->invalidate();
  layout()->activate();
  FitShadow();
  if (!isVisible() || isMinimized()) return;
  if (opener_ != nullptr && windowHandle()->transientParent() != opener_->windowHandle()) {
    // What it lies over has become another window, and only on coming up does it say over which.
    hide();
    StayOverOpener();
  }
  if (isFullScreen() != FillsDesktop()) {
    // A window manager gives a window that was born full the same size again when it is to be less:
    // only a new one comes as it should.
    hide();
    destroy();
    setWindowState(Qt::WindowNoState);
  }
  painted_ = false;
  FitSize();
  Place();
  ShowInState();
  activateWindow();
}

void ScreenWindow::Appear(QWidget* opener) {
  // An X window that has once been minimized asks to begin like that whenever it is mapped again,
  // and nothing but a new one takes that back.
  if (has_been_minimized_) destroy();
  has_been_minimized_ = false;
  painted_ = false;
  moved_by_user_ = false;
  opener_ = opener;
  focus_guide_->Begin();
  FitShadow();
  FitSize();
  Place();
  StayOverOpener();
}

void ScreenWindow::StayOverOpener() {
  if (opener_ == nullptr) return;
  winId();  // makes the window, which is what can have an opener
  windowHandle()->setTransientParent(opener_->windowHandle());
}

void ScreenWindow::FitSize() {
  const QSize room = QGuiApplication::primaryScreen()->availableSize() - QSize(0, TitleBar());
  const QSize wanted = screen_.IsPopup() ? form_->sizeHint().boundedTo(room) : Stage::Size();
  const QMargins shadow = layout()->contentsMargins();
  resize(wanted.expandedTo(form_->minimumSizeHint()).grownBy(shadow));
}

int ScreenWindow::TitleBar() const {
  // The window manager's own is not known before the window is there. Its letters are the user's,
  // however small ours have become.
  if (screen_.border() != Screen::Border::kTitleBar) return 0;
  constexpr double kLines = 2;
  return qCeil(kLines * fontMetrics().height() / Zoom());
}

void ScreenWindow::Place() {
  const QSize outside = size() + QSize(0, TitleBar());
  const QRect place = screen_.IsPopup() && opener_ != nullptr
                          ? stage_.ForPopup(outside, opener_->geometry())
                          : stage_.ForScreen(outside);
  placed_at_ = place.topLeft();
  move(placed_at_);
}

void ScreenWindow::FitShadow() {
  if (!has_shadow_) return;
  if (FillsDesktop()) return layout()->setContentsMargins(0, 0, 0, 0);
  // Where the screen is small the shadow goes first.
  const QSize room = QGuiApplication::primaryScreen()->availableSize();
  const QSize rest = screen_.IsPopup() ? room : room - Stage::Size();
  const int across = std::clamp(rest.width() / 2, 0, kShadow);
  const int down = std::clamp(rest.height() / 2, 0, kShadow);
  layout()->setContentsMargins(across, down, across, down);
}

void ScreenWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange && isMinimized()) has_been_minimized_ = true;
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
      case Screen::OnClose::kTurnsYear:
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
  if (dragging_ || isFullScreen()) return;
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

void ScreenWindow::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  if (screen_.IsPopup() || !painted_ || !isVisible() || isMinimized() || isFullScreen()) return;
  // The window system may round a place.
  constexpr int kRounding = 2;
  if ((pos() - placed_at_).manhattanLength() > kRounding) moved_by_user_ = true;
  if (moved_by_user_) stage_.MoveTo(geometry());
}

void ScreenWindow::paintEvent(QPaintEvent* event) {
  painted_ = true;
  if (!has_shadow_ || form_->geometry().contains(event->rect())) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintShadow(painter, form_->geometry());
}

void ScreenWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  // What a screen shows may change its size between its showing and its being seen.
  if (isVisible() && !painted_) Place();
  if (has_shadow_ || screen_.border() != Screen::Border::kNone) return;
  if (isFullScreen()) return clearMask();
  // Without a compositor nothing can be half transparent: the corners are cut instead.
  QPainterPath outline;
  outline.addRoundedRect(rect(), kWindowCorner, kWindowCorner);
  setMask(QRegion(outline.toFillPolygon().toPolygon()));
}

}  // namespace frostmark
