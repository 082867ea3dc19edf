#include "records/lines/play_line.h"

#include "records/lines/line_text.h"
#include "records/lines/news_line.h"

namespace frostmark {

namespace {

using line_text::Joined;

// The words of a play, between the two who take part.
struct Words {
  Play play;
  std::string_view between;
};

constexpr Words kWords[] = {
    {Play::kGoal, " SCORES! Assist by: "},
    {Play::kFaceOff, " wins the face off!"},
    {Play::kSteal, " steals the puck from "},
    {Play::kSave, " blocks a shot from "},
    {Play::kPass, " passes it to "},
    {Play::kOutletPass, " passes the puck to "},
    {Play::kFirstPeriod, "End of the first period!"},
    {Play::kSecondPeriod, "End of the second period!"},
    {Play::kMatchEnd, "The match has ended in an amazing battle!"},
};
constexpr std::string_view kTied = " tied the game with ";
constexpr std::string_view kTiedAt = " at ";

// Whether the play is told of somebody, and of two.
bool HasWho(Play play) { return play < Play::kFirstPeriod; }
bool HasWhom(Play play) { return HasWho(play) && play != Play::kFaceOff; }

std::optional<PlayLine> ParseTie(std::string_view line) {
  const auto teams = line_text::CutAt(line, kTied);
  if (!teams) return std::nullopt;
  const auto score = line_text::CutAtLast(teams->after, kTiedAt);
  if (!score) return std::nullopt;
  return PlayLine{Play::kTie, teams->before, score->before, score->after, score->after};
}

std::optional<PlayLine> ParseWin(std::string_view line) {
  const auto news = ParseNewsLine(line);
  if (!news || news->outcome != Outcome::kBeat) return std::nullopt;
  return PlayLine{Play::kWin, news->first, news->second, news->goals1, news->goals2};
}

}  // namespace

std::string FormatPlayLine(const PlayLine& line) {
  if (line.play == Play::kWin) {
    return FormatNewsLine({line.who, Outcome::kBeat, line.whom, line.goals1, line.goals2});
  }
  if (line.play == Play::kTie) return Joined({line.who, kTied, line.whom, kTiedAt, line.goals1});
  for (const Words& words : kWords) {
    if (words.play != line.play) continue;
    return Joined({HasWho(line.play) ? line.who : std::string_view(), words.between,
                   HasWhom(line.play) ? line.whom : std::string_view()});
  }
  return {};
}

std::optional<PlayLine> ParsePlayLine(std::string_view line) {
  for (const Words& words : kWords) {
    const auto parts = line_text::CutAt(line, words.between);
    if (!parts) continue;
    if (!HasWho(words.play) && !parts->before.empty()) continue;
    if (!HasWhom(words.play) && !parts->after.empty()) continue;
    return PlayLine{words.play, parts->before, parts->after, {}, {}};
  }
  if (const auto tie = ParseTie(line)) return tie;
  return ParseWin(line);
}

}  // namespace frostmark
