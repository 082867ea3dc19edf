#include "records/lines/news_line.h"

#include "records/lines/line_text.h"

namespace frostmark {

namespace {

using line_text::CutAtLast;
using line_text::IsDigits;
using line_text::Joined;

constexpr std::string_view kBeforeGoals = " ";
constexpr std::string_view kBetweenGoals = " to ";
constexpr std::string_view kBeforeTie = " at ";

// The teams and the outcome of LINE: its first verb stands between them, and the score still stands
// after the second team.
std::optional<NewsLine> ParseTeams(std::string_view line) {
  std::optional<NewsLine> found;
  for (const Outcome outcome : {Outcome::kBeat, Outcome::kLost, Outcome::kTied}) {
    const auto parts = line_text::CutAt(line, NewsVerb(outcome));
    if (!parts || parts->before.empty()) continue;
    if (found && found->first.size() <= parts->before.size()) continue;
    found = NewsLine{parts->before, outcome, parts->after, {}, {}};
  }
  return found;
}

}  // namespace

bool NewsLine::WonBy(std::string_view team) const {
  return (outcome == Outcome::kBeat && team == first) ||
         (outcome == Outcome::kLost && team == second);
}

std::string_view NewsVerb(Outcome outcome) {
  switch (outcome) {
    case Outcome::kBeat:
      return " beat ";
    case Outcome::kLost:
      return " lost to ";
    case Outcome::kTied:
      break;
  }
  return " tied ";
}

std::string NewsScore(const NewsLine& news) {
  if (news.outcome == Outcome::kTied) return Joined({kBeforeTie.substr(1), news.goals1});
  return Joined({news.goals1, kBetweenGoals, news.goals2});
}

std::string FormatNewsLine(const NewsLine& news) {
  return Joined({news.first, NewsVerb(news.outcome), news.second, kBeforeGoals, NewsScore(news)});
}

std::optional<NewsLine> ParseNewsLine(std::string_view line) {
  auto news = ParseTeams(line);
  if (!news) return std::nullopt;
  const bool tie = news->outcome == Outcome::kTied;
  const auto score = CutAtLast(news->second, tie ? kBeforeTie : kBetweenGoals);
  if (!score || !IsDigits(score->after)) return std::nullopt;
  news->goals1 = score->after;
  news->goals2 = score->after;
  news->second = score->before;
  if (!tie) {
    const auto goals = CutAtLast(score->before, kBeforeGoals);
    if (!goals || !IsDigits(goals->after)) return std::nullopt;
    news->goals1 = goals->after;
    news->second = goals->before;
  }
  if (news->second.empty()) return std::nullopt;
  return news;
}

}  // namespace frostmark
