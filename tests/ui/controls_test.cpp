#include "ui/controls.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "records/runtime_error.h"
#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

// A screen with one control of each kind that a test needs.
class Sample : public Screen {
 public:
  explicit Sample(ScreenList& screens)
      : Screen(screens, "Sample", "A sample", Border::kTitleBar, OnClose::kNothing) {}

  Label Label1{*this, "Label1", "text"};
  Button Button1{*this, "Button1", "press", Start::kHidden};
  Frame Frame1{*this, "Frame1", "frame", Start::kHidden};
  Label Label2{Frame1, "Label2", "within"};
  TabStrip Tabs{*this, "Tabs", {"one", "two"}, Called{"Pages"}};
  ListBox List1{Tabs.Page(1), "List1"};
  ListBox List2{*this, "List2", Start::kNeverShown};
  Label Label3{*this, "Label3", "", Start::kOutside};
  ListPair Pair{*this, "Pair", Called{"Two"}};
  Timer Timer1{*this, "Timer1", 100};
  ProgressBar Bar{*this, "Bar", 20, Called{"Bar"}};
};

class Watcher : public Control::Observer {
 public:
  void ControlChanged(Control& control) override { names.push_back(control.FullName()); }
  Lines names;
};

class ControlsTest : public ::testing::Test {
 protected:
  ScreenList screens_;
  Sample sample_{screens_};
};

TEST_F(ControlsTest, AScreenKnowsItsControlsInOrderAndByName) {
  EXPECT_EQ(sample_.Controls().front(), &sample_.Label1);
  EXPECT_EQ(sample_.Controls().size(), 12U);
  EXPECT_EQ(sample_.Find("Button1"), &sample_.Button1);
  EXPECT_EQ(sample_.Find("Pair(1)"), &sample_.Pair.records);
  EXPECT_EQ(sample_.Find("button1"), nullptr);
  EXPECT_EQ(sample_.Label2.FullName(), "Sample.Label2");
  EXPECT_EQ(screens_.Find("Sample"), &sample_);
  EXPECT_EQ(screens_.Find("Other"), nullptr);
}

TEST_F(ControlsTest, StartAsTheyAreDeclared) {
  EXPECT_TRUE(sample_.Label1.Visible());
  EXPECT_TRUE(sample_.Label1.Enabled());
  EXPECT_FALSE(sample_.Button1.Visible());
  EXPECT_FALSE(sample_.List2.Visible());
  EXPECT_TRUE(sample_.List2.NeverShown());
  EXPECT_TRUE(sample_.Label3.Outside());
  EXPECT_TRUE(sample_.Label3.Visible());
  EXPECT_FALSE(sample_.Timer1.Enabled());
  EXPECT_TRUE(sample_.Pair.records.NeverShown());
  EXPECT_FALSE(sample_.Pair.shown.NeverShown());
}

TEST_F(ControlsTest, AreOnViewWhenScreenFrameAndTheyThemselvesAre) {
  EXPECT_FALSE(sample_.Label1.OnView());
  sample_.Show();
  EXPECT_TRUE(sample_.Label1.OnView());
  EXPECT_FALSE(sample_.Label2.OnView());
  EXPECT_TRUE(sample_.Label2.Visible());
  sample_.Frame1.Show();
  EXPECT_TRUE(sample_.Label2.OnView());
  EXPECT_TRUE(sample_.List1.OnView());  // the page in front does not matter
  sample_.Hide();
  EXPECT_FALSE(sample_.Label2.OnView());
}

TEST_F(ControlsTest, TellTheirObserverOfChangesOnly) {
  Watcher watcher;
  for (Control* control : sample_.Controls()) control->SetObserver(&watcher);
  sample_.Label1.SetCaption("text");
  sample_.Button1.Hide();
  sample_.Label1.Enable();
  sample_.Tabs.SetFront(0);
  sample_.Bar.SetValue(0);
  EXPECT_TRUE(watcher.names.empty());
  sample_.Label1.SetCaption("new");
  sample_.Button1.Show();
  sample_.Label1.Disable();
  sample_.Tabs.SetFront(1);
  sample_.Bar.SetValue(7);
  sample_.List1.Hide();
  sample_.Pair.SetEnabled(false);
  EXPECT_EQ(watcher.names,
            (Lines{"Sample.Label1", "Sample.Button1", "Sample.Label1", "Sample.Tabs", "Sample.Bar",
                   "Sample.List1", "Sample.Pair(0)", "Sample.Pair(1)"}));
}

TEST_F(ControlsTest, AClickSelectsBeforeItIsHandledAndADoubleClickIsAClickFirst) {
  FillList(sample_.List1, {"a", "b"});
  Lines events;
  sample_.List1.OnClick = [&] {
    events.push_back("click " + std::to_string(sample_.List1.ListIndex()));
  };
  sample_.List1.OnDoubleClick = [&] {
    events.push_back("double " + std::to_string(sample_.List1.ListIndex()));
  };
  sample_.List1.Select(1);
  sample_.List1.DoubleClick(0);
  EXPECT_EQ(events, (Lines{"click 1", "click 0", "double 0"}));
  EXPECT_THROW(sample_.List1.Select(2), RuntimeError);
}

TEST_F(ControlsTest, AStripKnowsItsFrontTab) {
  EXPECT_EQ(sample_.Tabs.FrontTab(), "one");
  sample_.Tabs.SetFront(1);
  EXPECT_EQ(sample_.Tabs.FrontTab(), "two");
  EXPECT_EQ(sample_.List1.place().tab_strip, &sample_.Tabs);
  EXPECT_EQ(sample_.List1.place().page, 1);
}

TEST(ScreenTest, ShowingHidingAndMinimizing) {
  ScreenList screens;
  Sample first(screens);
  EXPECT_TRUE(screens.VisibleOnes().empty());
  first.Minimize();
  first.Show();
  EXPECT_FALSE(first.Minimized());
  first.Minimize();
  EXPECT_TRUE(first.Visible());
  first.Restore();
  EXPECT_FALSE(first.Minimized());
  first.Show();
  EXPECT_EQ(screens.VisibleOnes(), (std::vector<Screen*>{&first}));
  first.Hide();
  EXPECT_TRUE(screens.VisibleOnes().empty());
}

class FileListTest : public GameFixture {};

TEST_F(FileListTest, OfAnEmptyOrMissingFolderIsEmpty) {
  startup().File1.SetPath(ordvik().RankFolder("Rank F"));
  EXPECT_EQ(startup().File1.ListCount(), 0);
  startup().File1.SetPath(world.path() + "/nowhere");
  EXPECT_EQ(startup().File1.ListCount(), 0);
  EXPECT_EQ(startup().File1.Path(), world.path() + "/nowhere");
}

TEST_F(FileListTest, NamesAllFilesByTheAlphabetWithoutRegardToCase) {
  for (const char* name :
       {"boston Braves", "Zulu", "alpha", "Boston Aeros", "BOSTON zebras", "Alpha 2", "10", "2"}) {
    world.WriteTeam("Rank F", name, {});
  }
  std::filesystem::create_directory(world.TeamPath("Rank F", "a folder"));
  startup().File1.SetPath(ordvik().RankFolder("Rank F"));
  EXPECT_EQ(ItemsOf(startup().File1), (Lines{"10", "2", "alpha", "Alpha 2", "Boston Aeros",
                                             "boston Braves", "BOSTON zebras", "Zulu"}));
}

TEST_F(FileListTest, KeepsWhatItReadUntilItsPathIsSetAgain) {
  world.WriteTeam("Rank F", "one", {});
  startup().File1.SetPath(ordvik().RankFolder("Rank F"));
  world.WriteTeam("Rank F", "two", {});
  Ordvik::DeleteFile(world.TeamPath("Rank F", "one"));
  EXPECT_EQ(ItemsOf(startup().File1), (Lines{"one"}));
  startup().File1.SetPath(ordvik().RankFolder("Rank F"));
  EXPECT_EQ(ItemsOf(startup().File1), (Lines{"two"}));
}

}  // namespace
}  // namespace frostmark::test
