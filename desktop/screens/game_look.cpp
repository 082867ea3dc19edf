#include <QLabel>
#include <array>
#include <functional>

#include "desktop/decorations.h"
#include "desktop/delegates/lineup_delegate.h"
#include "desktop/delegates/play_delegate.h"
#include "desktop/fonts.h"
#include "desktop/list_view.h"
#include "desktop/painting/palette.h"
#include "desktop/painting/row_text.h"
#include "desktop/screen_form.h"
#include "desktop/screens/match_story.h"
#include "desktop/screens/own_team.h"
#include "desktop/screens/spoken_news.h"
#include "desktop/widgets/crest_mark.h"
#include "desktop/widgets/deed_ribbon.h"
#include "desktop/widgets/empty_note.h"
#include "desktop/widgets/goal_sheet.h"
#include "desktop/widgets/ice_banner.h"
#include "desktop/widgets/marked_tabs.h"
#include "desktop/widgets/match_tally.h"
#include "desktop/widgets/pin.h"
#include "desktop/widgets/rink_view.h"
#include "desktop/widgets/roles.h"
#include "desktop/widgets/room.h"
#include "match/game.h"
#include "records/leagues.h"
#include "records/lines/player_record.h"

namespace frostmark {
namespace {

constexpr int kFaceOffDue = -2;

// What the play puts on the page beside the texts of the game.
struct Page {
  RinkView& rink;
  IceBanner& banner;
  DeedRibbon& ribbon;
  MatchTally& tally;
  std::array<GoalSheet*, 2> sheets;  // home and visitor
};

// Shows on the rink what the match machine has done.
class Commentator : public QObject {
 public:
  Commentator(const Game& game, ScreenForm& form, const Page& page)
      : QObject(&form), game_(game), page_(page), own_team_(OwnTeam(game)) {
    auto* story = new MatchStory(game, form);
    connect(story, &MatchStory::Happened, this, &Commentator::Tell);
    connect(story, &MatchStory::Restarted, this, &Commentator::StartAgain);
    connect(&form, &ScreenForm::Refreshed, this, &Commentator::Follow);
  }

 private:
  QString TeamName(int team) const {
    return QString::fromStdString((team == 1 ? game_.GHome : game_.GVisitor).Caption());
  }
  static QColor Ground(int team) { return team == 1 ? palette::kBlueDeep : palette::kRedDeep; }

  void StartAgain() {
    page_.ribbon.Clear();
    page_.tally.Clear();
    page_.banner.Clear();
    for (GoalSheet* sheet : page_.sheets) sheet->Clear();
    page_.rink.Reset();
  }

  void Tell(const Deed& deed) {
    switch (deed.play) {
      case Play::kFaceOff:
        return page_.tally.Add(MatchTally::kFaceOffs, deed.team);
      case Play::kSteal:
        page_.tally.Add(MatchTally::kSteals, deed.team);
        return page_.ribbon.Tell(deed.team, "STEAL", deed.who, QColor(Qt::white));
      case Play::kSave:
        page_.tally.Add(MatchTally::kSaves, deed.team);
        page_.rink.ShowShot(3 - deed.team);
        return page_.ribbon.Tell(deed.team, "SAVE", deed.who, QColor(palette::kGreen));
      case Play::kGoal:
        return TellGoal(deed);
      case Play::kWin:
      case Play::kTie:
        return TellResult();
      case Play::kPass:
      case Play::kOutletPass:
      case Play::kFirstPeriod:
      case Play::kSecondPeriod:
      case Play::kMatchEnd:
        return;
    }
  }

  void TellGoal(const Deed& deed) {
    if (deed.team == 0) return;
    page_.rink.ShowShot(deed.team);
    page_.ribbon.Tell(deed.team, "GOAL", deed.who, QColor(palette::kGold));
    page_.sheets[static_cast<std::size_t>(deed.team - 1)]->Add(deed.period, deed.who, deed.whom);
    const QString assist = deed.whom.isEmpty() ? QString() : ", assist by " + deed.whom;
    page_.banner.Sweep({"GOAL!", deed.who + assist, TeamName(deed.team), Ground(deed.team),
                        QColor(palette::kGold)},
                       deed.team == 2);
  }

  // By the numbers, as the standings go, whatever the line says. Seen by the user's team where it
  // plays.
  void TellResult() {
    const int home = Goals(1);
    const int visitor = Goals(2);
    const QString own = own_team_();
    const QString score =
        QStringLiteral("%1 %2 - %3 %4")
            .arg(TeamName(1), QString::number(home), QString::number(visitor), TeamName(2));
    if (home == visitor) {
      return page_.banner.Hang({"TIED", score, {}, QColor(palette::kPanel), QColor(palette::kIce)});
    }
    const QString winner = TeamName(home > visitor ? 1 : 2);
    const bool own_plays = !own.isEmpty() && (own == TeamName(1) || own == TeamName(2));
    const bool lost = own_plays && own != winner;
    page_.banner.Hang({lost ? "LOST" : "WON", score, lost ? own : winner,
                       QColor(lost ? palette::kRedDeep : palette::kPanel),
                       QColor(lost ? palette::kIce : palette::kGold)});
  }

  int Goals(int team) const { return QString::fromStdString(game_.Goals(team).Caption()).toInt(); }

  // Of several at a position the last, whose rating stands on the chip.
  void NamePlayers(int team, const RecordList& line) {
    for (const char* position : kRosterOrder) {
      QString name;
      for (int i = 0; i < line.ListCount(); ++i) {
        if (FieldView(line.List(i), Field::kPosition) != position) continue;
        name = Shown(FieldView(line.List(i), Field::kName));
      }
      page_.rink.SetName(team, position, name);
    }
  }

  void Follow() {
    NamePlayers(1, game_.Line1Stats);
    NamePlayers(2, game_.Line2Stats);
    const bool begun = game_.Period1.Value() > 0 || game_.Timer1.Enabled();
    for (const int team : {1, 2}) {
      int& lit = lit_[static_cast<std::size_t>(team - 1)];
      if (begun && Goals(team) > lit) page_.rink.FlashGoal(team);
      lit = Goals(team);
    }
    // From a goal to the next face-off the puck lies in the net.
    if (begun && game_.PassesLeft != kFaceOffDue) {
      page_.rink.SetPuck(game_.PuckTeam, Shown(FieldView(game_.PuckCarrier, Field::kPosition)));
    }
  }

  const Game& game_;
  Page page_;
  std::array<int, 2> lit_{};  // the scores that the lamp has told of
  std::function<QString()> own_team_;
};

// Shows the crests of the two, and marks the user's own team wherever the screen names it.
void MarkTeams(const Game& game, ScreenForm& form) {
  QObject::connect(&form, &ScreenForm::Refreshed, &form, [&game, &form, own_team = OwnTeam(game)] {
    const std::string own = own_team().toStdString();
    for (const Label* name : {&game.RHome, &game.GHome, &game.RVisitor, &game.GVisitor}) {
      ShowOwn(Part<QLabel>(form, name->Name().c_str()), !own.empty() && name->Caption() == own);
    }
    Part<CrestMark>(form, "look_crest1").SetTeam(QString::fromStdString(game.GHome.Caption()));
    Part<CrestMark>(form, "look_crest2").SetTeam(QString::fromStdString(game.GVisitor.Caption()));
  });
}

// Until the first period has begun, its page calls from beside the rosters.
void CallToGame(const Game& game, ScreenForm& form) {
  constexpr int kGamePage = 1;
  auto& pages = Part<MarkedTabs>(form, "XTab1");
  const auto follow = [&game, &pages] {
    const bool begun = game.Period1.Value() > 0 || game.Timer1.Enabled();
    const bool calls = !begun && game.XTab1.Front() != kGamePage;
    pages.Mark(calls ? kGamePage : -1, MarkedTabs::Manner::kCalling, "The game starts here");
  };
  follow();
  QObject::connect(&form, &ScreenForm::Refreshed, &pages, follow);
}

void ShowLine(ListView& line) {
  auto* delegate = new LineupDelegate(&line);
  delegate->StretchRows(1.5);
  line.setItemDelegate(delegate);
  GiveRoom(line, 34, 8);
}

}  // namespace

void DecorateGame(const Game& screen, ScreenForm& form) {
  UsePosterFonts();
  ShowLine(Part<ListView>(form, "Line1"));
  ShowLine(Part<ListView>(form, "Line2"));
  auto& events = Part<ListView>(form, "Events");
  events.setItemDelegate(new PlayDelegate(&events));
  events.LetRowsGrow();
  GiveRoom(events, 40, 6);
  new EmptyNote(events, "Play by play, from the first face-off on.");
  new Pin(Part<QWidget>(form, "Label5"), Qt::AlignTop | Qt::AlignRight, {0, 18, 8, 0});

  KeepPlaceWhenHidden(Part<QWidget>(form, "HighButton1"));
  auto& rink = Part<RinkView>(form, "Picture1");
  const std::array<QLabel*, 2> scores = {&Part<QLabel>(form, "Label3"),
                                         &Part<QLabel>(form, "Label4")};
  QObject::connect(&rink, &RinkView::LampChanged, &form, [scores](int team, bool lit) {
    SetLook(*scores[static_cast<std::size_t>(team - 1)], "lit", lit);
  });
  new Commentator(screen, form,
                  {rink,
                   *new IceBanner(rink),
                   Part<DeedRibbon>(form, "look_ribbon"),
                   Part<MatchTally>(form, "look_tally"),
                   {&Part<GoalSheet>(form, "look_goals1"), &Part<GoalSheet>(form, "look_goals2")}});
  MarkTeams(screen, form);
  CallToGame(screen, form);
  TellPlay(screen, form);
}

}  // namespace frostmark
