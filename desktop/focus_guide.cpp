#include "desktop/focus_guide.h"

#include <QApplication>
#include <QEvent>
#include <QStringList>
#include <QVariant>
#include <QWidget>

#include "desktop/screen_form.h"

namespace frostmark {
namespace {

// Whether the game itself keeps WIDGET from being used, and not the page that it lies on.
bool Withheld(const QWidget& widget) { return widget.isHidden() || !widget.isEnabled(); }

}  // namespace

FocusGuide::FocusGuide(ScreenForm& form) : QObject(&form), form_(form) {
  connect(&form_, &ScreenForm::Refreshed, this, &FocusGuide::Follow);
  connect(qApp, &QApplication::focusChanged, this, &FocusGuide::NoteMove);
}

void FocusGuide::Begin() {
  if (!GoToPrimary() && form_.window()->focusWidget() == nullptr) GoToFirst();
}

bool FocusGuide::eventFilter(QObject* watched, QEvent* event) {
  const bool lost = event->type() == QEvent::EnabledChange || event->type() == QEvent::HideToParent;
  if (lost && watched == held_ && Withheld(*held_)) adrift_ = true;
  return false;
}

void FocusGuide::NoteMove() {
  QWidget* now = form_.window()->focusWidget();
  if (now == held_) return;
  if (held_ != nullptr) {
    held_->removeEventFilter(this);
    adrift_ = Withheld(*held_) || !held_->isVisibleTo(&form_);
  }
  held_ = now;
  if (held_ != nullptr) held_->installEventFilter(this);
}

void FocusGuide::Follow() {
  NoteMove();
  if (adrift_) GoToPrimary();
}

bool FocusGuide::GoToPrimary() {
  const QStringList names = form_.property("primary").toString().split(' ', Qt::SkipEmptyParts);
  for (const QString& name : names) {
    auto* widget = form_.findChild<QWidget*>(name);
    if (widget == nullptr || !widget->isVisibleTo(&form_) || !widget->isEnabled()) continue;
    widget->setFocus(Qt::OtherFocusReason);
    NoteMove();
    const auto* first = form_.findChild<QWidget*>(names.front());
    adrift_ = first != nullptr && Withheld(*first);
    return true;
  }
  return false;
}

void FocusGuide::GoToFirst() {
  // The keyboard begins at the first thing to do, not at a mark or a spot on the edge.
  for (QWidget* next = form_.nextInFocusChain(); next != &form_; next = next->nextInFocusChain()) {
    const QString role = next->property("role").toString();
    if (role == "mark" || role == "hotspot") continue;
    if ((next->focusPolicy() & Qt::TabFocus) != 0 && next->isVisibleTo(&form_) &&
        next->isEnabled()) {
      next->setFocus(Qt::OtherFocusReason);
      return;
    }
  }
}

}  // namespace frostmark
