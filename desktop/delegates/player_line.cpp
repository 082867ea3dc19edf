#include "desktop/delegates/player_line.h"

#include <QRegularExpression>

namespace frostmark {

std::optional<PlayerLine> ParsePlayerLine(const QString& text) {
  static const QRegularExpression kForm(
      QStringLiteral(R"(^(?:([A-Z]{2}) - )?(\S.*?) \(?(\d{1,3})/(\d{1,3})\)?$)"));
  const QRegularExpressionMatch match = kForm.match(text);
  if (!match.hasMatch()) return std::nullopt;
  return PlayerLine{match.captured(1), match.captured(2), match.captured(3).toInt(),
                    match.captured(4).toInt()};
}

}  // namespace frostmark
