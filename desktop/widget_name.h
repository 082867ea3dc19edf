#pragma once

#include <QString>

#include "ui/control.h"

namespace frostmark {

// What the widget of CONTROL is called on its form: "List1(0)" is "List1_0" there, since those must
// be names of C++.
inline QString WidgetName(const Control& control) {
  QString name = QString::fromStdString(control.Name());
  return name.replace('(', '_').remove(')');
}

}  // namespace frostmark
