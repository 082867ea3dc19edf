#include "desktop/style.h"

#include <QApplication>
#include <QColor>
#include <QFile>
#include <QFont>
#include <QGridLayout>
#include <QList>
#include <QPalette>
#include <QScreen>
#include <QStyleFactory>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "desktop/fonts.h"
#include "desktop/painting/measures.h"
#include "desktop/painting/palette.h"
#include "desktop/stage.h"

namespace frostmark {
namespace {

constexpr std::pair<const char*, QRgb> kColors[] = {
    {"deep", palette::kDeep},
    {"night", palette::kNight},
    {"panel", palette::kPanel},
    {"raised", palette::kRaised},
    {"edge", palette::kEdge},
    {"ice", palette::kIce},
    {"frost", palette::kFrost},
    {"faint", palette::kFaint},
    {"blue", palette::kBlue},
    {"blueDeep", palette::kBlueDeep},
    {"blueBright", palette::kBlueBright},
    {"red", palette::kRed},
    {"redDeep", palette::kRedDeep},
    {"redBright", palette::kRedBright},
    {"gold", palette::kGold},
    {"green", palette::kGreen},
};

double zoom_now = 1;

// The name that begins at AT in TEXT: as many letters as there are.
QString NameAt(const QString& text, qsizetype at) {
  qsizetype end = at;
  while (end < text.size() && text[end].isLetter()) ++end;
  return text.mid(at, end - at);
}

QString Families(const char* face, const char* stand_in) {
  return QStringLiteral("\"%1\", \"%2\"").arg(face, stand_in);
}

QString ValueOf(const QString& name) {
  if (name == "poster") return Families(kPosterFace, kPosterStandIn);
  if (name == "script") return Families(kScriptFace, kScriptStandIn);
  if (name == "corner") return QString::number(kWindowCorner) + "px";
  for (const auto& [known, color] : kColors) {
    if (name == QLatin1String(known)) return QColor(color).name();
  }
  qFatal("The style sheet names what neither palette nor measures have: %s", qPrintable(name));
  return {};
}

// Font sizes in the style sheet are multiples of the user's own, which its language cannot say.
QString InPoints(QString sheet) {
  static const QString kSize = QStringLiteral("font-size: ");
  const double plain = QApplication::font().pointSizeF();
  for (auto at = sheet.indexOf(kSize); at >= 0; at = sheet.indexOf(kSize, at + 1)) {
    const qsizetype begin = at + kSize.size();
    const qsizetype end = sheet.indexOf(QLatin1String("em"), begin);
    const double points = sheet.mid(begin, end - begin).toDouble() * plain;
    sheet.replace(begin, end + 2 - begin, QString::number(points, 'f', 1) + QLatin1String("pt"));
  }
  return sheet;
}

QPalette Colors() {
  QPalette colors{QColor(palette::kRaised), QColor(palette::kNight)};
  colors.setColor(QPalette::Base, QColor(palette::kDeep));
  colors.setColor(QPalette::AlternateBase, QColor(palette::kPanel));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::BrightText, QPalette::ToolTipText}) {
    colors.setColor(role, QColor(palette::kIce));
    colors.setColor(QPalette::Disabled, role, QColor(palette::kFaint));
  }
  colors.setColor(QPalette::PlaceholderText, QColor(palette::kFrost));
  colors.setColor(QPalette::Highlight, QColor(palette::kBlueDeep));
  colors.setColor(QPalette::HighlightedText, Qt::white);
  colors.setColor(QPalette::Link, QColor(palette::kBlueBright));
  colors.setColor(QPalette::ToolTipBase, QColor(palette::kPanel));
  return colors;
}

// What Designer has said of LAYOUT: its margins, then its spaces across and down.
QList<int> DesignedSpaces(QLayout& layout) {
  static constexpr const char* kDesigned = "look_designed_spaces";
  const QVariant known = layout.property(kDesigned);
  if (known.isValid()) return known.value<QList<int>>();
  const QMargins margins = layout.contentsMargins();
  const auto* grid = qobject_cast<QGridLayout*>(&layout);
  QList<int> spaces = {margins.left(),
                       margins.top(),
                       margins.right(),
                       margins.bottom(),
                       grid != nullptr ? grid->horizontalSpacing() : layout.spacing(),
                       grid != nullptr ? grid->verticalSpacing() : layout.spacing()};
  layout.setProperty(kDesigned, QVariant::fromValue(spaces));
  return spaces;
}

void ZoomLayout(QLayout& layout) {
  QList<int> spaces = DesignedSpaces(layout);
  for (int& space : spaces) space = qRound(space * zoom_now);
  layout.setContentsMargins(spaces[0], spaces[1], spaces[2], spaces[3]);
  if (auto* grid = qobject_cast<QGridLayout*>(&layout)) {
    grid->setHorizontalSpacing(spaces[4]);
    grid->setVerticalSpacing(spaces[5]);
  } else {
    layout.setSpacing(spaces[4]);
  }
}

}  // namespace

QString StyleSheet() {
  QFile file(":/style/frostmark.qss");
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QString text = QString::fromUtf8(file.readAll());
  QString sheet;
  qsizetype done = 0;
  for (qsizetype at = text.indexOf('@'); at >= 0; at = text.indexOf('@', done)) {
    const QString name = NameAt(text, at + 1);
    sheet += QStringView(text).mid(done, at - done);
    sheet += ValueOf(name);
    done = at + 1 + name.size();
  }
  return InPoints(sheet + text.mid(done));
}

double Zoom() { return zoom_now; }

double FittingZoom(double wanted) {
  // Hardly read any more, but all of it can still be reached.
  constexpr double kLeast = 0.3;
  const QSize room = QGuiApplication::primaryScreen()->availableSize();
  const QSize stage = Stage::Size(PlainPoints());
  return std::clamp(std::min(static_cast<double>(room.width()) / stage.width(),
                             static_cast<double>(room.height()) / stage.height()),
                    kLeast, std::max(wanted, kLeast));
}

void ZoomLayouts(const QWidget& form) {
  for (auto* layout : form.findChildren<QLayout*>()) ZoomLayout(*layout);
}

void DressApplication(double zoom) {
  zoom_now = zoom;
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(Colors());
  UseShippedFonts(zoom);
  qApp->setStyleSheet(StyleSheet());
}

}  // namespace frostmark
