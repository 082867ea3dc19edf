#include <QAbstractButton>
#include <QEvent>
#include <QGridLayout>

#include "desktop/decorations.h"
#include "desktop/delegates/player_delegate.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/screens/remark.h"
#include "desktop/stage.h"
#include "desktop/widgets/empty_note.h"
#include "desktop/widgets/frost_drift.h"
#include "desktop/widgets/pin.h"
#include "desktop/widgets/roles.h"
#include "desktop/widgets/room.h"
#include "desktop/widgets/title_scene.h"
#include "shell/startup.h"

namespace frostmark {
namespace {

void ShowPlayers(ListView& list) {
  list.setItemDelegate(new PlayerDelegate(&list));
  list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  new EmptyNote(list, "Generate rolls a team.");
}

// Takes the keyboard to the panel when it opens, where a team is rolled first. Sees to the room of
// its lists when it is first shown: until then they need none, and the program starts without
// looking at them.
class PanelOpening : public QObject {
 public:
  explicit PanelOpening(QWidget& panel) : QObject(&panel), panel_(panel) {
    panel_.installEventFilter(this);
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::Show) return false;
    if (!opened_) {
      for (auto* list : panel_.findChildren<ListView*>()) GiveRoom(*list, 43, 6);
    }
    opened_ = true;
    Part<QWidget>(panel_, "HighButton7").setFocus();
    return false;
  }

 private:
  QWidget& panel_;
  bool opened_ = false;
};

// Keeps the menu below the game's name, which is as large as its picture, whatever the letters are.
class NameRoom : public QObject {
 public:
  explicit NameRoom(TitleScene& scene) : QObject(&scene), scene_(scene) {
    scene.installEventFilter(this);
    Keep();
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) Keep();
    return false;
  }

 private:
  void Keep() {
    static_cast<QGridLayout*>(scene_.layout())
        ->setRowMinimumHeight(0, TitleScene::NameHeight(Stage::Size().height()));
  }

  TitleScene& scene_;
};

// Dims "Load" while there is nothing to load. The disk is looked at when the user has asked for the
// button, or has opened or closed the panel, and never before.
class LoadReminder : public QObject {
 public:
  LoadReminder(const Startup& screen, ScreenForm& form)
      : QObject(&form), screen_(screen), button_(Part<QAbstractButton>(form, "HighButton5")) {
    connect(&form, &ScreenForm::Refreshed, this, &LoadReminder::Follow);
    Follow();
  }

 private:
  void Follow() {
    const bool shown = screen_.HighButton5.Visible();
    const bool panel = screen_.Frame1.Visible();
    if (shown == shown_ && panel == panel_) return;
    shown_ = shown;
    panel_ = panel;
    if (!shown) return;
    const bool none = !screen_.HasSavedGame();
    SetLook(button_, "dimmed", none);
    Remark(screen_, button_, none ? "There is none yet" : "");
  }

  const Startup& screen_;
  QAbstractButton& button_;
  bool shown_ = false;
  bool panel_ = false;
};

// The red button is what comes next: while the panel is open a button on it, first the one that
// rolls a team and then the one that begins with it.
void ShowNext(const Startup& screen, ScreenForm& form) {
  const auto show = [&form](const char* name, bool next) {
    SetLook(Part<QAbstractButton>(form, name), "role", next ? "bigprimary" : "big");
  };
  const auto follow = [&screen, show] {
    const bool rolled = screen.List1.ListCount() + screen.List2.ListCount() > 0;
    show("HighButton2", !screen.Frame1.Visible());
    show("HighButton7", !rolled);
    show("HighButton6", rolled);
  };
  follow();
  QObject::connect(&form, &ScreenForm::Refreshed, &form, follow);
}

}  // namespace

void DecorateStartup(const Startup& screen, ScreenForm& form) {
  KeepPlaceWhenHidden(Part<QWidget>(form, "HighButton4"));
  KeepPlaceWhenHidden(Part<QWidget>(form, "HighButton5"));
  new NameRoom(Part<TitleScene>(form, "look_scene"));
  new FrostDrift(Part<TitleScene>(form, "look_scene"));
  ShowPlayers(Part<ListView>(form, "List1"));
  ShowPlayers(Part<ListView>(form, "List2"));
  new PanelOpening(Part<QWidget>(form, "Frame1"));
  new Pin(Part<QWidget>(form, "Label3"), Qt::AlignTop | Qt::AlignRight, {0, 8, 8, 0});
  new Pin(Part<QWidget>(form, "Label12"), Qt::AlignLeft | Qt::AlignVCenter);

  ShowNext(screen, form);
  new LoadReminder(screen, form);
}

}  // namespace frostmark
