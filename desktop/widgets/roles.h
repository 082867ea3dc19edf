#pragma once

class QVariant;
class QWidget;

namespace frostmark {

// Sets the property NAME by which the style sheet chooses WIDGET's look, and has it look again.
void SetLook(QWidget& widget, const char* name, const QVariant& value);

// Keeps the place of WIDGET in its layout free while it is hidden, so that nothing around it moves.
void KeepPlaceWhenHidden(QWidget& widget);

}  // namespace frostmark
