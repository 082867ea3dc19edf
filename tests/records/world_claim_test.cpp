#include "records/world_claim.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <filesystem>

#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

using Answers = WorldClaim::Answers;

bool HasKnocks(const WorldClaim& claim) {
  pollfd door{claim.Door(), POLLIN, 0};
  return poll(&door, 1, 0) == 1;
}

TEST(WorldClaimTest, TheSecondProgramOfAWorldFindsItTaken) {
  const TemporaryWorld world;
  const WorldClaim first(world.path(), Answers::kNo);
  EXPECT_FALSE(first.Taken());
  EXPECT_TRUE(WorldClaim(world.path(), Answers::kNo).Taken());
  EXPECT_TRUE(WorldClaim(world.path(), Answers::kYes).Taken());
}

TEST(WorldClaimTest, AnotherWorldIsFree) {
  const TemporaryWorld world;
  const TemporaryWorld other;
  const WorldClaim first(world.path(), Answers::kNo);
  EXPECT_FALSE(WorldClaim(other.path(), Answers::kNo).Taken());
}

TEST(WorldClaimTest, TheWorldIsFreeAgainAfterIt) {
  const TemporaryWorld world;
  { const WorldClaim first(world.path(), Answers::kYes); }
  EXPECT_FALSE(WorldClaim(world.path(), Answers::kYes).Taken());
}

TEST(WorldClaimTest, AllWaysToAFolderLeadToOneWorld) {
  const TemporaryWorld world;
  const TemporaryWorld other;
  const std::string link = other.path() + "/link";
  std::filesystem::create_directory_symlink(world.path(), link);
  const WorldClaim first(link, Answers::kNo);
  EXPECT_TRUE(WorldClaim(world.path(), Answers::kNo).Taken());
  EXPECT_TRUE(WorldClaim(world.path() + "/Teams/..", Answers::kNo).Taken());
}

TEST(WorldClaimTest, ALongPathHasANameToo) {
  const TemporaryWorld world;
  std::string folder = world.path();
  for (int i = 0; i < 8; ++i) folder += "/" + std::string(200, static_cast<char>('a' + i));
  std::filesystem::create_directories(folder + "/x");
  std::filesystem::create_directories(folder + "/y");
  const WorldClaim first(folder + "/x", Answers::kNo);
  EXPECT_TRUE(WorldClaim(folder + "/x", Answers::kNo).Taken());
  EXPECT_FALSE(WorldClaim(folder + "/y", Answers::kNo).Taken());
}

TEST(WorldClaimTest, WithoutAFolderTheGameGoesOn) {
  const TemporaryWorld world;
  const WorldClaim first(world.path() + "/missing", Answers::kYes);
  EXPECT_FALSE(first.Taken());
  EXPECT_EQ(first.Door(), -1);
  EXPECT_FALSE(WorldClaim(world.path() + "/missing", Answers::kYes).Taken());
}

TEST(WorldClaimTest, AProgramWithAWindowHearsAllKnocks) {
  const TemporaryWorld world;
  const WorldClaim first(world.path(), Answers::kYes);
  ASSERT_GE(first.Door(), 0);
  EXPECT_FALSE(HasKnocks(first));
  const WorldClaim second(world.path(), Answers::kYes);
  EXPECT_EQ(second.Door(), -1);
  for (int i = 0; i < 1000; ++i) ASSERT_TRUE(second.Knock()) << i;
  EXPECT_TRUE(HasKnocks(first));
  first.TakeKnocks();
  EXPECT_FALSE(HasKnocks(first));
}

TEST(WorldClaimTest, AProgramWithoutAWindowHasNoDoor) {
  const TemporaryWorld world;
  const WorldClaim first(world.path(), Answers::kNo);
  EXPECT_EQ(first.Door(), -1);
  EXPECT_FALSE(WorldClaim(world.path(), Answers::kYes).Knock());
}

TEST(WorldClaimTest, NobodyOpensWhenTheOtherHasEnded) {
  const TemporaryWorld world;
  auto first = std::make_unique<WorldClaim>(world.path(), Answers::kYes);
  const WorldClaim second(world.path(), Answers::kYes);
  first.reset();
  EXPECT_FALSE(second.Knock());
}

TEST(WorldClaimTest, LeavesNothingInTheWorld) {
  const TemporaryWorld world;
  {
    const WorldClaim first(world.path(), Answers::kYes);
    const WorldClaim second(world.path(), Answers::kYes);
    EXPECT_EQ(world.Everything(), Lines());
  }
  EXPECT_EQ(world.Everything(), Lines());
}

}  // namespace
}  // namespace frostmark::test
