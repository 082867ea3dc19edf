#include <gtest/gtest.h>

#include "records/record_list.h"
#include "records/runtime_error.h"
#include "tests/unit/game_fixture.h"

namespace frostmark::testing {
namespace {

TEST(RecordListTest, ReadingBeyondTheEndsGivesTheEmptyText) {
  RecordList list;
  list.AddItem("only");
  EXPECT_EQ(list.List(1), "");
  EXPECT_EQ(list.List(-1), "");
  EXPECT_EQ(list.List(30000), "");
}

}  // namespace
}  // namespace frostmark::testing
