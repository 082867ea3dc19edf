#include "desktop/fonts.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

#include "desktop/painting/measures.h"

namespace frostmark {

double PlainPoints() {
  // What the desktop has set, before the application's own font takes its place.
  static const double users = QApplication::font().pointSizeF();
  return users * 1.15;
}

void UseShippedFonts(double zoom) {
  const double points = PlainPoints() * zoom;
  QFontDatabase::addApplicationFont(":/fonts/barlow/Barlow_400Regular.ttf");
  QFontDatabase::addApplicationFont(":/fonts/barlow/Barlow_600SemiBold.ttf");
  QFont plain("Barlow");
  plain.setPointSizeF(points);
  // Hinting moves the dot of an "i" onto its stem at small sizes.
  plain.setHintingPreference(QFont::PreferNoHinting);
  QApplication::setFont(plain);
}

void UsePosterFonts() {
  static const bool once = [] {
    QFontDatabase::addApplicationFont(":/fonts/archivo-black/ArchivoBlack_400Regular.ttf");
    QFontDatabase::addApplicationFont(":/fonts/macondo/Macondo_400Regular.ttf");
    QFont::insertSubstitution(kPosterFace, kPosterStandIn);
    QFont::insertSubstitution(kScriptFace, kScriptStandIn);
    return true;
  }();
  Q_UNUSED(once)
}

}  // namespace frostmark
