#include "desktop/delegates/team_line.h"

#include <QRegularExpression>

namespace frostmark {

std::optional<TeamLine> ParseTeamLine(const QString& text) {
  static const QRegularExpression kForm(
      QStringLiteral(R"(^\((\d{1,5})-(\d{1,5})-(\d{1,5})\) (.*)$)"));
  const QRegularExpressionMatch match = kForm.match(text);
  if (!match.hasMatch()) return std::nullopt;
  return TeamLine{match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
                  match.captured(4)};
}

}  // namespace frostmark
