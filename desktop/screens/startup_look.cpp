#include <QAbstractButton>
#include <QEvent>
#include <QGridLayout>

#include "desktop/decorations.h"
#include "desktop/delegates/player_delegate.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"
#include "desktop/stage.h"
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

}  // namespace

void DecorateStartup(const Startup& screen, ScreenForm& form) {
  KeepPlaceWhenHidden(Part<QWidget>(form, "HighButton4"));
  KeepPlaceWhenHidden(Part<QWidget>(form, "HighButton5"));
  new NameRoom(Part<TitleScene>(form, "look_scene"));
  ShowPlayers(Part<ListView>(form, "List1"));
  ShowPlayers(Part<ListView>(form, "List2"));
  new PanelOpening(Part<QWidget>(form, "Frame1"));
  new Pin(Part<QWidget>(form, "Label3"), Qt::AlignTop | Qt::AlignRight, {0, 8, 8, 0});
  new Pin(Part<QWidget>(form, "Label12"), Qt::AlignLeft | Qt::AlignVCenter);

  // While the panel is open the way on is its own button.
  auto& franchise = Part<QAbstractButton>(form, "HighButton2");
  const auto follow = [&screen, &franchise] {
    SetLook(franchise, "role", screen.Frame1.Visible() ? "big" : "bigprimary");
  };
  follow();
  QObject::connect(&form, &ScreenForm::Refreshed, &form, follow);
}

}  // namespace frostmark
