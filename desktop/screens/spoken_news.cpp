#include "desktop/screens/spoken_news.h"

#include <QAbstractItemModel>
#include <QEvent>
#include <functional>
#include <string>
#include <utility>

#include "desktop/announcer.h"
#include "desktop/decorations.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "draft/f_draft.h"
#include "draft/f_results.h"
#include "match/game.h"
#include "records/lines/play_line.h"
#include "shell/franchise.h"

namespace frostmark {
namespace {

QString Text(const CaptionedControl& control) { return QString::fromStdString(control.Caption()); }

QString Score(const Game& screen) {
  return QStringLiteral("%1 %2, %3 %4")
      .arg(Text(screen.GHome), Text(screen.Goals(1)), Text(screen.GVisitor), Text(screen.Goals(2)));
}

// Announces what FIND says whenever that has become something else.
template <class Find>
void AnnounceChanges(ScreenForm& form, Find find) {
  const auto tell = [&form, find, last = find()]() mutable {
    const QString now = find();
    if (now == last) return;
    last = now;
    if (!now.isEmpty()) Announce(form, now);
  };
  QObject::connect(&form, &ScreenForm::Refreshed, &form, tell);
}

// Runs a function whenever a widget comes up.
class WhenShown : public QObject {
 public:
  WhenShown(QWidget& widget, std::function<void()> then)
      : QObject(&widget), then_(std::move(then)) {
    widget.installEventFilter(this);
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Show) then_();
    return false;
  }

 private:
  std::function<void()> then_;
};

}  // namespace

void TellPlay(const Game& screen, ScreenForm& form) {
  const QAbstractItemModel* plays = Part<ListView>(form, "Events").model();
  QObject::connect(plays, &QAbstractItemModel::rowsInserted, &form,
                   [&screen, &form](const QModelIndex& /*parent*/, int row) {
                     const std::string& text = screen.Events.List(row);
                     const auto line = ParsePlayLine(text);
                     if (!line) return;
                     const QString play = QString::fromStdString(text);
                     switch (line->play) {
                       case Play::kGoal:
                         return Announce(form, play + ". " + Score(screen));
                       case Play::kMatchEnd:
                       case Play::kWin:
                       case Play::kTie:
                         return Announce(form, play);
                       default:
                         return;
                     }
                   });
  // Not by their lines, which come at every step of a period.
  AnnounceChanges(form, [&screen]() -> QString {
    if (!screen.HighButton1.Visible() || screen.Period1.Value() < screen.Period1.Max()) return {};
    const bool second = screen.Period2.Value() == screen.Period2.Max();
    return QStringLiteral("End of the %1 period! %2")
        .arg(second ? "second" : "first", Score(screen));
  });
}

void TellOwnResult(const Franchise& screen, ScreenForm& form) {
  AnnounceChanges(form, [&screen] {
    // The opponent is written last.
    if (screen.Label19.Caption().empty()) return QString();
    return Text(screen.LooseOrWin) + " " + Text(screen.Label19);
  });
}

void TellChampion(const FResults& screen, ScreenForm& form) {
  new WhenShown(form, [&screen, &form] { Announce(form, "Champion: " + Text(screen.Champ)); });
}

void TellTurn(const FDraft& screen, ScreenForm& form) {
  AnnounceChanges(form, [&screen]() -> QString {
    if (!screen.AwaitingPick) return {};
    const ListBox* open = nullptr;
    for (const ListPair* list : {&screen.List1, &screen.List2, &screen.List3, &screen.List4,
                                 &screen.List5, &screen.List6}) {
      if (!list->shown.Enabled()) continue;
      if (open != nullptr) return {};  // not yet closed to all but one
      open = &list->shown;
    }
    if (open == nullptr) return QStringLiteral("Your turn. Who has to go?");
    return QStringLiteral("Your turn. Pick from the %1.").arg(open->called().words);
  });
}

}  // namespace frostmark
