#pragma once

#include <functional>
#include <string>

#include "records/lines/pool_line.h"
#include "tests/support/game_fixture.h"

namespace frostmark::test {

// A world of one team per league, "A Team" in "Rank A" to "F Team" in "Rank F", and a pool filled
// by hand. Drafts are run wait by wait: a computer's turn has three waits of a second.
class DraftScene : public GameFixture {
 protected:
  struct Stopped {};

  DraftScene() {
    for (const char* rank : kRanks) world.WriteTeam(rank, TeamOf(rank), MakeRoster(80));
    franchise().TeamName.SetCaption("nobody's team");
    FillPool(5, 70);
  }

  static std::string TeamOf(const std::string& rank) {
    return {rank.back(), ' ', 'T', 'e', 'a', 'm'};
  }
  std::string PathOf(const std::string& rank) { return world.TeamPath(rank, TeamOf(rank)); }

  FDraft& draft() { return program().f_draft; }
  FSelectDraft& choice() { return program().f_select_draft; }

  // COUNT prospects per position, of the skill BEST, BEST - 1 and so on.
  void FillPool(int count, int best) {
    for (std::size_t p = 0; p < FDraft::kPositions.size(); ++p) {
      const char* const position = FDraft::kPositions[p];
      Lines records;
      for (int i = 0; i < count; ++i) {
        const int skill = best - i;
        records.push_back(
            MakeRecord({.name = std::string(position) + " Rookie " + std::to_string(i),
                        .position = position,
                        .passing = skill,
                        .shooting = skill,
                        .defense = skill,
                        .agility = skill}));
      }
      SetPool(position, records);
    }
  }
  void SetPool(const std::string& position, const Lines& records) {
    ListPair& list = *draft().Pool(position);
    Lines shown;
    for (const std::string& record : records) shown.push_back(FormatPoolLine(record));
    FillList(list.shown, shown);
    FillList(list.records, records);
  }
  Lines Pool(const std::string& position) { return ItemsOf(draft().Pool(position)->records); }
  // Whether what is shown of the pool is what it holds.
  void ExpectPoolInStep() {
    for (ListPair* list : draft().Pool()) {
      Lines shown;
      for (const std::string& record : ItemsOf(list->records)) {
        shown.push_back(FormatPoolLine(record));
      }
      EXPECT_EQ(ItemsOf(list->shown), shown);
    }
  }
  Lines OpenLists() {
    Lines open;
    for (ListPair* list : draft().Pool()) {
      EXPECT_EQ(list->shown.Enabled(), list->records.Enabled());
      if (list->shown.Enabled()) open.push_back(list->shown.Name());
    }
    return open;
  }

  // At the next wait a second passes, and LOOK looks on before.
  void SecondPasses(std::function<void()> look = nullptr) {
    front_end().AtWait([this, look] {
      if (look) look();
      front_end().PassTime(std::chrono::seconds(1));
    });
  }
  // Runs the draft up to the wait after the WAITS that are queued or pass.
  void RunWaits(int waits) {
    for (int i = 0; i < waits; ++i) SecondPasses();
    Stop();
  }
  void Stop() {
    front_end().AtWait([] { throw Stopped(); });
    EXPECT_THROW(draft().RunDraft(), Stopped);
  }
  // Runs the first turn of a draft, that of "Rank A", with the rolls of its retirements, and
  // returns the team's new file.
  Lines FirstTurn(const Lines& roster, std::initializer_list<int> rolls = {}) {
    world.WriteTeam("Rank A", "A Team", roster);
    draft().Events.Clear();
    dice().Forget();
    dice().Give(rolls);
    RunWaits(2);
    EXPECT_EQ(dice().LeftOver(), 0U);
    EXPECT_EQ(dice().Rolls().size(), rolls.size());
    return ReadLines(PathOf("Rank A"));
  }
  Lines Events() { return ItemsOf(draft().Events); }
};

// A roster of eleven in file order, the better the nearer to the head: skills 90 to 80, so that
// sorting by Overall leaves it as it is. AGES and TRAININGS ("N", "Y") go by index.
inline Lines RosterOfAges(const std::vector<int>& ages,
                          const std::string& trainings = "NNNNNNYYYYY") {
  const char* const positions[] = {"GO", "RD", "LD", "RF", "CF", "LF",
                                   "RD", "LD", "RF", "CF", "LF"};
  Lines roster;
  for (std::size_t i = 0; i < ages.size(); ++i) {
    const int skill = 90 - static_cast<int>(i);
    roster.push_back(MakeRecord({.name = "Old " + std::to_string(i),
                                 .position = positions[i],
                                 .passing = skill,
                                 .shooting = skill,
                                 .defense = skill,
                                 .agility = skill,
                                 .age = ages[i],
                                 .training = std::string(1, trainings[i])}));
  }
  return roster;
}

}  // namespace frostmark::test
