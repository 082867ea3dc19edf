#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QTabWidget>

#include "desktop/style.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

// Whether the text of a widget fits into it. The scale of the screen is the process's own: the test
// is run once for each (QT_SCALE_FACTOR). PARAM is the size of the user's font against the usual.
class Fit : public testing::TestWithParam<double> {
 protected:
  Fit() : usual_(QApplication::font()) {
    QFont large = usual_;
    large.setPointSizeF(usual_.pointSizeF() * GetParam());
    QApplication::setFont(large);
    qApp->setStyleSheet(StyleSheet());
  }
  ~Fit() override {
    QApplication::setFont(usual_);
    qApp->setStyleSheet(StyleSheet());
  }

  void ExpectFits(const Screen& screen, const QWidget& widget) {
    // What a text needs; a bar beside it may be shorter than it would like.
    const QSize wanted = widget.minimumSizeHint();
    EXPECT_GE(widget.width() + 1, wanted.width())
        << screen.Name() << "." << widget.objectName().toStdString();
    EXPECT_GE(widget.height() + 1, wanted.height())
        << screen.Name() << "." << widget.objectName().toStdString();
  }

  void ExpectAllFit(Screen& screen) {
    const ScreenForm& form = game_.Window(screen).form();
    for (const auto* label : form.findChildren<QLabel*>()) {
      if (label->isVisible() && !label->wordWrap()) ExpectFits(screen, *label);
    }
    for (const auto* button : form.findChildren<QAbstractButton*>()) {
      if (button->isVisible() && !button->text().isEmpty()) ExpectFits(screen, *button);
    }
  }

 private:
  QFont usual_;

 protected:
  WindowGame game_;
};

TEST_P(Fit, NoTextIsCutOnAnyPageOfAnyScreen) {
  Program& program = game_.program();
  program.startup.Frame1.Show();
  program.startup.HighButton4.Show();
  program.startup.HighButton5.Show();
  for (Screen* screen : program.screens.All()) {
    screen->Show();
    Settle();
    ExpectAllFit(*screen);
    for (auto* tabs : game_.Window(*screen).form().findChildren<QTabWidget*>()) {
      for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        Settle();
        ExpectAllFit(*screen);
      }
    }
    screen->Hide();
  }
}

TEST_P(Fit, NeighbborsDoNotOverlap) {
  Program& program = game_.program();
  program.startup.Frame1.Show();
  for (Screen* screen : program.screens.All()) {
    screen->Show();
    Settle();
    for (const auto* parent : game_.Window(*screen).form().findChildren<QWidget*>()) {
      if (parent->layout() == nullptr || !parent->isVisible()) continue;
      // A picture lies under what stands on it, and buttons that take turns share a place.
      const QLayout& layout = *parent->layout();
      for (int i = 0; i < layout.count(); ++i) {
        for (int j = i + 1; j < layout.count(); ++j) {
          const QWidget* one = layout.itemAt(i)->widget();
          const QWidget* other = layout.itemAt(j)->widget();
          if (one == nullptr || other == nullptr || !one->isVisible() || !other->isVisible())
            continue;
          EXPECT_FALSE(one->geometry().intersects(other->geometry()))
              << screen->Name() << ": " << one->objectName().toStdString() << " and "
              << other->objectName().toStdString();
        }
      }
    }
    screen->Hide();
  }
}

INSTANTIATE_TEST_SUITE_P(Fonts, Fit, testing::Values(1.0, 1.4));

}  // namespace
}  // namespace frostmark::test
