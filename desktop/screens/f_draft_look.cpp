#include <QAbstractItemModel>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "desktop/decorations.h"
#include "desktop/delegates/history_delegate.h"
#include "desktop/delegates/player_delegate.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/screens/own_team.h"
#include "desktop/screens/spoken_news.h"
#include "desktop/widgets/column_heading.h"
#include "desktop/widgets/glow_frame.h"
#include "desktop/widgets/room.h"
#include "draft/f_draft.h"

namespace frostmark {

namespace {

struct PoolParts {
  const char* list;
  const char* frame;
};

constexpr std::array kPool = {
    PoolParts{"List1_0", "look_pool_1"}, PoolParts{"List2_0", "look_pool_2"},
    PoolParts{"List3_0", "look_pool_3"}, PoolParts{"List4_0", "look_pool_4"},
    PoolParts{"List5_0", "look_pool_5"}, PoolParts{"List6_0", "look_pool_6"},
};

// The three lists of a row of the pool, from the list FIRST on.
QList<QAbstractItemView*> PoolLists(const ScreenForm& form, std::size_t first) {
  QList<QAbstractItemView*> lists;
  for (std::size_t i = first; i < first + 3; ++i) lists << &Part<ListView>(form, kPool[i].list);
  return lists;
}

// Lights what waits for the user, and takes the keyboard there: the open list of the pool while it
// is their turn, the button on to the new season when all is over.
void ShowTurn(const FDraft& screen, ScreenForm& form, const QString& own_team) {
  auto& team = Part<QLabel>(form, "CurTeam");
  ShowOwn(team, team.text() == own_team);
  Part<GlowFrame>(form, "look_turn").SetLit(screen.AwaitingPick);
  for (const PoolParts& part : kPool) {
    auto& list = Part<ListView>(form, part.list);
    auto& frame = Part<GlowFrame>(form, part.frame);
    const bool open = screen.AwaitingPick && list.isEnabled();
    if (open && !frame.Lit()) list.setFocus();
    frame.SetLit(open);
  }
  auto& new_season = Part<QPushButton>(form, "Command1");
  if (new_season.isEnabled() && !form.property("over").toBool()) new_season.setFocus();
  form.setProperty("over", new_season.isEnabled());
}

}  // namespace

void DecorateFDraft(const FDraft& screen, ScreenForm& form) {
  for (const PoolParts& part : kPool) {
    auto& list = Part<ListView>(form, part.list);
    list.setItemDelegate(new PlayerDelegate(&list));
    GiveRoom(list, 40, 4);
  }
  Part<ColumnHeading>(form, "Label4").StandOver(PoolLists(form, 0));
  Part<ColumnHeading>(form, "Label6").StandOver(PoolLists(form, 3));
  auto& events = Part<ListView>(form, "Events");
  const auto own_team = OwnTeam(screen);
  events.setItemDelegate(new HistoryDelegate(own_team, &events));
  events.LetRowsGrow();
  GiveRoom(events, 90, 4);
  // Queued, so that the view has taken the new line in when it is told to go there.
  QObject::connect(events.model(), &QAbstractItemModel::rowsInserted, &events,
                   &QAbstractItemView::scrollToBottom, Qt::QueuedConnection);

  const auto show_turn = [&screen, &form, own_team] { ShowTurn(screen, form, own_team()); };
  show_turn();
  QObject::connect(&form, &ScreenForm::Refreshed, &form, show_turn);
  TellTurn(screen, form);
}

}  // namespace frostmark
