#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>

#include "world/name_lists.h"

namespace frostmark::test {
namespace {

using Names = std::span<const char* const>;

std::size_t Longest(Names names) {
  std::size_t longest = 0;
  for (const std::string_view name : names) longest = std::max(longest, name.size());
  return longest;
}

void ExpectCapitalsWithoutDoubles(Names names) {
  std::set<std::string_view> seen;
  for (const std::string_view name : names) {
    EXPECT_FALSE(name.empty());
    EXPECT_TRUE(std::all_of(name.begin(), name.end(), [](char c) { return c >= 'A' && c <= 'Z'; }))
        << name;
    EXPECT_TRUE(seen.insert(name).second) << name << " comes twice";
  }
}

void ExpectEnds(Names names, const std::vector<std::string>& first,
                const std::vector<std::string>& last) {
  ASSERT_GE(names.size(), first.size() + last.size());
  EXPECT_EQ(std::vector<std::string>(names.begin(), names.begin() + std::ssize(first)), first);
  EXPECT_EQ(std::vector<std::string>(names.end() - std::ssize(last), names.end()), last);
}

TEST(NameListsTest, GivenNames) {
  EXPECT_EQ(GivenNames().size(), 1219U);
  EXPECT_EQ(Longest(GivenNames()), 11U);
  ExpectCapitalsWithoutDoubles(GivenNames());
  ExpectEnds(GivenNames(),
             {"JAMES", "JOHN", "ROBERT", "MICHAEL", "WILLIAM", "DAVID", "RICHARD", "CHARLES"},
             {"ELDEN", "DORSEY", "DARELL", "BRODERICK", "ALONSO"});
}

TEST(NameListsTest, FamilyNames) {
  EXPECT_EQ(FamilyNames().size(), 3653U);
  EXPECT_EQ(Longest(FamilyNames()), 13U);
  ExpectCapitalsWithoutDoubles(FamilyNames());
  ExpectEnds(FamilyNames(),
             {"SMITH", "JOHNSON", "WILLIAMS", "JONES", "BROWN", "DAVIS", "MILLER", "WILSON"},
             {"HEFNER", "GLASER", "DUCKETT", "DEMERS", "BROCKMA"});
}

}  // namespace
}  // namespace frostmark::test
