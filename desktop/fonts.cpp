#include "desktop/fonts.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

namespace frostmark {

void UseShippedFonts() {
  QFontDatabase::addApplicationFont(":/fonts/barlow/Barlow_400Regular.ttf");
  QFontDatabase::addApplicationFont(":/fonts/barlow/Barlow_600SemiBold.ttf");
  QFont plain("Barlow");
  // The size stays the one that the user has set for his desktop.
  plain.setPointSizeF(QApplication::font().pointSizeF() * 1.15);
  QApplication::setFont(plain);
}

void UsePosterFonts() {
  static const bool once = [] {
    QFontDatabase::addApplicationFont(":/fonts/archivo-black/ArchivoBlack_400Regular.ttf");
    QFontDatabase::addApplicationFont(":/fonts/macondo/Macondo_400Regular.ttf");
    QFont::insertSubstitution("Arial Black", "Archivo Black");
    QFont::insertSubstitution("Papyrus", "Macondo");
    return true;
  }();
  Q_UNUSED(once)
}

}  // namespace frostmark
