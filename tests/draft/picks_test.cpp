#include <algorithm>

#include "records/lines/player_line.h"
#include "records/lines/pool_line.h"
#include "records/runtime_error.h"
#include "tests/draft/draft_scene.h"

// The user's own turn in the draft.

namespace frostmark::test {
namespace {

using Ages = std::vector<int>;

class PicksTest : public DraftScene {
 protected:
  PicksTest() { franchise().TeamName.SetCaption("A Team"); }

  void Roster(const Lines& roster) { world.WriteTeam("Rank A", "A Team", roster); }

  // Runs the draft to the first wait of the user's turn, does ACT there and goes on to the last
  // wait of the turn.
  void Turn(std::function<void()> act) {
    SecondPasses();
    front_end().AtWait([this, act] {
      EXPECT_TRUE(draft().AwaitingPick);
      act();
      EXPECT_FALSE(draft().AwaitingPick);
    });
    Stop();
  }
  // The same for acts that leave the user at it.
  void Wait(std::function<void()> act) {
    SecondPasses();
    front_end().AtWait([this, act] {
      EXPECT_TRUE(draft().AwaitingPick);
      act();
      EXPECT_TRUE(draft().AwaitingPick);
    });
    Stop();
  }
  void DoubleClick(ListBox& list, int item, const std::string& answer) {
    front_end().QueueAnswer(answer);
    list.DoubleClick(item);
    EXPECT_EQ(front_end().LeftOverAnswers(), 0U);
  }
  void ExpectQuestion(const std::string& text) {
    ASSERT_FALSE(front_end().Boxes().empty());
    EXPECT_EQ(front_end().Boxes().back().text, text);
    EXPECT_EQ(front_end().Boxes().back().icon, BoxIcon::kQuestion);
    EXPECT_EQ(front_end().Boxes().back().buttons, BoxButtons::kYesNo);
  }
};

TEST_F(PicksTest, TheScreenOfTheReleaseStartsAsDesigned) {
  EXPECT_EQ(choice().Caption(), "Select Player");
  EXPECT_EQ(choice().XTab1.Tabs(), std::vector<std::string>{"Select Player"});
  EXPECT_FALSE(choice().List2.Visible());
  EXPECT_EQ(choice().on_close(), Screen::OnClose::kNothing);
}

// Counts how often a screen is to be dragged.
class DragCount : public Screen::Observer {
 public:
  explicit DragCount(Screen& screen) : screen_(screen) { screen_.SetObserver(this); }
  ~DragCount() override { screen_.SetObserver(nullptr); }
  void ScreenChanged(Screen&) override {}
  void DragRequested(Screen&) override { ++drags; }
  int drags = 0;

 private:
  Screen& screen_;
};

TEST_F(PicksTest, TheScreensAreDraggedByTheirSurfaceAndTheirTabs) {
  const std::pair<Screen*, TabStrip*> screens[] = {
      {&program().f_results, &program().f_results.XTab1},
      {&draft(), &draft().XTab1},
      {&choice(), &choice().XTab1},
      {&program().game, &program().game.XTab1}};
  for (const auto& [screen, tabs] : screens) {
    const DragCount count(*screen);
    Raise(screen->OnMouseDown);
    Raise(tabs->OnMouseDown);
    EXPECT_EQ(count.drags, 2) << screen->Name();
  }
}

TEST_F(PicksTest, WithoutARetirementTheUserIsAskedWhomToLetGo) {
  Lines roster = RosterOfAges(Ages(11, 30));
  std::reverse(roster.begin(), roster.end());  // in the file's order, unsorted
  Roster(roster);
  choice().List1.AddItem("left over");
  choice().List2.AddItem("left over");
  Wait([&] {
    Lines lines;
    for (const std::string& record : roster) lines.push_back(FormatRosterLine(record));
    EXPECT_EQ(ItemsOf(choice().List1), lines);
    EXPECT_EQ(ItemsOf(choice().List2), roster);
    EXPECT_EQ(ItemsOf(draft().tempList), roster);
    EXPECT_TRUE(choice().Visible());
    EXPECT_EQ(OpenLists(), Lines{});
    EXPECT_EQ(Events(), Lines{});
    EXPECT_TRUE(dice().Rolls().empty());
    EXPECT_EQ(front_end().Waits(), 2);
    EXPECT_EQ(front_end().Yields(), 11 * 9 + 11 + 11);
  });
}

TEST_F(PicksTest, LettingAPlayerGoOpensTheirPositionAlone) {
  Lines roster = RosterOfAges(Ages(11, 30));
  Roster(roster);
  Wait([&] {
    DoubleClick(choice().List1, 4, "yes");
    ExpectQuestion("You sure you'd like to delete this player?\nCF - Old 4 (86/30)");
    EXPECT_FALSE(choice().Visible());
    EXPECT_EQ(OpenLists(), Lines{"List5(0)"});
    EXPECT_EQ(draft().ReleasedPlayer, roster[4]);
    EXPECT_EQ(Events(), Lines{"A Team lost (CF) Old 4. Overall: 86"});
    EXPECT_EQ(Pool("CF").size(), 5U);  // they are not in it yet
    roster.erase(roster.begin() + 4);
    EXPECT_EQ(ItemsOf(draft().tempList), roster);
    EXPECT_EQ(choice().List1.ListCount(), 11);  // they stay as they are
    EXPECT_EQ(choice().List2.ListCount(), 11);
  });
}

TEST_F(PicksTest, EveryPositionOpensItsOwnList) {
  const char* const lists[] = {"List1(0)", "List3(0)", "List2(0)",
                               "List6(0)", "List5(0)", "List4(0)"};  // GO RD LD RF CF LF
  for (int item = 0; item < 6; ++item) {
    Roster(RosterOfAges(Ages(11, 30)));
    draft().SetPoolEnabled(true);
    Wait([&] {
      DoubleClick(choice().List1, item, "yes");
      EXPECT_EQ(OpenLists(), Lines{lists[item]});
    });
    draft().ReleasedPlayer = "";
  }
}

TEST_F(PicksTest, AnUnknownPositionOpensNothing) {
  Lines roster = RosterOfAges(Ages(11, 30));
  roster.push_back("Mascot,XX,10,1,1,1,1,25,Y");
  Roster(roster);
  Wait([&] {
    DoubleClick(choice().List1, 11, "yes");
    EXPECT_EQ(OpenLists(), Lines{});
    EXPECT_FALSE(choice().Visible());
  });
}

TEST_F(PicksTest, ANoLeavesTheUserToChooseAnother) {
  const Lines roster = RosterOfAges(Ages(11, 30));
  Roster(roster);
  Wait([&] {
    DoubleClick(choice().List1, 4, "no");
    EXPECT_TRUE(choice().Visible());
    EXPECT_EQ(ItemsOf(draft().tempList), roster);
    EXPECT_EQ(draft().ReleasedPlayer, "");
    EXPECT_EQ(Events(), Lines{});
    EXPECT_EQ(OpenLists(), Lines{});
    DoubleClick(choice().List1, 0, "yes");
    EXPECT_EQ(OpenLists(), Lines{"List1(0)"});
  });
}

TEST_F(PicksTest, ASingleClickOnlySelects) {
  Roster(RosterOfAges(Ages(11, 30)));
  Wait([&] {
    choice().List1.Select(4);
    draft().List1.shown.Select(2);
    EXPECT_TRUE(front_end().Boxes().empty());
  });
}

TEST_F(PicksTest, APickEndsTheTurn) {
  Lines roster = RosterOfAges(Ages(11, 30));
  Roster(roster);
  const Lines pool = Pool("LD");
  Turn([&] {
    DoubleClick(choice().List1, 7, "yes");       // an LD of the training line
    DoubleClick(draft().List2.shown, 3, "yes");  // any of them, not only the first
    ExpectQuestion("Add this player to your squad?\nLD Rookie 3 67/20");
    EXPECT_EQ(OpenLists().size(), 6U);
    EXPECT_EQ(Pool("LD"), (Lines{pool[0], pool[1], pool[2], pool[4]}));
    ExpectPoolInStep();
    EXPECT_EQ(ReadLines(PathOf("Rank A")), roster);
  });
  EXPECT_EQ(Events(), (Lines{"A Team lost (LD) Old 7. Overall: 83",
                             "A Team has added LD Rookie 3 to the team. Overall: 67"}));
  // The player let go is back in the pool, with the "Y"; the new one comes as "N".
  EXPECT_EQ(Pool("LD")[0], roster[7]);
  EXPECT_EQ(Pool("LD").size(), 5U);
  ExpectPoolInStep();
  EXPECT_EQ(draft().ReleasedPlayer, "");
  roster.erase(roster.begin() + 7);
  roster.push_back(pool[3]);
  EXPECT_EQ(ReadLines(PathOf("Rank A")), roster);
}

TEST_F(PicksTest, ANoAtThePickChangesNothing) {
  Roster(RosterOfAges(Ages(11, 30)));
  Wait([&] {
    DoubleClick(choice().List1, 0, "yes");
    const Lines pool = Pool("GO");
    const Lines roster = ItemsOf(draft().tempList);
    DoubleClick(draft().List1.shown, 0, "no");
    EXPECT_EQ(Pool("GO"), pool);
    EXPECT_EQ(ItemsOf(draft().tempList), roster);
    EXPECT_EQ(OpenLists(), Lines{"List1(0)"});
    EXPECT_EQ(Events().size(), 1U);
  });
}

TEST_F(PicksTest, ARetirementOfTheUsersOpensItsListAtOnce) {
  Ages ages(11, 30);
  ages[2] = 31;
  ages[5] = 40;
  Lines roster = RosterOfAges(ages);
  Roster(roster);
  choice().List1.AddItem("left over");
  choice().List2.AddItem("left over");
  dice().Give({3});
  Turn([&] {
    EXPECT_EQ(dice().Rolls(), (std::vector<RollPair>{{10, 3}}));
    EXPECT_FALSE(choice().Visible());
    EXPECT_EQ(choice().List1.ListCount(), 0);
    EXPECT_EQ(choice().List2.ListCount(), 0);
    EXPECT_EQ(OpenLists(), Lines{"List2(0)"});
    EXPECT_EQ(Events(), Lines{"(LD) Old 2 has retired from A Team at 31 years old"});
    EXPECT_EQ(draft().tempList.ListCount(), 10);
    DoubleClick(draft().List2.shown, 0, "yes");
  });
  EXPECT_EQ(draft().ReleasedPlayer, "");
  EXPECT_EQ(Pool("LD").size(), 4U);  // who retires does not come back
  const std::string rookie = ReadLines(PathOf("Rank A")).back();
  EXPECT_EQ(HockeyNaming::GetField(rookie, "Name"), "LD Rookie 0");
  EXPECT_EQ(HockeyNaming::GetField(rookie, "Training"), "N");
}

TEST_F(PicksTest, TheUsersRetirementsHaveTheSameChances) {
  const struct {
    int age;
    int roll;
    bool retires;
  } cases[] = {{31, 3, true},  {31, 4, false}, {34, 3, true},
               {34, 4, false}, {35, 8, true},  {35, 9, false}};
  for (const auto& c : cases) {
    Ages ages(11, 30);
    ages[0] = c.age;
    Roster(RosterOfAges(ages));
    dice().Give({c.roll});
    draft().Events.Clear();
    choice().Hide();
    Wait([&] {
      EXPECT_EQ(choice().Visible(), !c.retires) << c.age << " " << c.roll;
      EXPECT_EQ(OpenLists(), c.retires ? Lines{"List1(0)"} : Lines{});
      EXPECT_EQ(Events().size(), c.retires ? 1U : 0U);
    });
  }
}

TEST_F(PicksTest, OutOfTurnADoubleClickDoesNothing) {
  franchise().TeamName.SetCaption("a team");  // not the user's
  Roster(RosterOfAges(Ages(11, 30)));
  SecondPasses();
  SecondPasses([this] {
    ASSERT_FALSE(draft().AwaitingPick);
    EXPECT_EQ(OpenLists().size(), 6U);
    const Lines roster = ItemsOf(draft().tempList);
    for (ListPair* list : draft().Pool()) list->shown.DoubleClick(0);
    EXPECT_TRUE(front_end().Boxes().empty());
    EXPECT_EQ(ItemsOf(draft().tempList), roster);
    EXPECT_EQ(Pool("GO").size(), 5U);
  });
  Stop();
}

TEST_F(PicksTest, AnEmptyListLeavesTheDraftWaitingPermanently) {
  Roster(RosterOfAges(Ages(11, 30)));
  SetPool("GO", {});
  SecondPasses();
  front_end().AtWait([this] { DoubleClick(choice().List1, 0, "yes"); });
  for (int wait = 0; wait < 50; ++wait) {
    front_end().AtWait([this] {
      EXPECT_TRUE(draft().AwaitingPick);
      EXPECT_EQ(OpenLists(), Lines{"List1(0)"});
    });
  }
  Stop();
}

TEST_F(PicksTest, ExitFromBelowTheWaitingDraftEndsTheProgram) {
  franchise().TeamName.SetCaption("B Team");
  const Lines roster = RosterOfAges(Ages(11, 25));
  world.WriteTeam("Rank B", "B Team", roster);
  RunWaits(4);  // the turn of "Rank A" and the first second of the user's
  const Lines saved = ReadLines(PathOf("Rank A"));
  EXPECT_NE(saved, MakeRoster(80));

  Restart();
  franchise().TeamName.SetCaption("B Team");
  FillPool(5, 70);
  for (int wait = 0; wait < 4; ++wait) SecondPasses();
  front_end().AtWait([this] {
    ASSERT_TRUE(draft().AwaitingPick);
    startup().HighButton3.Click();
  });
  EXPECT_THROW(draft().RunDraft(), ProgramEnded);
  EXPECT_EQ(ReadLines(PathOf("Rank B")), roster);
  EXPECT_EQ(ReadLines(PathOf("Rank A")).size(), 11U);
  EXPECT_EQ(ReadLines(PathOf("Rank C")), MakeRoster(80));
  EXPECT_EQ(world.SettingsNames(), Lines{});
}

TEST_F(PicksTest, AddDrafteePutsThemInPlaceAndForgetsThem) {
  std::string best = MakeRecord({.name = "Best", .position = "CF", .passing = 99, .training = "Y"});
  const std::string record = best;
  const auto yields = front_end().Yields();
  draft().AddDraftee(best);
  EXPECT_EQ(best, "");
  EXPECT_EQ(Pool("CF").size(), 6U);
  EXPECT_EQ(Pool("CF")[0], record);
  EXPECT_EQ(draft().List5.shown.List(0), FormatPoolLine(record));
  ExpectPoolInStep();
  EXPECT_EQ(front_end().Yields() - yields, 6);

  std::string worst = MakeRecord({.name = "Worst", .position = "CF", .passing = 1, .shooting = 1});
  draft().AddDraftee(worst);
  EXPECT_EQ(HockeyNaming::GetField(Pool("CF")[6], "Name"), "Worst");

  std::string nobody = "Mascot,XX,10,1,1,1,1,25,Y";
  draft().AddDraftee(nobody);
  EXPECT_EQ(nobody, "");
  for (const char* position : FDraft::kPositions) {
    EXPECT_EQ(Pool(position).size(), position == std::string("CF") ? 7U : 5U);
  }
}

}  // namespace
}  // namespace frostmark::test
