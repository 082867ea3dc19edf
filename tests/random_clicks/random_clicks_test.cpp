#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>

#include "records/runtime_error.h"
#include "tests/random_clicks/random_user.h"
#include "tests/support/game_fixture.h"

// FROSTMARK_ROUNDS is how many rounds are played. FROSTMARK_SEED is the seed of the first; each
// round has a seed of its own, one more than the last, and follows from it alone.
namespace frostmark::test {
namespace {

constexpr int kActsOfRound = 400;

long FromEnvironment(const char* name, long otherwise) {
  const char* const value = std::getenv(name);
  return value == nullptr ? otherwise : std::atol(value);
}

// What stands in the folder when a round begins: nothing, a world, or a saved franchise.
void PrepareWorld(const TemporaryWorld& world, std::uint32_t seed) {
  if (seed % 4 == 0) return;
  world.FillWorld();
  if (seed % 4 == 1) return;
  Session session(world.path());
  TakeOver(session.program, world, "Rank F", "F2 Wolves");
  Franchise& franchise = session.program.franchise;
  franchise.NextWeek.SetCaption(seed % 4 == 2 ? "Week 9" : "Off Season");
  franchise.SaveGame();
}

// Plays one round and tells how it ended.
std::string PlayRound(std::uint32_t seed, int& deepest) {
  const TemporaryWorld world;
  PrepareWorld(world, seed);
  RandomUser user(seed, kActsOfRound);
  ScriptedDice dice(seed);
  dice.KeepRolls(false);
  Program program(user, dice, world.path());
  user.Use(program);
  std::string end;
  try {
    program.Start();
    if (seed % 2 == 1 || seed % 4 == 2) program.startup.PressLoad();
    user.ActOn();
  } catch (const RoundOver&) {
    end = "had enough";
  } catch (const ProgramEnded&) {
    end = "left";
  } catch (const RuntimeError& error) {
    end = "error";  // a designed end: the program shows the text and is over
    EXPECT_STRNE(error.what(), "");
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what() << "\n" << user.LastActs();
  }
  deepest = std::max(deepest, user.Deepest());
  for (const char* rank : kRanks) {
    for (const std::string& name : world.FileNames(rank)) {
      EXPECT_FALSE(name.ends_with(".tmp")) << rank << " holds " << name;
    }
  }
  return end;
}

TEST(RandomClicksTest, NothingBreaks) {
  const auto first =
      static_cast<std::uint32_t>(FromEnvironment("FROSTMARK_SEED", std::random_device()() >> 1U));
  const auto rounds = static_cast<std::uint32_t>(FromEnvironment("FROSTMARK_ROUNDS", 60));
  std::map<std::string, int> ends;
  int deepest = 0;
  for (std::uint32_t seed = first; seed != first + rounds && !HasFailure(); ++seed) {
    // Before the round, so that it is known also when the round crashes.
    (void)std::fprintf(stderr, "FROSTMARK_SEED=%u FROSTMARK_ROUNDS=1\n", seed);
    ++ends[PlayRound(seed, deepest)];
  }
  for (const auto& [end, count] : ends) (void)std::fprintf(stderr, "%s: %d\n", end.c_str(), count);
  (void)std::fprintf(stderr, "deepest nesting: %d\n", deepest);
}

}  // namespace
}  // namespace frostmark::test
