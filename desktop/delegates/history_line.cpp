#include "desktop/delegates/history_line.h"

#include <QRegularExpression>

namespace frostmark {

namespace {

std::optional<HistoryLine> Match(const QString& text, const QRegularExpression& form,
                                 HistoryLine::Event event) {
  const QRegularExpressionMatch match = form.match(text);
  if (!match.hasMatch()) return std::nullopt;
  HistoryLine line;
  line.event = event;
  line.team_first = event != HistoryLine::Event::kRetired;
  line.team = match.captured("team");
  line.player = match.captured("player");
  const int first = match.capturedStart(line.team_first ? "team" : "player");
  const int first_end = match.capturedEnd(line.team_first ? "team" : "player");
  const int second = match.capturedStart(line.team_first ? "player" : "team");
  const int second_end = match.capturedEnd(line.team_first ? "player" : "team");
  line.before = text.left(first);
  line.between = text.mid(first_end, second - first_end);
  line.after = text.mid(second_end);
  return line;
}

}  // namespace

std::optional<HistoryLine> ParseHistoryLine(const QString& text) {
  static const QRegularExpression kRetired(QStringLiteral(
      R"(^\([A-Z]{2}\) (?<player>.+) has retired from (?<team>.+) at \d+ years old$)"));
  static const QRegularExpression kReleased(
      QStringLiteral(R"(^(?<team>.+) lost \([A-Z]{2}\) (?<player>.+)\. Overall: \d+$)"));
  static const QRegularExpression kAdded(
      QStringLiteral(R"(^(?<team>.+) has added (?<player>.+) to the team\. Overall: \d+$)"));
  if (auto line = Match(text, kRetired, HistoryLine::Event::kRetired)) return line;
  if (auto line = Match(text, kReleased, HistoryLine::Event::kReleased)) return line;
  return Match(text, kAdded, HistoryLine::Event::kAdded);
}

}  // namespace frostmark
