#include "desktop/preferences.h"

#include <QSettings>
#include <QVariant>

namespace frostmark::preferences {
namespace {

constexpr const char* kZoom = "zoom";
constexpr const char* kCenter = "center";
constexpr const char* kFullScreen = "fullScreen";

QVariant Read(const char* key) {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, "Frostmark", "Frostmark").value(key);
}

// At once: the process ends without any farewell.
void Write(const char* key, const QVariant& value) {
  QSettings settings(QSettings::IniFormat, QSettings::UserScope, "Frostmark", "Frostmark");
  settings.setValue(key, value);
  settings.sync();
}

}  // namespace

double Zoom() {
  bool number = false;
  const double zoom = Read(kZoom).toDouble(&number);
  return number && zoom > 0 ? zoom : 1;
}

void SetZoom(double zoom) { Write(kZoom, zoom); }

std::optional<QPoint> Center() {
  const QVariant center = Read(kCenter);
  if (!center.canConvert<QPoint>()) return std::nullopt;
  return center.toPoint();
}

void SetCenter(const QPoint& center) { Write(kCenter, center); }

bool FullScreen() { return Read(kFullScreen).toBool(); }

void SetFullScreen(bool full) { Write(kFullScreen, full); }

}  // namespace frostmark::preferences
