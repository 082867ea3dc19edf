#pragma once

class QString;
class QWidget;

namespace frostmark {

class Screen;

// Adds REMARK to what the tooltip of WIDGET, and a screen reader, say of the control of SCREEN that
// it shows; an empty one takes it away again.
void Remark(const Screen& screen, QWidget& widget, const QString& remark);

}  // namespace frostmark
