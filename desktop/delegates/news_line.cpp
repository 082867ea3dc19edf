#include "desktop/delegates/news_line.h"

#include <QRegularExpression>

namespace frostmark {

bool NewsLine::WonBy(const QString& team) const {
  return (verb == Verb::kBeat && team == first) || (verb == Verb::kLost && team == second);
}

std::optional<NewsLine> ParseNewsLine(const QString& text) {
  static const QRegularExpression kForm(
      QStringLiteral(R"(^(.+?)( beat | lost to | tied )(.+) (\d+ to \d+|at \d+)$)"));
  const QRegularExpressionMatch match = kForm.match(text);
  if (!match.hasMatch()) return std::nullopt;
  NewsLine line;
  line.first = match.captured(1);
  line.verb_text = match.captured(2);
  if (line.verb_text == " beat ") line.verb = NewsLine::Verb::kBeat;
  if (line.verb_text == " lost to ") line.verb = NewsLine::Verb::kLost;
  line.second = match.captured(3);
  line.score = match.captured(4);
  return line;
}

}  // namespace frostmark
