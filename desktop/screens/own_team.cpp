#include "desktop/screens/own_team.h"

#include <QColor>
#include <QLabel>

#include "desktop/palette.h"
#include "shell/franchise.h"

namespace frostmark {

std::function<QString()> OwnTeam(const Screen& screen) {
  const auto* franchise = dynamic_cast<const Franchise*>(screen.Screens().Find("Franchise"));
  return [franchise] {
    return franchise != nullptr ? QString::fromStdString(franchise->TeamName.Caption()) : QString();
  };
}

void ShowOwn(QLabel& label, bool own) {
  const QString style =
      own ? QStringLiteral("color: %1").arg(QColor(palette::kGold).name()) : QString();
  if (label.styleSheet() != style) label.setStyleSheet(style);
}

}  // namespace frostmark
