#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTabWidget>
#include <QtTest>

#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"
#include "tests/windows/x_display.h"

namespace frostmark::test {
namespace {

// Run once for each size of desktop, scale and font; see CMakeLists.txt.
class EveryScreen : public testing::Test {
 protected:
  std::string Name(const QWidget& widget) {
    return screen_ + "." + widget.objectName().toStdString();
  }

  // What a text needs, it has; what lies on something, lies within it.
  void ExpectWhole(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const bool text = (label != nullptr && !label->wordWrap()) ||
                      (button != nullptr && !button->text().isEmpty());
    if (text) {
      EXPECT_GE(widget.width() + 1, widget.minimumSizeHint().width()) << Name(widget);
      EXPECT_GE(widget.height() + 1, widget.minimumSizeHint().height()) << Name(widget);
    }
    const QWidget* parent = widget.parentWidget();
    if (parent == nullptr || qobject_cast<const QAbstractScrollArea*>(parent->parentWidget()))
      return;
    EXPECT_TRUE(parent->rect().contains(widget.geometry())) << Name(widget);
  }

  void ExpectPageWhole(const QWidget& form) {
    Settle();
    for (const auto* widget : form.findChildren<QWidget*>()) {
      if (widget->isVisible() && !widget->isWindow()) ExpectWhole(*widget);
    }
  }

  // Saves what is seen where FROSTMARK_TEST_PICTURES says, for the eyes of whoever changes a form.
  void Keep(const QString& page) {
    const QString folder = qEnvironmentVariable("FROSTMARK_TEST_PICTURES");
    if (folder.isEmpty()) return;
    QDir().mkpath(folder);
    x_.Picture(QRect(QPoint(), x_.Screen()))
        .save(folder + "/" + QString::fromStdString(screen_) + page + ".png");
  }

  // Turns the pages that INNER lies on to the front.
  static void BringOut(const QWidget& inner) {
    for (QWidget* up = inner.parentWidget(); up != nullptr; up = up->parentWidget()) {
      auto* outer = qobject_cast<QTabWidget*>(up);
      for (int page = 0; outer != nullptr && page < outer->count(); ++page) {
        if (outer->widget(page)->isAncestorOf(&inner)) outer->setCurrentIndex(page);
      }
    }
  }

  void Look(Screen& screen) {
    screen_ = screen.Name();
    screen.Show();
    ScreenWindow& window = game_.Window(screen);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window)) << screen_;
    const auto id = static_cast<std::uint32_t>(window.internalWinId());
    ASSERT_TRUE(QTest::qWaitFor([&] { return x_.Window(id).mapped; })) << screen_;
    const QRect outside = x_.Window(id).outside;
    EXPECT_TRUE(QRect(QPoint(), x_.Screen()).contains(outside))
        << screen_ << " at " << outside.x() << "," << outside.y() << " " << outside.width() << "x"
        << outside.height();
    if (!screen.IsPopup()) {
      if (stage_.isEmpty()) stage_ = outside;
      // Where a pixel of the layout is one and a half of the screen, places are rounded.
      EXPECT_EQ(stage_.size(), outside.size()) << screen_;
      EXPECT_LE((stage_.center() - outside.center()).manhattanLength(), 1) << screen_;
    }
    ExpectPageWhole(window.form());
    Keep({});
    for (auto* tabs : window.form().findChildren<QTabWidget*>()) {
      BringOut(*tabs);
      for (int page = 1; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        ExpectPageWhole(window.form());
        Keep("-" + tabs->tabText(page));
      }
      tabs->setCurrentIndex(0);
    }
    screen.Hide();
  }

  WindowGame game_;
  XDisplay x_;

 private:
  std::string screen_;
  QRect stage_;
};

TEST_F(EveryScreen, IsWholeAndOnTheDesktop) {
  Program& program = game_.program();
  program.startup.HighButton4.Show();
  program.startup.HighButton5.Show();
  for (Screen* screen : program.screens.All()) Look(*screen);
  program.startup.Frame1.Show();
  Look(program.startup);
}

}  // namespace
}  // namespace frostmark::test
