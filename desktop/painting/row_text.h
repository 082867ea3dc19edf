#pragma once

#include <QString>
#include <string_view>

namespace frostmark {

// A part of a line as Qt's text.
inline QString Shown(std::string_view part) {
  return QString::fromUtf8(part.data(), static_cast<qsizetype>(part.size()));
}

}  // namespace frostmark
