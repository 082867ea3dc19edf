#include <QLabel>
#include <QVariant>

#include "desktop/decorations.h"
#include "desktop/delegates/lineup_delegate.h"
#include "desktop/delegates/play_delegate.h"
#include "desktop/delegates/row_text.h"
#include "desktop/fonts.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/screens/spoken_news.h"
#include "desktop/widgets/pin.h"
#include "desktop/widgets/rink_view.h"
#include "desktop/widgets/roles.h"
#include "desktop/widgets/room.h"
#include "match/game.h"
#include "records/lines/player_record.h"

namespace frostmark {
namespace {

constexpr int kFaceOffDue = -2;

// Shows on the rink what the match machine has come to.
class Commentator : public QObject {
 public:
  Commentator(Game& game, ScreenForm& form, RinkView& rink)
      : QObject(&form), game_(game), rink_(rink) {
    connect(&form, &ScreenForm::Refreshed, this, &Commentator::Follow);
  }

 private:
  static int Goals(const Label& label) { return QString::fromStdString(label.Caption()).toInt(); }

  void Follow() {
    const int home = Goals(game_.Label3);
    const int visitor = Goals(game_.Label4);
    if (game_.Period1.Value() == 0 && !game_.Timer1.Enabled()) {
      rink_.Reset();
    } else {
      if (home > home_) rink_.FlashGoal(1);
      if (visitor > visitor_) rink_.FlashGoal(2);
      // From a goal to the next face-off the puck lies in the net.
      if (game_.PassesLeft != kFaceOffDue) {
        rink_.SetPuck(game_.PuckTeam, Shown(FieldView(game_.PuckCarrier, Field::kPosition)));
      }
    }
    home_ = home;
    visitor_ = visitor;
  }

  Game& game_;
  RinkView& rink_;
  int home_ = 0;
  int visitor_ = 0;
};

void ShowLine(ListView& line) {
  auto* delegate = new LineupDelegate(&line);
  delegate->StretchRows(1.5);
  line.setItemDelegate(delegate);
  GiveRoom(line, 34, 8);
}

}  // namespace

void DecorateGame(Game& screen, ScreenForm& form) {
  UsePosterFonts();
  ShowLine(Part<ListView>(form, "Line1"));
  ShowLine(Part<ListView>(form, "Line2"));
  auto& events = Part<ListView>(form, "Events");
  events.setItemDelegate(new PlayDelegate(&events));
  events.LetRowsGrow();
  GiveRoom(events, 40, 6);
  new Pin(Part<QWidget>(form, "Label5"), Qt::AlignTop | Qt::AlignRight, {0, 18, 8, 0});

  KeepPlaceWhenHidden(Part<QWidget>(form, "HighButton1"));
  auto& rink = Part<RinkView>(form, "Picture1");
  QLabel* scores[] = {&Part<QLabel>(form, "Label3"), &Part<QLabel>(form, "Label4")};
  QObject::connect(&rink, &RinkView::LampChanged, &form,
                   [home = scores[0], visitor = scores[1]](int team, bool lit) {
                     SetLook(team == 1 ? *home : *visitor, "lit", lit);
                   });
  new Commentator(screen, form, rink);
  TellPlay(screen, form);
}

}  // namespace frostmark
