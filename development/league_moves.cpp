#include "development/league_moves.h"

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "records/unfinished.h"
#include "records/whole_file.h"

namespace frostmark {
namespace {

constexpr std::string_view kPlan = "unfinished.moves";
constexpr std::string_view kHeading = "frostmark moves";
constexpr std::string_view kEnd = "end";
constexpr std::size_t kLinesOfBorder = 3;  // its number, the team that goes up, the one down

enum class State { kDue, kDone, kLost };

struct Move {
  std::string source;
  std::string destination;
};

// A team's own name may hold anything that a file's name can, but must not break the plan's lines.
bool IsTeamName(std::string_view name) {
  return Ordvik::IsFileName(name) && name.find_first_of("\r\n") == std::string_view::npos;
}

Move Up(const Ordvik& ordvik, const LeagueMoves::Border& teams, std::size_t border) {
  return {ordvik.TeamPath(kRanks[border], teams.up), ordvik.TeamPath(kRanks[border + 1], teams.up)};
}

Move Down(const Ordvik& ordvik, const LeagueMoves::Border& teams, std::size_t border) {
  return {ordvik.TeamPath(kRanks[border + 1], teams.down),
          ordvik.TeamPath(kRanks[border], teams.down)};
}

State StateOf(const Move& move) {
  if (Ordvik::FileExists(move.source)) return State::kDue;
  return Ordvik::FileExists(move.destination) ? State::kDone : State::kLost;
}

bool Make(const Move& move) {
  return StateOf(move) == State::kDone || Ordvik::MoveFile(move.source, move.destination);
}

bool TakeBack(const Move& move) { return Make({move.destination, move.source}); }

bool IsOpen(const Ordvik& ordvik, const LeagueMoves::Border& teams, std::size_t border,
            const std::array<int, kRankCount>& sizes) {
  if (!IsTeamName(teams.up) || !IsTeamName(teams.down)) return false;
  const State up = StateOf(Up(ordvik, teams, border));
  const State down = StateOf(Down(ordvik, teams, border));
  if (up == State::kLost || down == State::kLost) return false;
  if (up == down) return true;
  int surplus = 0;  // of teams above the border
  for (std::size_t league = border + 1; league < sizes.size(); ++league) {
    surplus += sizes[league] - kTeamsInLeague;
  }
  return surplus == (up == State::kDone ? 1 : -1);
}

// Both moves or none. A team that is nowhere leaves its border as it is.
bool Complete(const Ordvik& ordvik, const LeagueMoves::Border& teams, std::size_t border) {
  const Move up = Up(ordvik, teams, border);
  const Move down = Down(ordvik, teams, border);
  if (StateOf(up) == State::kLost || StateOf(down) == State::kLost) return true;
  if (Make(up) && Make(down)) return true;
  const bool up_is_back = TakeBack(up);
  return TakeBack(down) && up_is_back;
}

using Plan = std::vector<std::pair<std::size_t, LeagueMoves::Border>>;

// The plan in TEXT. It may be foreign: what does not fit is left out.
Plan ReadPlan(std::string_view text) {
  const std::vector<std::string> lines = WholeLines(text);
  Plan plan;
  if (lines.size() < 2 || lines.front() != kHeading || lines.back() != kEnd) return plan;
  for (std::size_t i = 1; i + kLinesOfBorder < lines.size(); i += kLinesOfBorder) {
    for (std::size_t border = 0; border < kBorders; ++border) {
      if (lines[i] != std::to_string(border)) continue;
      if (!IsTeamName(lines[i + 1]) || !IsTeamName(lines[i + 2])) continue;
      plan.push_back({border, {lines[i + 1], lines[i + 2]}});
    }
  }
  return plan;
}

// The plan goes only when what it plans is on the disk for good.
void RemovePlan(const Ordvik& ordvik) {
  for (const char* rank : kRanks) (void)FlushFolder(ordvik.RankFolder(rank));
  ForgetLeagueMoves(ordvik);
}

}  // namespace

LeagueMoves::LeagueMoves(Ordvik& ordvik, Borders borders, const std::array<int, kRankCount>& sizes)
    : ordvik_(ordvik), borders_(std::move(borders)) {
  // All are looked at before the first file moves.
  for (std::size_t border = 0; border < kBorders; ++border) {
    open_[border] = IsOpen(ordvik_, borders_[border], border, sizes);
  }
  planned_ = open_;
}

void LeagueMoves::WriteDown() {
  std::string plan(kHeading);
  plan += '\n';
  for (std::size_t border = 0; border < kBorders; ++border) {
    if (!open_[border]) continue;
    plan += std::to_string(border) + '\n';
    plan += borders_[border].up + '\n' + borders_[border].down + '\n';
  }
  plan += kEnd;
  plan += '\n';
  (void)ordvik_.files().WriteForGood(ordvik_.SettingsPath(kPlan), plan);
}

bool LeagueMoves::MoveUp(std::size_t border) {
  open_[border] = open_[border] && Make(Up(ordvik_, borders_[border], border));
  return open_[border];
}

bool LeagueMoves::MoveDown(std::size_t border) {
  if (!open_[border]) return false;
  open_[border] = Make(Down(ordvik_, borders_[border], border));
  if (!open_[border] && !TakeBack(Up(ordvik_, borders_[border], border))) stuck_ = true;
  return open_[border];
}

void LeagueMoves::Finish() {
  if (!stuck_) RemovePlan(ordvik_);
}

bool FinishLeagueMoves(Ordvik& ordvik) {
  const std::string path = ordvik.SettingsPath(kPlan);
  if (!Ordvik::FileExists(path)) return true;
  const auto text = ordvik.files().Read(path);
  if (!text) return false;
  bool all = true;
  for (const auto& [border, teams] : ReadPlan(*text)) {
    all = Complete(ordvik, teams, border) && all;
  }
  if (all) RemovePlan(ordvik);
  return all;
}

void ForgetLeagueMoves(const Ordvik& ordvik) { Ordvik::DeleteFile(ordvik.SettingsPath(kPlan)); }

}  // namespace frostmark
