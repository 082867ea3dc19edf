#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QSet>
#include <cmath>

#include "desktop/fonts.h"
#include "desktop/painting/palette.h"
#include "desktop/painting/team_crest.h"
#include "desktop/widgets/crest_mark.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

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

// A name of a team for every NUMBER.
QString Team(int number) { return QStringLiteral("City%1 Bears%2").arg(number % 31).arg(number); }

QImage PictureOf(const QString& team) {
  UsePosterFonts();
  QImage picture(172, 200, QImage::Format_ARGB32_Premultiplied);
  picture.fill(QColor(palette::kNight));
  QPainter painter(&picture);
  PaintCrest(painter, picture.rect(), team);
  return picture;
}

int Count(const QImage& picture, const QColor& color) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += picture.pixel(x, y) == color.rgb();
  }
  return count;
}

// The same on every machine: these are what they were on the first.
TEST(Crests, FollowFromTheNameAlone) {
  EXPECT_EQ(CrestOf("Boston Braves"), CrestOf("Boston Braves"));
  EXPECT_EQ(CrestOf("Boston Braves").letters, "BB");
  EXPECT_EQ(CrestOf("San Jose Sharks").letters, "SJ");
  const TeamCrest crest = CrestOf("Denver Skeletons");
  EXPECT_EQ(crest.shape, 3);
  EXPECT_EQ(crest.pattern, 2);
  EXPECT_EQ(crest.field.name(), "#161a20");
  EXPECT_EQ(crest.ornament.name(), "#ffa9b8");
}

TEST(Crests, TheirColorsStandApartFromEachOtherAndFromEveryGround) {
  QSet<int> shapes;
  QSet<int> patterns;
  QSet<QRgb> fields;
  for (int i = 0; i < 2000; ++i) {
    const TeamCrest crest = CrestOf(Team(i));
    shapes << crest.shape;
    patterns << crest.pattern;
    fields << crest.field.rgb();
    ASSERT_GE(Contrast(crest.field.rgb(), crest.ornament.rgb()), 4.5)
        << crest.field.name().toStdString() << " " << crest.ornament.name().toStdString();
    for (const QRgb ground : {palette::kDeep, palette::kNight, palette::kPanel, palette::kRaised,
                              palette::kBlueDeep, palette::kRedDeep}) {
      ASSERT_GE(Contrast(crest.Rim().rgb(), ground), 3) << crest.Rim().name().toStdString();
    }
  }
  EXPECT_EQ(shapes.size(), TeamCrest::kShapes);
  EXPECT_EQ(patterns.size(), TeamCrest::kPatterns);
  EXPECT_EQ(fields.size(), 16);
}

TEST(Crests, TeamsOfAWorldCanBeToldApart) {
  int twins = 0;
  QSet<QString> seen;
  for (int i = 0; i < 36; ++i) {
    const TeamCrest crest = CrestOf(Team(i));
    const QString look = QStringLiteral("%1 %2 %3 %4")
                             .arg(crest.shape)
                             .arg(crest.pattern)
                             .arg(crest.field.rgb())
                             .arg(crest.ornament.rgb());
    twins += seen.contains(look);
    seen << look;
  }
  EXPECT_LE(twins, 1);
}

TEST(Crests, ShowBothColorsAndLetters) {
  for (int i = 0; i < 60; ++i) {
    const TeamCrest crest = CrestOf(Team(i));
    const QImage picture = PictureOf(Team(i));
    EXPECT_GT(Count(picture, crest.field), 3000) << Team(i).toStdString();
    // The letters are the only ornament in the middle, on nothing but the field.
    const QImage middle = picture.copy(30, 66, 112, 68);
    EXPECT_GT(Count(middle, crest.ornament), 700) << Team(i).toStdString();
    EXPECT_GT(Count(middle, crest.field), 2000) << Team(i).toStdString();
    EXPECT_EQ(picture.pixel(86, 60), crest.field.rgb()) << Team(i).toStdString();
    EXPECT_EQ(picture.pixel(1, 198), QColor(palette::kNight).rgb()) << "outside the shield";
  }
}

TEST(Crests, StandBesideTheNamesOnTheBoardAndTheChampions) {
  WindowGame game;
  game.Start();
  Game& match = game.program().game;
  match.Show();
  match.GHome.SetCaption("Denver Blizzard");
  match.GVisitor.SetCaption("Miami Heat");
  FResults& results = game.program().f_results;
  results.Show();
  results.Champ.SetCaption("Boston Braves");
  Settle();
  EXPECT_EQ(game.On<CrestMark>(match, "look_crest1").Team(), "Denver Blizzard");
  EXPECT_EQ(game.On<CrestMark>(match, "look_crest2").Team(), "Miami Heat");
  auto& mark = game.On<CrestMark>(results, "look_crest");
  EXPECT_EQ(mark.Team(), "Boston Braves");
  const QImage picture = mark.grab().toImage();
  const TeamCrest crest = CrestOf("Boston Braves");
  EXPECT_GT(Count(picture, crest.field) + Count(picture, crest.ornament),
            mark.sizeHint().width() * mark.sizeHint().height() / 4);
}

}  // namespace
}  // namespace frostmark::test
