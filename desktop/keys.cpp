#include "desktop/keys.h"

#include <QAbstractButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>

#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/widget_name.h"
#include "ui/screen.h"

namespace frostmark {
namespace {

bool CanBeUsed(const QWidget& widget) { return widget.isVisible() && widget.isEnabled(); }

// The first list of the page in front takes the keyboard, so that its rows can be walked at once.
void FocusPage(const QTabWidget& tabs) {
  for (auto* list : tabs.currentWidget()->findChildren<ListView*>()) {
    if (CanBeUsed(*list)) return list->setFocus(Qt::ShortcutFocusReason);
  }
}

// Turns to the page that WIDGET lies on.
void TurnTo(const QWidget& widget) {
  for (QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
    auto* tabs = qobject_cast<QTabWidget*>(above);
    if (tabs == nullptr) continue;
    for (int page = 0; page < tabs->count(); ++page) {
      if (tabs->widget(page)->isAncestorOf(&widget)) tabs->setCurrentIndex(page);
    }
  }
}

void AddKey(ScreenForm& form, const QKeySequence& key, std::function<void()> deed) {
  auto* shortcut = new QShortcut(key, &form);
  shortcut->setAutoRepeat(false);
  QObject::connect(shortcut, &QShortcut::activated, &form, std::move(deed));
}

// FIRST is the key of the first tab; the others have the digits that follow.
void AddTabKeys(ScreenForm& form, const QString& first, QTabWidget& tabs) {
  const QString modifier = first.chopped(1);
  for (int tab = 0; tab < tabs.count(); ++tab) {
    const QString key = modifier + QString::number(first.back().digitValue() + tab);
    tabs.setTabToolTip(tab, tabs.tabText(tab).remove('&') + " (" + key + ")");
    AddKey(form, QKeySequence(key), [&tabs, tab] {
      TurnTo(tabs);
      if (!CanBeUsed(tabs)) return;
      tabs.setCurrentIndex(tab);
      FocusPage(tabs);
    });
  }
}

void AddKeyOf(ScreenForm& form, const QString& key, QWidget& widget) {
  if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) return AddTabKeys(form, key, *tabs);
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    // With its letter in the caption the button has the key already.
    if (!button->shortcut().isEmpty()) return;
    return AddKey(form, QKeySequence(key), [button] {
      if (CanBeUsed(*button)) button->click();
    });
  }
  AddKey(form, QKeySequence(key), [&widget] {
    TurnTo(widget);
    if (CanBeUsed(widget)) widget.setFocus(Qt::ShortcutFocusReason);
  });
}

}  // namespace

void InstallKeys(const Screen& screen, ScreenForm& form) {
  for (const Control* control : screen.Controls()) {
    const KeyHint* hint = HintOf(*control);
    auto* widget = form.findChild<QWidget*>(WidgetName(*control));
    if (hint == nullptr || widget == nullptr) continue;
    const QString key = QString::fromLatin1(hint->key);
    // A plain arrow belongs to the list that has the keyboard.
    if (key.contains('+') || key == "Esc") AddKeyOf(form, key, *widget);
  }
}

}  // namespace frostmark
