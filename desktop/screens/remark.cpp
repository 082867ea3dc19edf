#include "desktop/screens/remark.h"

#include <QWidget>

#include "desktop/keys.h"
#include "ui/screen.h"

namespace frostmark {

void Remark(const Screen& screen, QWidget& widget, const QString& remark) {
  const Control* control = screen.Find(widget.objectName().toStdString());
  Q_ASSERT(control != nullptr);
  const QString tip = TipOf(*control);
  const QString whole = remark.isEmpty() ? tip : QStringLiteral("%1. %2").arg(tip, remark);
  widget.setToolTip(whole);
  widget.setAccessibleDescription(whole);
}

}  // namespace frostmark
