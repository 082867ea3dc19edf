#include <QAbstractButton>
#include <QEvent>
#include <QLabel>
#include <algorithm>

#include "desktop/decorations.h"
#include "desktop/screen_form.h"
#include "desktop/screens/franchise_parts.h"
#include "desktop/screens/remark.h"
#include "desktop/widgets/golden_dot.h"
#include "desktop/widgets/marked_tabs.h"
#include "desktop/widgets/roles.h"
#include "desktop/widgets/season_over.h"
#include "records/leagues.h"
#include "shell/franchise.h"

namespace frostmark {
namespace {

// Marks "Save" while the disk knows less of the season than the screen. The disk is asked when the
// season has moved on, and when the box that ends a save has gone.
class SaveReminder : public QObject {
 public:
  SaveReminder(const Franchise& screen, ScreenForm& form)
      : QObject(&form),
        screen_(screen),
        form_(form),
        button_(Part<QAbstractButton>(form, "HighButton3")),
        dot_(*new GoldenDot(button_)) {
    dot_.setObjectName("look_unsaved");
    form.installEventFilter(this);
    connect(&button_, &QAbstractButton::clicked, this, &SaveReminder::Look);
    connect(&form, &ScreenForm::Refreshed, this, [this] {
      if (Season() != season_) Look();
    });
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    // The form comes into its window after this has been made.
    if (event->type() == QEvent::Show) form_.window()->installEventFilter(this);
    if (event->type() == QEvent::WindowUnblocked) Look();
    return false;
  }

 private:
  QString Season() const {
    return QString::fromStdString(screen_.TeamName.Caption() + '/' + screen_.Season.Caption() +
                                  '/' + screen_.NextWeek.Caption());
  }

  void Look() {
    season_ = Season();
    const bool unsaved = !screen_.TeamName.Caption().empty() && !screen_.IsSaved();
    dot_.setVisible(unsaved);
    Remark(screen_, button_, unsaved ? "There are weeks that are not saved" : "");
  }

  const Franchise& screen_;
  ScreenForm& form_;
  QAbstractButton& button_;
  GoldenDot& dot_;
  QString season_;
};

}  // namespace

void DressWeek(const Franchise& screen, ScreenForm& form) {
  new SaveReminder(screen, form);
  auto& versus = Part<QLabel>(form, "look_versus");
  KeepPlaceWhenHidden(versus);
  auto* over = new SeasonOver(Part<QWidget>(form, "look_match"), Part<QWidget>(form, "OppOverall"));
  over->setObjectName("look_season_over");
  auto& leagues = Part<MarkedTabs>(form, "XTab2");
  const auto follow = [&screen, &versus, &leagues, over] {
    const bool is_over = screen.NextWeek.Caption() == "Off Season";
    over->setVisible(is_over);
    versus.setVisible(!is_over);
    const auto* rank = std::find(kRanks.begin(), kRanks.end(), screen.MyRank.Caption());
    leagues.Mark(rank == kRanks.end() ? -1 : static_cast<int>(rank - kRanks.begin()),
                 MarkedTabs::Manner::kStill, "The league of your team");
  };
  follow();
  QObject::connect(&form, &ScreenForm::Refreshed, over, follow);
}

}  // namespace frostmark
