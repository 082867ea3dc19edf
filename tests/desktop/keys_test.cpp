#include "desktop/keys.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QtTest>
#include <map>
#include <set>

#include "desktop/help_page.h"
#include "desktop/list_view.h"
#include "desktop/widget_name.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

// All nine windows, each shown when it is looked at.
class Keys : public testing::Test {
 protected:
  Keys() {
    game_.Start();
    Settle();
  }

  Program& program() { return game_.program(); }
  std::vector<Screen*> Screens() { return program().screens.All(); }

  void Show(Screen& screen) {
    screen.Show();
    Settle();
    game_.Window(screen).activateWindow();
    Settle();
  }

  QWidget* WidgetOf(const Control& control, const Screen& screen) {
    return game_.Window(screen).form().findChild<QWidget*>(WidgetName(control));
  }

  static bool CanBeActedOn(const Control& control) {
    switch (control.Kind()) {
      case ControlKind::kButton:
      case ControlKind::kListBox:
      case ControlKind::kFileListBox:
      case ControlKind::kTextBox:
      case ControlKind::kComboBox:
      case ControlKind::kTabStrip:
        return !control.NeverShown() && !control.Outside();
      default:
        return false;
    }
  }

  static void PressKey(QWidget& window, const QString& key) {
    QTest::keySequence(&window, QKeySequence(key));
    Settle();
  }

  WindowGame game_;
};

TEST_F(Keys, EveryControlHasItsHintAndSaysIt) {
  int told = 0;
  for (Screen* screen : Screens()) {
    Show(*screen);
    for (const Control* control : screen->Controls()) {
      if (!CanBeActedOn(*control)) continue;
      const KeyHint* hint = HintOf(*control);
      ASSERT_NE(hint, nullptr) << control->FullName();
      QWidget* widget = WidgetOf(*control, *screen);
      ASSERT_NE(widget, nullptr) << control->FullName();
      if (auto* tabs = qobject_cast<QTabWidget*>(widget)) widget = tabs->tabBar();
      EXPECT_TRUE(widget->accessibleDescription().contains(TipOf(*control))) << control->FullName();
      EXPECT_TRUE(widget->accessibleDescription().contains(hint->key));
      if (qobject_cast<QTabBar*>(widget) == nullptr) {
        EXPECT_EQ(widget->toolTip(), TipOf(*control));
      }
      ++told;
    }
    screen->Hide();
  }
  EXPECT_GT(told, 60);
}

TEST_F(Keys, EveryHintBelongsToAControl) {
  std::set<std::string> controls;
  for (Screen* screen : Screens()) {
    for (const Control* control : screen->Controls()) controls.insert(control->FullName());
  }
  for (const KeyHint& hint : KeyHints())
    EXPECT_TRUE(controls.contains(hint.control)) << hint.control;
}

TEST_F(Keys, NoKeyHasTwoMeaningsOnOneScreen) {
  std::map<std::string, std::string> taken;
  for (const KeyHint& hint : KeyHints()) {
    if (*hint.key == '\0') continue;
    const std::string name = hint.control;
    const std::string place = name.substr(0, name.find('.')) + " " + hint.key;
    EXPECT_TRUE(taken.emplace(place, name).second) << place << " is taken by " << taken[place];
  }
}

// Puts whatever the control does into a counter and presses its key.
TEST_F(Keys, EachKeyDoesWhatItSays) {
  int worked = 0;
  for (Screen* screen : Screens()) {
    Show(*screen);
    QWidget& window = game_.Window(*screen);
    for (Control* control : screen->Controls()) {
      const KeyHint* hint = HintOf(*control);
      if (hint == nullptr || *hint->key == '\0' || QString(hint->key).size() < 3) continue;
      if (!QString(hint->key).contains('+') && QString(hint->key) != "Esc") continue;
      QWidget* widget = WidgetOf(*control, *screen);
      if (!control->OnView()) {
        control->Show();
        if (control->place().frame != nullptr) control->place().frame->Show();
      }
      control->Enable();
      // What takes the keyboard is also turned to; what is pressed has to be in front.
      if (control->place().tab_strip != nullptr && control->Kind() == ControlKind::kButton) {
        control->place().tab_strip->SetFront(control->place().page);
      }
      Settle();
      const char* name = hint->control;
      if (qobject_cast<QAbstractButton*>(widget) != nullptr) {
        int presses = 0;
        Handler& on_click = control->Kind() == ControlKind::kButton
                                ? static_cast<Button*>(control)->OnClick
                                : static_cast<Label*>(control)->OnClick;
        const Handler real = std::exchange(on_click, [&] { ++presses; });
        PressKey(window, hint->key);
        // A button shows that it is pressed before it does anything.
        EXPECT_TRUE(QTest::qWaitFor([&] { return presses > 0; }, 1000));
        EXPECT_EQ(presses, 1) << name << " " << hint->key;
        on_click = real;
      } else if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
        QString key = hint->key;
        key.chop(1);
        for (int tab = tabs->count() - 1; tab >= 0; --tab) {
          PressKey(window, key + QString::number(tab + 1));
          EXPECT_EQ(static_cast<TabStrip*>(control)->Front(), tab) << name;
        }
      } else {
        PressKey(window, hint->key);
        EXPECT_EQ(window.focusWidget(), widget) << name << " " << hint->key;
      }
      ++worked;
    }
    screen->Hide();
  }
  EXPECT_GT(worked, 55);
}

TEST_F(Keys, F1ShowsTheGameAndTheKeysOfTheScreen) {
  for (Screen* screen : Screens()) {
    Show(*screen);
    QWidget& window = game_.Window(*screen);
    PressKey(window, "F1");
    auto* page = window.findChild<HelpPage*>();
    ASSERT_NE(page, nullptr) << screen->Name();
    EXPECT_TRUE(page->findChild<QTextBrowser*>("look_help_game")
                    ->toPlainText()
                    .contains("Frostmark in a page"));
    const QString text = page->findChild<QTextBrowser*>("look_help_keys")->toPlainText();
    for (const KeyHint& hint : KeyHints()) {
      if (*hint.key == '\0' ||
          QString(hint.control).section('.', 0, 0).toStdString() != screen->Name())
        continue;
      EXPECT_TRUE(text.contains(hint.words)) << hint.control;
      EXPECT_TRUE(text.contains(hint.key)) << hint.control;
    }
    PressKey(*page, "Esc");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window.findChild<HelpPage*>(), nullptr);
    screen->Hide();
  }
}

// A franchise in its first week, on the tab "Roster".
class RosterByKeys : public testing::Test {
 protected:
  RosterByKeys() {
    game_.Start();
    game_.StartFranchise();
    franchise().XTab1.SetFront(3);
    Settle();
  }

  Franchise& franchise() { return game_.program().franchise; }

  WindowGame game_;
};

TEST_F(RosterByKeys, RightAndLeftMoveThePlayerAndGoOnToTheNeighbbor) {
  auto& lead = game_.On<ListView>(franchise(), "MainRoster");
  auto& training = game_.On<ListView>(franchise(), "TrainingRoster");
  const std::string first = franchise().MainRoster.List(1);
  const std::string next = franchise().MainRoster.List(2);
  franchise().MainRoster.Select(1);
  Settle();
  QTest::keyClick(&lead, Qt::Key_Right);
  Settle();
  EXPECT_EQ(franchise().TrainingRoster.List(5), first);
  EXPECT_EQ(franchise().MainRoster.ListIndex(), 1);
  EXPECT_EQ(franchise().MainRoster.List(1), next);
  franchise().TrainingRoster.Select(5);
  Settle();
  QTest::keyClick(&training, Qt::Key_Left);
  Settle();
  EXPECT_EQ(franchise().MainRoster.List(5), first);
  // The last of its list: the one before is its neighbbor.
  EXPECT_EQ(franchise().TrainingRoster.ListIndex(), 4);
}

TEST_F(RosterByKeys, WithoutASelectionNothingMoves) {
  auto& lead = game_.On<ListView>(franchise(), "MainRoster");
  QTest::keyClick(&lead, Qt::Key_Right);
  QTest::keyClick(&lead, Qt::Key_Right, Qt::ControlModifier);
  Settle();
  EXPECT_EQ(franchise().MainRoster.ListCount(), 6);
}

}  // namespace
}  // namespace frostmark::test
