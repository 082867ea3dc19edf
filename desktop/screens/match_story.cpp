#include "desktop/screens/match_story.h"

#include <QAbstractItemModel>
#include <string>

#include "desktop/decorations.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "match/game.h"

namespace frostmark {

MatchStory::MatchStory(const Game& game, ScreenForm& form) : QObject(&form), game_(game) {
  const QAbstractItemModel* plays = Part<ListView>(form, "Events").model();
  connect(plays, &QAbstractItemModel::rowsInserted, this,
          [this](const QModelIndex& /*parent*/, int row) { Read(row); });
  connect(plays, &QAbstractItemModel::modelReset, this, [this] { emit Restarted(); });
}

void MatchStory::Read(int row) {
  const std::string text = game_.Events.List(row);
  const auto line = ParsePlayLine(text);
  // The ends of the early periods are written at every step of them.
  if (!line || line->play == Play::kFirstPeriod || line->play == Play::kSecondPeriod) return;
  const auto name = [](std::string_view part) {
    return QString::fromUtf8(part.data(), static_cast<int>(part.size()));
  };
  emit Happened({line->play, TeamOf(line->play), Period(), name(line->who), name(line->whom)});
}

// A line is written while the shooting team still has the puck.
int MatchStory::TeamOf(Play play) const {
  const int team = game_.PuckTeam;
  if (team != 1 && team != 2) return 0;
  switch (play) {
    case Play::kSteal:
    case Play::kSave:
      return 3 - team;
    case Play::kFaceOff:
    case Play::kPass:
    case Play::kOutletPass:
    case Play::kGoal:
      return team;
    case Play::kFirstPeriod:
    case Play::kSecondPeriod:
    case Play::kMatchEnd:
    case Play::kWin:
    case Play::kTie:
      break;
  }
  return 0;
}

int MatchStory::Period() const {
  return game_.Timer3.Enabled() ? 3 : game_.Timer2.Enabled() ? 2 : 1;
}

}  // namespace frostmark
