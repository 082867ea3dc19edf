#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QFile>
#include <QLabel>
#include <QListView>
#include <QProgressBar>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <vector>

#include "desktop/binder.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

QString NameOf(QObject& widget) {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
  return spoken == nullptr ? QString() : spoken->text(QAccessible::Name);
}

// What a screen reader can tell of the windows, which are all open: in the middle of a franchise.
class Spoken : public testing::Test {
 protected:
  Spoken() {
    game_.Start();
    game_.StartFranchise();
    for (Screen* screen : program().screens.All()) {
      screen->Show();
      FillTexts(*screen);
    }
    program().startup.Frame1.Show();
    Settle();
  }

  // Every label and list of SCREEN that has nothing to say yet gets a text.
  static void FillTexts(Screen& screen) {
    for (Control* control : screen.Controls()) {
      if (control->Kind() == ControlKind::kLabel) {
        auto& label = static_cast<Label&>(*control);
        if (label.Caption().empty() && !label.OnClick) label.SetCaption("text of " + label.Name());
      } else if (auto* list = dynamic_cast<ListBox*>(control)) {
        while (list->ListCount() < 3) list->AddItem("row of " + list->Name());
      }
    }
  }

  Program& program() { return game_.program(); }
  Franchise& franchise() { return program().franchise; }

  QWidget& WidgetOf(const Control& control) {
    QString name = QString::fromStdString(control.Name());
    name.replace('(', '_').remove(')');
    return Part<QWidget>(game_.Window(*control.place().screen).form(), qPrintable(name));
  }
  QString NameOf(const Control& control) { return test::NameOf(WidgetOf(control)); }

  template <class Visit>
  void ForEveryControl(Visit visit) {
    for (const Screen* screen : program().screens.All()) {
      for (Control* control : screen->Controls()) {
        if (Binder::NeedsWidget(*control)) visit(*control);
      }
    }
  }

  WindowGame game_;
};

TEST_F(Spoken, EveryWidgetHasAName) {
  ForEveryControl(
      [this](Control& control) { EXPECT_FALSE(NameOf(control).isEmpty()) << control.FullName(); });
}

TEST_F(Spoken, EveryLabelSaysItsText) {
  ForEveryControl([this](Control& control) {
    if (control.Kind() != ControlKind::kLabel) return;
    const auto& label = static_cast<const Label&>(control);
    const QString text = QString::fromStdString(label.Caption());
    if (label.OnClick && text.size() <= 1) return;  // a mark or a spot: its name is what it does
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&WidgetOf(label));
    EXPECT_TRUE(
        (spoken->text(QAccessible::Name) + spoken->text(QAccessible::Description)).contains(text))
        << label.FullName();
  });
}

TEST_F(Spoken, EveryOtherLabelOfAFormSaysItsText) {
  for (const Screen* screen : program().screens.All()) {
    for (QLabel* label : game_.Window(*screen).form().findChildren<QLabel*>()) {
      if (!label->text().isEmpty()) {
        EXPECT_TRUE(test::NameOf(*label).contains(label->text())) << qPrintable(label->text());
      }
    }
  }
}

TEST_F(Spoken, EveryRowOfEveryListSaysItsText) {
  ForEveryControl([this](Control& control) {
    auto* list = dynamic_cast<ListBox*>(&control);
    if (list == nullptr) return;
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&WidgetOf(control));
    ASSERT_EQ(spoken->childCount(), list->ListCount()) << control.FullName();
    for (int i = 0; i < list->ListCount(); ++i) {
      ASSERT_NE(spoken->child(i), nullptr) << control.FullName() << " " << i;
      EXPECT_EQ(spoken->child(i)->text(QAccessible::Name).toStdString(), list->List(i))
          << control.FullName() << " " << i;
    }
  });
}

TEST_F(Spoken, BarsTellTheirValueAndTabsTheirTexts) {
  ForEveryControl([this](Control& control) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&WidgetOf(control));
    if (control.Kind() == ControlKind::kProgressBar) {
      auto& bar = static_cast<ProgressBar&>(control);
      bar.SetValue(17);
      ASSERT_NE(spoken->valueInterface(), nullptr) << control.FullName();
      EXPECT_EQ(spoken->valueInterface()->currentValue().toInt(), 17) << control.FullName();
      EXPECT_EQ(spoken->valueInterface()->maximumValue().toInt(), 200) << control.FullName();
    } else if (control.Kind() == ControlKind::kTabStrip) {
      auto& tabs = static_cast<TabStrip&>(control);
      auto& widget = static_cast<QTabWidget&>(WidgetOf(control));
      QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(widget.tabBar());
      EXPECT_FALSE(bar->text(QAccessible::Name).isEmpty()) << control.FullName();
      for (int i = 0; i < static_cast<int>(tabs.Tabs().size()); ++i) {
        const std::string& tab = tabs.Tabs()[static_cast<std::size_t>(i)];
        EXPECT_EQ(bar->child(i)->text(QAccessible::Name).toStdString(), tab);
        EXPECT_EQ(test::NameOf(*widget.widget(i)).toStdString(), tab);
      }
    }
  });
}

TEST_F(Spoken, ValuesComeWithTheirWords) {
  franchise().NextWeek.SetCaption("Week 5");
  EXPECT_EQ(NameOf(franchise().NextWeek), "Next week: Week 5");
  franchise().NextWeek.SetCaption("Off Season");
  EXPECT_EQ(NameOf(franchise().NextWeek), "Next week: Off Season");
  franchise().OppTeam.SetCaption("");
  EXPECT_EQ(NameOf(franchise().OppTeam), "Opposing team");
  EXPECT_EQ(NameOf(program().startup.Label3), "Close the panel");
  EXPECT_EQ(NameOf(program().startup.Label1), "Visit the web page");
  EXPECT_EQ(NameOf(franchise().HighButton1), "Begin");
  EXPECT_EQ(test::NameOf(game_.Window(program().game)), "Game");
}

// Nothing is named twice over on one page, so that nobody has to guess whose rating it is.
TEST_F(Spoken, NoTwoControlsOfAPageAreCalledTheSame) {
  for (const Screen* screen : program().screens.All()) {
    std::vector<std::string> names;
    for (const Control* control : screen->Controls()) {
      if (*control->called().words == '\0') continue;
      const Place& place = control->place();
      names.push_back(control->called().words + std::string(" on ") +
                      (place.tab_strip == nullptr ? "" : place.tab_strip->Name()) +
                      std::to_string(place.page));
    }
    std::sort(names.begin(), names.end());
    const auto twice = std::adjacent_find(names.begin(), names.end());
    EXPECT_EQ(twice, names.end()) << screen->Name() << ": " << *twice;
  }
}

TEST_F(Spoken, NoFormNamesAControl) {
  for (const Screen* screen : program().screens.All()) {
    ScreenForm bare;
    SetUpForm(*screen, bare);
    for (const Control* control : screen->Controls()) {
      if (!Binder::NeedsWidget(*control)) continue;
      const auto& widget = Part<QWidget>(bare, WidgetOf(*control).objectName().toLatin1());
      EXPECT_TRUE(widget.accessibleName().isEmpty()) << control->FullName();
    }
  }
}

}  // namespace
}  // namespace frostmark::test
