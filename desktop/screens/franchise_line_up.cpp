#include <algorithm>
#include <cstdlib>

#include "desktop/decorations.h"
#include "desktop/delegates/player_delegate.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/screens/franchise_parts.h"
#include "desktop/widgets/empty_note.h"
#include "desktop/widgets/line_up_badges.h"
#include "desktop/widgets/player_heading.h"
#include "desktop/widgets/room.h"
#include "desktop/widgets/skill_card.h"
#include "records/lines/player_line.h"
#include "records/lines/player_record.h"
#include "shell/franchise.h"

namespace frostmark {
namespace {

// Six players have the room of a page to themselves.
constexpr double kStretch = 1.25;

LineUpBadges::Counts PositionsOf(const RecordList& line) {
  LineUpBadges::Counts counts{};
  for (std::size_t i = 0; i < counts.size(); ++i) {
    for (int player = 0; player < line.ListCount(); ++player) {
      if (FieldView(line.List(player), Field::kPosition) == kRosterOrder[i]) ++counts[i];
    }
  }
  return counts;
}

// By the lines that are seen: records may be ahead of them.
int OverallOf(const PlayerLine& player) { return std::atoi(std::string(player.overall).c_str()); }

PlayerDelegate::Mark MarkOfLead(const Franchise& screen, int row) {
  const auto player = ParsePlayerLine(screen.MainRoster.List(row));
  if (!player) return PlayerDelegate::Mark::kNone;
  const auto counts = PositionsOf(screen.MainList);
  for (std::size_t i = 0; i < counts.size(); ++i) {
    if (player->position == kRosterOrder[i] && counts[i] > 1) return PlayerDelegate::Mark::kDoubled;
  }
  return PlayerDelegate::Mark::kNone;
}

// Better than all who play the position on the lead line, of whom there is one at least.
PlayerDelegate::Mark MarkOfTrainee(const Franchise& screen, int row) {
  const auto trainee = ParsePlayerLine(screen.TrainingRoster.List(row));
  if (!trainee) return PlayerDelegate::Mark::kNone;
  int best = -1;
  for (int i = 0; i < screen.MainRoster.ListCount(); ++i) {
    const auto lead = ParsePlayerLine(screen.MainRoster.List(i));
    if (lead && lead->position == trainee->position) best = std::max(best, OverallOf(*lead));
  }
  return best >= 0 && OverallOf(*trainee) > best ? PlayerDelegate::Mark::kBetter
                                                 : PlayerDelegate::Mark::kNone;
}

struct Line {
  const char* list;
  const char* heads;
  const char* when_empty;
  PlayerDelegate::Mark (*mark_of)(const Franchise& screen, int row);
};

SkillCard& DressLine(const Franchise& screen, ScreenForm& form, const Line& line) {
  auto& list = Part<ListView>(form, line.list);
  auto* delegate = new PlayerDelegate(&list);
  delegate->StretchRows(kStretch);
  delegate->MarkRows([&screen, mark_of = line.mark_of](int row) { return mark_of(screen, row); });
  list.setItemDelegate(delegate);
  GiveRoom(list, 46, 10);
  Part<PlayerHeading>(form, line.heads).StandOver(list);
  new EmptyNote(list, line.when_empty);
  return *new SkillCard(list);
}

}  // namespace

void DressLineUp(const Franchise& screen, ScreenForm& form) {
  SkillCard& lead =
      DressLine(screen, form,
                {"MainRoster", "look_main_heads",
                 "Nobody plays. The lead line wants one player of each position.", MarkOfLead});
  lead.setObjectName("look_lead_card");
  SkillCard& trainee =
      DressLine(screen, form,
                {"TrainingRoster", "look_training_heads",
                 "Nobody trains. Move players here from the lead line.", MarkOfTrainee});
  trainee.setObjectName("look_trainee_card");
  auto& badges = Part<LineUpBadges>(form, "look_badges");
  auto& leads = Part<ListView>(form, "MainRoster");
  auto& trainees = Part<ListView>(form, "TrainingRoster");
  const auto follow = [&screen, &lead, &trainee, &badges, &leads, &trainees] {
    badges.SetCounts(PositionsOf(screen.MainList));
    lead.Tell(screen.MainList.List(screen.MainRoster.ListIndex()));
    trainee.Tell(screen.TrainList.List(screen.TrainingRoster.ListIndex()));
    // The mark of a row follows from other rows.
    leads.viewport()->update();
    trainees.viewport()->update();
  };
  follow();
  QObject::connect(&form, &ScreenForm::Refreshed, &badges, follow);
}

}  // namespace frostmark
