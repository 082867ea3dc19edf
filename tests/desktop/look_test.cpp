#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QHash>
#include <QHoverEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStringListModel>
#include <QTabBar>
#include <QVBoxLayout>
#include <QtTest>
#include <cmath>

#include "desktop/boxes.h"
#include "desktop/delegates/history_delegate.h"
#include "desktop/delegates/news_delegate.h"
#include "desktop/delegates/play_delegate.h"
#include "desktop/delegates/player_delegate.h"
#include "desktop/delegates/team_delegate.h"
#include "desktop/delegates/team_name_delegate.h"
#include "desktop/list_view.h"
#include "desktop/painting/palette.h"
#include "desktop/painting/position_badge.h"
#include "desktop/widgets/arrow_button.h"
#include "desktop/widgets/leave_mark.h"
#include "desktop/widgets/rating_chip.h"
#include "tests/desktop/person.h"

namespace frostmark::test {
namespace {

constexpr double kForText = 4.5;
constexpr double kForSigns = 3;
// Large enough for the middle of a stroke to have its full color.
constexpr int kEnlarged = 3;

double Luminance(QRgb color) {
  const auto part = [](int value) {
    const double share = value / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(qRed(color)) + 0.7152 * part(qGreen(color)) + 0.0722 * part(qBlue(color));
}

double Contrast(QRgb one, QRgb other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// PLACE of WIDGET as it is on its window, enlarged. No more than that is painted.
QImage PictureOf(QWidget& widget, const QRect& place) {
  QImage picture(place.size() * kEnlarged, QImage::Format_RGB32);
  picture.setDevicePixelRatio(kEnlarged);
  picture.fill(QColor(palette::kNight));
  QWidget& window = *widget.window();
  window.render(&picture, QPoint(),
                QRegion(QRect(widget.mapTo(&window, place.topLeft()), place.size())));
  return picture;
}

QImage PictureOf(QWidget& widget) { return PictureOf(widget, widget.rect()); }

QRgb GroundOf(const QImage& picture) {
  QHash<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  }
  QRgb ground = 0;
  int most = 0;
  for (auto color = counts.cbegin(); color != counts.cend(); ++color) {
    if (color.value() > most) {
      most = color.value();
      ground = color.key();
    }
  }
  return ground;
}

// The contrast of the palest of the words on PICTURE: words are what stands apart by more than
// half a letter.
double PalestWord(const QImage& picture, int gap) {
  const QRgb ground = GroundOf(picture);
  double palest = 100;
  double word = 0;
  int blank = 0;
  for (int x = 0; x < picture.width(); ++x) {
    double column = 1;
    for (int y = 0; y < picture.height(); ++y) {
      const QRgb color = picture.pixel(x, y);
      if (color != ground) column = std::max(column, Contrast(color, ground));
    }
    if (column > 1.2) {
      word = std::max(word, column);
      blank = 0;
    } else if (++blank == gap && word > 0) {
      palest = std::min(palest, word);
      word = 0;
    }
  }
  return word > 0 ? std::min(palest, word) : palest;
}

QImage Inner(const QImage& picture, int border) {
  const int inset = border * kEnlarged;
  return picture.copy(picture.rect().adjusted(inset, inset, -inset, -inset));
}

// A window with a card on it, the palest ground that there is.
class Look : public testing::Test {
 protected:
  Look() {
    auto* layout = new QVBoxLayout(&window_);
    card_ = new QFrame(&window_);
    card_->setProperty("role", "card");
    layout->addWidget(card_);
    on_card_ = new QVBoxLayout(card_);
  }

  void ShowWindow() {
    window_.show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    Settle();
  }

  template <class Widget>
  Widget& Add(Widget* widget) {
    on_card_->addWidget(widget);
    return *widget;
  }

  QWidget window_;
  QFrame* card_;
  QVBoxLayout* on_card_;
};

TEST_F(Look, EveryButtonIsReadableInEveryState) {
  auto& elsewhere = Add(new QPushButton("Elsewhere"));
  for (const char* role : {"", "primary", "big", "bigprimary", "mark", "link"}) {
    auto& button = Add(new QPushButton(QString(role) == "mark" ? "x" : "&Begin"));
    button.setProperty("role", role);
    ShowWindow();
    const auto expect = [&](const char* state) {
      Settle();
      EXPECT_GE(PalestWord(Inner(PictureOf(button), 3), 1000), kForText) << role << " " << state;
    };
    elsewhere.setFocus();
    expect("at rest");
    button.setAttribute(Qt::WA_UnderMouse);
    button.update();
    expect("hovered");
    button.setDown(true);
    expect("hovered and pressed");
    button.setAttribute(Qt::WA_UnderMouse, false);
    expect("pressed");
    button.setDown(false);
    button.setFocus();
    expect("focused");
    button.setEnabled(false);
    expect("disabled");
  }
}

TEST_F(Look, TheFocusChangesNothingInsideAButton) {
  auto& elsewhere = Add(new QPushButton("Elsewhere"));
  for (const char* role : {"", "primary", "big", "bigprimary"}) {
    auto& button = Add(new QPushButton("&Begin"));
    button.setProperty("role", role);
    ShowWindow();
    elsewhere.setFocus();
    Settle();
    const QImage without = PictureOf(button);
    button.setFocus();
    Settle();
    const QImage with = PictureOf(button);
    EXPECT_NE(with, without) << role;
    // Without the round corners.
    const QRect inside =
        with.rect().adjusted(9 * kEnlarged, 3 * kEnlarged, -9 * kEnlarged, -3 * kEnlarged);
    EXPECT_TRUE(with.copy(inside) == without.copy(inside)) << role;
  }
}

TEST_F(Look, TheFocusIsSeen) {
  auto& button = Add(new QPushButton("Begin"));
  ShowWindow();
  button.setFocus();
  Settle();
  const QImage picture = PictureOf(button);
  EXPECT_GE(Contrast(picture.pixel(picture.width() / 2, kEnlarged), palette::kPanel), kForSigns);
}

struct Rows {
  const char* what;
  RowDelegate* delegate;
  QString text;
  double signs;  // how much of the row's left end is a sign, in line heights
};

TEST_F(Look, EveryRowIsReadableInEveryState) {
  const auto own_team = [] { return QString("Boston Braves"); };
  const auto stays = [](int) { return Fate::kStays; };
  const Rows rows[] = {
      {"news", new NewsDelegate(own_team, &window_), "Denver Blizzard beat Miami Heat 3 to 1", 1.5},
      {"own news", new NewsDelegate(own_team, &window_), "Boston Braves tied Miami Heat at 1", 1.5},
      {"history", new HistoryDelegate(own_team, &window_),
       "Denver Blizzard has added James Smith to the team. Overall: 88", 2},
      {"own history", new HistoryDelegate(own_team, &window_),
       "Boston Braves has added James Smith to the team. Overall: 88", 2},
      {"pass", new PlayDelegate(&window_), "James Smith passes it to John Brown", 2},
      {"goal", new PlayDelegate(&window_), "James Smith SCORES! Assist by: John Brown", 2},
      {"team", new TeamDelegate(stays, own_team, &window_), "(3-1-0) Denver Blizzard", 0},
      {"own team", new TeamDelegate(stays, own_team, &window_), "(3-1-0) Boston Braves", 0.2},
      {"name", new TeamNameDelegate(&window_), "Denver Blizzard", 2},
      {"other", new PlayerDelegate(&window_), "nobody in particular", 0},
  };
  for (const Rows& row : rows) {
    auto& list = Add(new ListView);
    QStringListModel model(QStringList(4, row.text));
    list.setModel(&model);
    list.setItemDelegate(row.delegate);
    list.setFixedSize(460, 160);
    ShowWindow();
    const auto expect = [&](int number, const char* state) {
      Settle();
      const QRect place = list.visualRect(model.index(number, 0));
      const int from = qRound(row.signs * list.fontMetrics().height()) + 4;
      const QImage picture = PictureOf(*list.viewport(), place.adjusted(from, 3, -4, -3));
      const int gap = list.fontMetrics().height() * kEnlarged / 3;
      EXPECT_GE(PalestWord(picture, gap), kForText) << row.what << " " << state;
    };
    expect(1, "at rest");
    QTest::mouseMove(list.viewport(), list.visualRect(model.index(2, 0)).center());
    expect(2, "hovered");
    list.setCurrentIndex(model.index(1, 0));
    expect(1, "selected");
    list.setFocus();
    expect(1, "selected with the focus");
    list.setEnabled(false);
    expect(2, "disabled");
    expect(1, "selected and disabled");
    list.setItemDelegate(nullptr);
    list.hide();
  }
}

// A text is measured within its frame, which has colors of its own.
void ExpectReadable(QWidget& widget, const char* state, int border = 3) {
  Settle();
  EXPECT_GE(PalestWord(Inner(PictureOf(widget), border), 1000), kForText)
      << widget.metaObject()->className() << " " << state;
}

TEST_F(Look, EveryEntryIsReadableInEveryState) {
  auto& elsewhere = Add(new QPushButton("Elsewhere"));
  auto& edit = Add(new QLineEdit("Montreal"));
  auto& combo = Add(new QComboBox);
  combo.addItem("Rank F");
  ShowWindow();
  for (QWidget* widget : {static_cast<QWidget*>(&edit), static_cast<QWidget*>(&combo)}) {
    elsewhere.setFocus();
    ExpectReadable(*widget, "at rest");
    widget->setAttribute(Qt::WA_UnderMouse);
    widget->update();
    ExpectReadable(*widget, "hovered");
    widget->setFocus();
    ExpectReadable(*widget, "hovered with the focus");
    widget->setAttribute(Qt::WA_UnderMouse, false);
    ExpectReadable(*widget, "with the focus");
    widget->setEnabled(false);
    ExpectReadable(*widget, "disabled");
    widget->setEnabled(true);
  }
  edit.setFocus();
  edit.selectAll();
  ExpectReadable(edit, "selected");
  // An empty one says what is to be chosen.
  combo.setPlaceholderText("Select Rank");
  combo.setCurrentIndex(-1);
  ExpectReadable(combo, "empty");
  combo.setEnabled(false);
  ExpectReadable(combo, "empty and disabled");
}

TEST_F(Look, TheOpenListOfAComboIsReadable) {
  auto& combo = Add(new QComboBox);
  combo.addItems({"Rank F", "Rank E", "Rank D"});
  ShowWindow();
  combo.showPopup();
  Settle();
  QAbstractItemView& list = *combo.view();
  for (int lit : {0, 2}) {
    list.setCurrentIndex(list.model()->index(lit, 0));
    for (int row = 0; row < 3; ++row) {
      QTest::mouseMove(list.viewport(), list.visualRect(list.model()->index(lit, 0)).center());
      Settle();
      const QRect place = list.visualRect(list.model()->index(row, 0));
      EXPECT_GE(PalestWord(PictureOf(*list.viewport(), place.adjusted(4, 3, -4, -3)), 1000),
                kForText)
          << "row " << row << ", lit " << lit;
    }
  }
  combo.hidePopup();
}

TEST_F(Look, EveryTabIsReadableInEveryState) {
  auto& elsewhere = Add(new QPushButton("Elsewhere"));
  auto& tabs = Add(new QTabBar);
  for (const char* tab : {"Main", "Alerts", "Roster"}) tabs.addTab(tab);
  tabs.setTabEnabled(2, false);
  ShowWindow();
  const auto expect = [&](const char* state) {
    for (int tab = 0; tab < tabs.count(); ++tab) {
      Settle();
      // Without the line under the one in front.
      EXPECT_GE(PalestWord(PictureOf(tabs, tabs.tabRect(tab).adjusted(0, 0, 0, -5)), 1000),
                kForText)
          << tabs.tabText(tab).toStdString() << " " << state;
    }
  };
  elsewhere.setFocus();
  expect("at rest");
  for (int tab = 0; tab < tabs.count(); ++tab) {
    const QPoint over = tabs.tabRect(tab).center();
    QHoverEvent hover(QEvent::HoverMove, over, over, QPointF(-1, -1));
    tabs.setAttribute(Qt::WA_UnderMouse);
    QApplication::sendEvent(&tabs, &hover);
    expect("one hovered");
  }
  tabs.setFocus();
  expect("with the focus");
  tabs.setEnabled(false);
  expect("disabled");
}

// The line under the tab in front, in the middle of it.
QRgb LineUnder(QTabBar& tabs) {
  const QRect tab = tabs.tabRect(tabs.currentIndex());
  const QImage line = PictureOf(tabs, QRect(tab.center().x(), tab.bottom() - 1, 1, 1));
  return line.pixel(1, 1);
}

TEST_F(Look, TheTabInFrontIsSeen) {
  auto& elsewhere = Add(new QPushButton("Elsewhere"));
  auto& tabs = Add(new QTabBar);
  tabs.addTab("Main");
  ShowWindow();
  elsewhere.setFocus();
  Settle();
  const QRgb at_rest = LineUnder(tabs);
  EXPECT_GE(Contrast(at_rest, palette::kPanel), kForSigns);
  tabs.setFocus();
  Settle();
  const QRgb with_focus = LineUnder(tabs);
  EXPECT_GE(Contrast(with_focus, palette::kPanel), kForSigns);
  EXPECT_NE(at_rest, with_focus);
}

TEST_F(Look, TheFrameOfAnEntryWithTheFocusIsSeen) {
  auto& edit = Add(new QLineEdit("Montreal"));
  auto& combo = Add(new QComboBox);
  ShowWindow();
  for (QWidget* widget : {static_cast<QWidget*>(&edit), static_cast<QWidget*>(&combo)}) {
    widget->setFocus();
    Settle();
    const QImage picture = PictureOf(*widget);
    const QRgb frame = picture.pixel(picture.width() / 2, kEnlarged);
    EXPECT_GE(Contrast(frame, palette::kPanel), kForSigns) << widget->metaObject()->className();
    EXPECT_GE(Contrast(frame, palette::kDeep), kForSigns) << widget->metaObject()->className();
  }
}

TEST_F(Look, TheSignsOfSmallControlsAreSeenInEveryState) {
  auto& elsewhere = Add(new QPushButton("Elsewhere"));
  auto& leave = Add(new LeaveMark(card_));
  auto& arrow = Add(new ArrowButton(card_));
  auto& combo = Add(new QComboBox);
  combo.addItem(QString());
  ShowWindow();
  for (QWidget* widget : {static_cast<QWidget*>(&leave), static_cast<QWidget*>(&arrow)}) {
    const auto expect = [&](const char* state) {
      Settle();
      const QRect middle(widget->width() / 4, widget->height() / 4, widget->width() / 2,
                         widget->height() / 2);
      EXPECT_GE(PalestWord(PictureOf(*widget, middle), 1000), kForSigns)
          << widget->metaObject()->className() << " " << state;
    };
    elsewhere.setFocus();
    expect("at rest");
    widget->setAttribute(Qt::WA_UnderMouse);
    widget->update();
    expect("hovered");
    static_cast<QAbstractButton*>(widget)->setDown(true);
    expect("pressed");
    static_cast<QAbstractButton*>(widget)->setDown(false);
    widget->setAttribute(Qt::WA_UnderMouse, false);
    widget->setFocus();
    expect("with the focus");
    widget->setEnabled(false);
    expect("disabled");
  }
  const QRect arrow_of_combo(combo.width() - 24, 4, 20, combo.height() - 8);
  EXPECT_GE(PalestWord(PictureOf(combo, arrow_of_combo), 1000), kForSigns) << "combo";
}

TEST_F(Look, TheHandleOfAScrollBarIsSeen) {
  QScrollBar& bar = Add(new QScrollBar(Qt::Horizontal));
  bar.setRange(0, 100);
  bar.setPageStep(100);
  ShowWindow();
  const auto handle = [&] {
    Settle();
    const QImage picture = PictureOf(bar);
    return picture.pixel(picture.width() / 2, picture.height() / 2);
  };
  EXPECT_GE(Contrast(handle(), palette::kDeep), kForSigns) << "on a list";
  const QRgb at_rest = handle();
  bar.setAttribute(Qt::WA_UnderMouse);
  QHoverEvent hover(QEvent::HoverMove, bar.rect().center(), bar.rect().center(), QPointF(-1, -1));
  QApplication::sendEvent(&bar, &hover);
  EXPECT_NE(handle(), at_rest) << "hovered";
  EXPECT_GE(Contrast(handle(), palette::kDeep), kForSigns) << "hovered";
}

TEST_F(Look, TheStretchOfABarIsSeen) {
  QProgressBar& bar = Add(new QProgressBar);
  bar.setTextVisible(false);
  bar.setFixedWidth(200);
  bar.setValue(50);
  ShowWindow();
  const QImage picture = PictureOf(bar);
  const int y = picture.height() / 2;
  EXPECT_GE(
      Contrast(picture.pixel(picture.width() / 4, y), picture.pixel(picture.width() * 3 / 4, y)),
      kForSigns);
}

TEST_F(Look, EveryOtherTextIsReadable) {
  for (const char* role : {"", "title", "heading", "value", "caption", "figure", "note", "team",
                           "versus", "champion"}) {
    auto& label = Add(new QLabel("Boston"));
    label.setProperty("role", role);
    ShowWindow();
    EXPECT_GE(PalestWord(PictureOf(label), 1000), kForText) << role;
    label.setEnabled(false);
    Settle();
    EXPECT_GE(PalestWord(PictureOf(label), 1000), kForText) << role << " disabled";
    label.hide();
  }
}

TEST_F(Look, TheFocusOfAListIsSeen) {
  auto& list = Add(new ListView);
  list.setFixedSize(200, 80);
  ShowWindow();
  list.setFocus();
  Settle();
  const QImage top = PictureOf(list, QRect(100, 0, 1, 6));
  EXPECT_GE(Contrast(top.pixel(1, kEnlarged), palette::kPanel), kForSigns);
}

TEST_F(Look, EveryRatingOnTheIceIsReadable) {
  for (const QRgb jersey : {palette::kBlueDeep, palette::kRedDeep}) {
    auto& chip = Add(new RatingChip);
    chip.setText("88");
    chip.SetColor(jersey);
    chip.setFixedSize(chip.sizeHint());
    ShowWindow();
    // The ground is palest at its top, between the rim and the figures.
    const int high = chip.height();
    const QImage ground = PictureOf(chip, QRect(chip.width() / 2, high / 5, 1, high / 10));
    const QImage figures =
        PictureOf(chip, QRect(high / 4, high / 4, chip.width() - high / 2, high / 2));
    double brightest = 0;
    for (int x = 0; x < figures.width(); ++x) {
      brightest = std::max(brightest, Luminance(figures.pixel(x, figures.height() / 2)));
    }
    EXPECT_GT(brightest, 0.95) << "white";
    for (int y = 0; y < ground.height(); ++y) {
      EXPECT_GE(Contrast(ground.pixel(0, y), qRgb(255, 255, 255)), kForText) << y;
    }
  }
}

TEST_F(Look, EveryBadgeIsReadable) {
  for (const char* position : {"GO", "RD", "LD", "RF", "CF", "LF", "??"}) {
    QImage badge(90, 60, QImage::Format_RGB32);
    badge.fill(QColor(palette::kDeep));
    QPainter painter(&badge);
    QFont font = QApplication::font();
    font.setPixelSize(40);
    painter.setFont(font);
    PaintPositionBadge(painter, badge.rect(), position);
    painter.end();
    EXPECT_GE(PalestWord(badge.copy(8, 8, 74, 44), 1000), kForText) << position;
  }
}

TEST(Letters, AnIKeepsItsDot) {
  EXPECT_EQ(QApplication::font().hintingPreference(), QFont::PreferNoHinting);
}

TEST(Boxes, TheSignIsLevelWithTheTextAndTheBoxIsWideEnough) {
  for (const BoxIcon icon : {BoxIcon::kStop, BoxIcon::kInformation, BoxIcon::kQuestion}) {
    SignedBox box(icon, "File saved!", nullptr);
    box.show();
    Settle();
    auto* words = box.findChild<QLabel*>("qt_msgbox_label");
    auto* sign = box.findChild<QLabel*>("qt_msgboxex_icon_label");
    ASSERT_NE(words, nullptr);
    ASSERT_NE(sign, nullptr);
    // The sign that belongs to the icon, in the size of two lines of the text.
    const QPixmap shown = sign->pixmap(Qt::ReturnByValue);
    const int size_of_sign = box.fontMetrics().height() * 2;
    EXPECT_EQ(shown.toImage(), BoxSign(icon, size_of_sign, box.devicePixelRatioF()).toImage());
    EXPECT_GE(box.width(), 24 * QFontInfo(QApplication::font()).pixelSize());
    const auto middle = [&box](const QWidget& widget, double height) {
      return widget.mapTo(&box, QPoint()).y() + height / 2;
    };
    const double size = sign->pixmap(Qt::ReturnByValue).deviceIndependentSize().height();
    const QMargins around = sign->contentsMargins();
    EXPECT_NEAR(middle(*words, words->height()), middle(*sign, sign->height()), 1.5)
        << size << " " << around.top();
  }
}

TEST(Boxes, TheSignsAreSeen) {
  for (const BoxIcon icon : {BoxIcon::kStop, BoxIcon::kInformation, BoxIcon::kQuestion}) {
    QImage picture(96, 96, QImage::Format_RGB32);
    picture.fill(QColor(palette::kNight));
    QPainter(&picture).drawPixmap(0, 0, BoxSign(icon, 96, 1));
    // White on the disc, and the disc's edge on the box.
    EXPECT_GE(PalestWord(picture.copy(28, 20, 40, 56), 1000), kForSigns);
    QImage edge = picture.copy(0, 44, 10, 8);
    double best = 0;
    for (int x = 0; x < edge.width(); ++x) {
      best = std::max(best, Contrast(edge.pixel(x, 4), palette::kNight));
    }
    EXPECT_GE(best, kForSigns);
  }
  EXPECT_TRUE(BoxSign(BoxIcon::kNone, 96, 1).isNull());
}

}  // namespace
}  // namespace frostmark::test
