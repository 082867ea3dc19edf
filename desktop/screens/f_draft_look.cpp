#include <QAbstractItemModel>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <array>

#include "desktop/decorations.h"
#include "desktop/delegates/history_delegate.h"
#include "desktop/delegates/scout_delegate.h"
#include "desktop/fonts.h"
#include "desktop/list_view.h"
#include "desktop/painting/row_text.h"
#include "desktop/screen_form.h"
#include "desktop/screens/draft_order.h"
#include "desktop/screens/own_team.h"
#include "desktop/screens/spoken_news.h"
#include "desktop/widgets/column_heading.h"
#include "desktop/widgets/crest_mark.h"
#include "desktop/widgets/glow_frame.h"
#include "desktop/widgets/room.h"
#include "desktop/widgets/taken_flash.h"
#include "draft/f_draft.h"
#include "records/lines/history_line.h"

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

// How far the draft has come, and how long the user has to wait.
void ShowPlace(const FDraft& screen, ScreenForm& form) {
  const auto place = PlaceInDraft(screen);
  const auto say = [&form](const QString& wait, const QString& turn) {
    Part<QLabel>(form, "look_wait").setText(wait);
    Part<QLabel>(form, "look_place").setText(turn);
  };
  Part<CrestMark>(form, "look_crest")
      .SetTeam(place ? QString::fromStdString(screen.CurTeam.Caption()) : QString());
  if (!place) return say({}, {});
  const QString turn = QStringLiteral("Team %1 of %2").arg(place->now).arg(place->all);
  if (!place->own) return say({}, turn);
  const int away = *place->own - place->now;
  if (screen.Command1.Enabled()) return say("The draft is over", turn);
  if (away > 0) return say(QStringLiteral("Yours in %1").arg(away), turn);
  say(away == 0 ? "Your turn" : "Yours has picked", turn);
}

// Lights the place of a row of LIST that a team takes away. The history has told of it just before.
void FlashTaken(const FDraft& screen, ListView& list) {
  auto* flash = new TakenFlash(list);
  const auto light = [&screen, &list, flash](const QModelIndex& /*parent*/, int row) {
    const std::string text = screen.Events.List(screen.Events.ListCount() - 1);
    const auto line = ParseHistoryLine(text);
    if (!line || line->event != HistoryLine::Event::kAdded) return;
    // Once the view has closed the gap: the place is that of the row that has moved up.
    const auto at_its_place = [&list, flash, row, player = Shown(line->player),
                               team = Shown(line->team)] {
      const int last = list.model()->rowCount() - 1;
      const QRect place = list.visualRect(list.model()->index(std::min(row, last), 0));
      if (place.isValid()) flash->Flash(place, player, team);
    };
    QMetaObject::invokeMethod(flash, at_its_place, Qt::QueuedConnection);
  };
  QObject::connect(list.model(), &QAbstractItemModel::rowsRemoved, &list, light);
}

}  // namespace

void DecorateFDraft(const FDraft& screen, ScreenForm& form) {
  UsePosterFonts();
  const std::array<const ListPair*, kPool.size()> pool = {
      &screen.List1, &screen.List2, &screen.List3, &screen.List4, &screen.List5, &screen.List6};
  for (std::size_t i = 0; i < kPool.size(); ++i) {
    auto& list = Part<ListView>(form, kPool[i].list);
    list.setItemDelegate(new ScoutDelegate(pool[i]->records, &list));
    GiveRoom(list, 30, 6);
    FlashTaken(screen, list);
  }
  Part<ColumnHeading>(form, "Label4").StandOver(PoolLists(form, 0));
  Part<ColumnHeading>(form, "Label6").StandOver(PoolLists(form, 3));
  auto& events = Part<ListView>(form, "Events");
  const auto own_team = OwnTeam(screen);
  events.setItemDelegate(new HistoryDelegate(own_team, &events));
  events.LetRowsGrow();
  GiveRoom(events, 40, 6);
  // Queued, so that the view has taken the new line in when it is told to go there.
  QObject::connect(events.model(), &QAbstractItemModel::rowsInserted, &events,
                   &QAbstractItemView::scrollToBottom, Qt::QueuedConnection);

  const auto show_turn = [&screen, &form, own_team] {
    ShowPlace(screen, form);
    ShowTurn(screen, form, own_team());
  };
  show_turn();
  QObject::connect(&form, &ScreenForm::Refreshed, &form, show_turn);
  TellTurn(screen, form);
}

}  // namespace frostmark
