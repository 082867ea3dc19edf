#include "records/hockey_naming.h"
#include "records/lines/player_record.h"

namespace frostmark {
namespace {

// The best skill of a new player is 99 and of a prospect 94, the worst of each 29 below it.
constexpr int kAboveBestSkill = 100;
constexpr int kAboveBestSkillOfProspect = 95;
constexpr int kSkillDie = 30;
// 18 to 24 years.
constexpr int kAboveOldestAge = 25;
constexpr int kAgeDie = 7;

}  // namespace

void HockeyNaming::GenPlayerRatings(std::string_view position, bool weaker) {
  const int above_best = weaker ? kAboveBestSkillOfProspect : kAboveBestSkill;
  CurPassing = above_best - ordvik_.RollUpTo(kSkillDie);
  CurShooting = above_best - ordvik_.RollUpTo(kSkillDie);
  CurDefense = above_best - ordvik_.RollUpTo(kSkillDie);
  CurAgility = above_best - ordvik_.RollUpTo(kSkillDie);
  CurAge = kAboveOldestAge - ordvik_.RollUpTo(kAgeDie);
  CurOverall = OverallAt(position, CurRatings(), CurOverall);
}

std::string HockeyNaming::GeneratedRecord(std::string_view name, std::string_view position,
                                          std::string_view training) const {
  return FormatPlayerRecord({name, position, std::to_string(CurOverall), std::to_string(CurPassing),
                             std::to_string(CurShooting), std::to_string(CurDefense),
                             std::to_string(CurAgility), std::to_string(CurAge), training});
}

}  // namespace frostmark
