#include "desktop/screens/own_team.h"

#include <QLabel>

#include "desktop/widgets/roles.h"
#include "shell/franchise.h"

namespace frostmark {

std::function<QString()> OwnTeam(const Screen& screen) {
  const auto* franchise = dynamic_cast<const Franchise*>(screen.Screens().Find("Franchise"));
  return [franchise] {
    return franchise != nullptr ? QString::fromStdString(franchise->TeamName.Caption()) : QString();
  };
}

void ShowOwn(QLabel& label, bool own) { SetLook(label, "own", own); }

}  // namespace frostmark
