#include "desktop/binder.h"

#include <gtest/gtest.h>

#include <QSet>
#include <QTabBar>
#include <QTabWidget>

#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

QString WidgetName(const Control& control) {
  QString name = QString::fromStdString(control.Name());
  return name.replace('(', '_').remove(')');
}

// Names that a toolkit's widget gives to its own parts.
bool IsOwnPart(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  return widget.objectName().startsWith("qt_") || qobject_cast<const QTabWidget*>(parent) ||
         qobject_cast<const QTabBar*>(parent);
}

class Forms : public testing::Test {
 protected:
  Forms() {
    for (Screen* screen : game_.program().screens.All()) screen->Show();
    Settle();
  }

  WindowGame game_;
};

TEST_F(Forms, EveryControlThatCanBeSeenHasItsWidget) {
  for (const Screen* screen : game_.program().screens.All()) {
    for (const Control* control : screen->Controls()) {
      const auto* widget = game_.Window(*screen).form().findChild<QWidget*>(WidgetName(*control));
      EXPECT_EQ(widget != nullptr, Binder::NeedsWidget(*control)) << control->FullName();
    }
  }
}

TEST_F(Forms, EveryNamedWidgetHasItsControl) {
  for (const Screen* screen : game_.program().screens.All()) {
    QSet<QString> names;
    for (const Control* control : screen->Controls()) names.insert(WidgetName(*control));
    for (const QWidget* widget : game_.Window(*screen).form().findChildren<QWidget*>()) {
      const QString name = widget->objectName();
      if (name.isEmpty() || name.startsWith("look_") || IsOwnPart(*widget)) continue;
      EXPECT_TRUE(names.contains(name)) << screen->Name() << "." << name.toStdString();
    }
  }
}

TEST_F(Forms, WhatCanBeClickedCanBeReachedByKey) {
  for (const Screen* screen : game_.program().screens.All()) {
    for (const Control* control : screen->Controls()) {
      if (!Binder::NeedsWidget(*control)) continue;
      const bool clickable = control->Kind() == ControlKind::kButton ||
                             control->Kind() == ControlKind::kListBox ||
                             control->Kind() == ControlKind::kFileListBox ||
                             (control->Kind() == ControlKind::kLabel &&
                              static_cast<const Label*>(control)->OnClick != nullptr);
      if (!clickable) continue;
      auto* widget = game_.Window(*screen).form().findChild<QWidget*>(WidgetName(*control));
      ASSERT_NE(widget, nullptr) << control->FullName();
      EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus) << control->FullName();
    }
  }
}

}  // namespace
}  // namespace frostmark::test
