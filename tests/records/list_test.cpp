#include <gtest/gtest.h>

#include "records/record_list.h"
#include "records/runtime_error.h"
#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

// Writes down what it is told.
class Listener : public RecordList::Observer {
 public:
  void ItemInserted(int index) override { Note("inserted", index); }
  void ItemRemoved(int index) override { Note("removed", index); }
  void ItemChanged(int index) override { Note("changed", index); }
  void Cleared() override { notes.emplace_back("cleared"); }
  void SelectionChanged() override { notes.emplace_back("selection"); }

  Lines notes;

 private:
  void Note(const std::string& what, int index) {
    notes.push_back(what + " " + std::to_string(index));
  }
};

TEST(RecordListTest, StartsEmptyWithNothingSelected) {
  const RecordList list;
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST(RecordListTest, ReadingBeyondTheEndsGivesTheEmptyText) {
  RecordList list;
  list.AddItem("only");
  EXPECT_EQ(list.List(1), "");
  EXPECT_EQ(list.List(-1), "");
  EXPECT_EQ(list.List(30000), "");
}

TEST(RecordListTest, AddsAtTheEndAndKeepsDuplicatesAndOrder) {
  RecordList list;
  for (const char* item : {"b", "a", "b"}) list.AddItem(item);
  EXPECT_EQ(ItemsOf(list), (Lines{"b", "a", "b"}));
}

TEST(RecordListTest, InsertsBeforeAnIndex) {
  RecordList list;
  FillList(list, {"one", "two"});
  list.AddItem("top", 0);
  list.AddItem("end", 3);
  list.AddItem("middle", 2);
  EXPECT_EQ(ItemsOf(list), (Lines{"top", "one", "middle", "two", "end"}));
}

TEST(RecordListTest, InsertsACopyOfItsOwnItem) {
  RecordList list;
  FillList(list, {"one", "two", "three"});
  list.AddItem(list.List(2), 0);
  EXPECT_EQ(ItemsOf(list), (Lines{"three", "one", "two", "three"}));
}

TEST(RecordListTest, AnItemOfAnotherListIsACopyUntilOneOfThemIsWritten) {
  RecordList roster;
  RecordList line;
  FillList(roster, {"one", "two"});
  line.AddItemOf(roster, 1);
  line.AddItemOf(roster, 7);  // no such item: the empty text
  line.AddItemOf(line, 0);
  EXPECT_EQ(ItemsOf(line), (Lines{"two", "", "two"}));
  roster.SetList(1, "changed");
  line.SetList(2, "written");
  EXPECT_EQ(ItemsOf(roster), (Lines{"one", "changed"}));
  EXPECT_EQ(ItemsOf(line), (Lines{"two", "", "written"}));
  roster.Clear();
  EXPECT_EQ(line.List(0), "two");
}

TEST(RecordListTest, ARefilledListWritesIntoNoTextThatItHasLent) {
  RecordList roster;
  RecordList line;
  FillList(roster, {"one", "two"});
  line.AddItemOf(roster, 0);
  roster.Clear();
  FillList(roster, {"three"});
  EXPECT_EQ(ItemsOf(line), (Lines{"one"}));
  line.Clear();
  line.AddItem("four");
  line.AddItemOf(roster, 0);
  EXPECT_EQ(ItemsOf(roster), (Lines{"three"}));
  EXPECT_EQ(ItemsOf(line), (Lines{"four", "three"}));
}

TEST(RecordListTest, AFullListTakesNoLentItem) {
  RecordList roster;
  FillList(roster, {"one"});
  RecordList full;
  for (int i = 0; i < RecordList::kMostItems; ++i) full.AddItemOf(roster, 0);
  full.AddItemOf(roster, 0);
  EXPECT_EQ(full.ListCount(), RecordList::kMostItems);
}

TEST(RecordListTest, RemovalMovesLaterItemsUp) {
  RecordList list;
  FillList(list, {"a", "b", "c"});
  list.RemoveItem(1);
  EXPECT_EQ(ItemsOf(list), (Lines{"a", "c"}));
  EXPECT_EQ(list.List(2), "");
}

TEST(RecordListTest, WritesInPlace) {
  RecordList list;
  FillList(list, {"a", "b"});
  list.SetList(1, "B");
  EXPECT_EQ(ItemsOf(list), (Lines{"a", "B"}));
}

TEST(RecordListTest, WritingInsertingAndRemovingOutsideAreErrors) {
  RecordList list;
  list.AddItem("a");
  EXPECT_THROW(list.SetList(1, "x"), RuntimeError);
  EXPECT_THROW(list.SetList(-1, "x"), RuntimeError);
  EXPECT_THROW(list.RemoveItem(1), RuntimeError);
  EXPECT_THROW(list.RemoveItem(-1), RuntimeError);
  EXPECT_THROW(list.AddItem("x", 2), RuntimeError);
  EXPECT_THROW(list.AddItem("x", -1), RuntimeError);
  EXPECT_THROW(list.SetListIndex(1), RuntimeError);
  EXPECT_THROW(list.SetListIndex(-2), RuntimeError);
  EXPECT_EQ(ItemsOf(list), (Lines{"a"}));
}

TEST(RecordListTest, ClearRemovesItemsAndSelection) {
  RecordList list;
  FillList(list, {"a", "b"});
  list.SetListIndex(1);
  list.Clear();
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.List(0), "");
  list.AddItem("c");
  EXPECT_EQ(ItemsOf(list), (Lines{"c"}));
}

TEST(RecordListTest, SelectionFollowsItsItemAndGoesWithIt) {
  RecordList list;
  FillList(list, {"a", "b", "c"});
  list.SetListIndex(1);
  list.AddItem("top", 0);
  EXPECT_EQ(list.ListIndex(), 2);
  list.RemoveItem(0);
  EXPECT_EQ(list.ListIndex(), 1);
  list.RemoveItem(2);
  EXPECT_EQ(list.ListIndex(), 1);
  list.RemoveItem(1);
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST(RecordListTest, AFullListStaysAsItIs) {
  RecordList list;
  for (int i = 0; i < RecordList::kMostItems; ++i) list.AddItem(std::to_string(i));
  ASSERT_EQ(list.ListCount(), 32767);
  list.AddItem("one too many");
  list.AddItem("one too many", 0);
  EXPECT_EQ(list.ListCount(), 32767);
  EXPECT_EQ(list.List(0), "0");
  EXPECT_EQ(list.List(32766), "32766");
  list.RemoveItem(0);
  list.AddItem("fits again");
  EXPECT_EQ(list.List(32766), "fits again");
}

TEST(RecordListTest, TellsItsObserverOfEveryChange) {
  RecordList list;
  Listener listener;
  list.SetObserver(&listener);
  list.AddItem("a");
  list.AddItem("b", 0);
  list.SetList(1, "c");
  list.SetListIndex(1);
  list.SetListIndex(1);
  list.RemoveItem(0);
  list.Clear();
  list.Clear();
  EXPECT_EQ(listener.notes,
            (Lines{"inserted 0", "inserted 0", "changed 1", "selection", "removed 0", "cleared"}));
}

}  // namespace
}  // namespace frostmark::test
