#include "desktop/widgets/roles.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace frostmark {

void SetLook(QWidget& widget, const char* name, const QVariant& value) {
  if (widget.property(name) == value) return;
  widget.setProperty(name, value);
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
}

void KeepPlaceWhenHidden(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

}  // namespace frostmark
