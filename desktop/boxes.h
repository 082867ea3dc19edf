#pragma once

#include <QMessageBox>
#include <string>

#include "ui/front_end.h"

namespace frostmark {

// The sign of ICON in the program's own colors, SIZE pixels wide at the scale RATIO. Null for no
// icon.
QPixmap BoxSign(BoxIcon icon, int size, double ratio);

// A message box with TEXT as it stands beside the sign of ICON, over PARENT.
class SignedBox : public QMessageBox {
 public:
  SignedBox(BoxIcon icon, const QString& text, QWidget* parent);
};

// Shows BOX over PARENT until it is answered.
Answer ShowMessageBox(const MessageBox& box, QWidget* parent);

// Asks for a text over PARENT; the empty text when the user gives none.
std::string AskForText(const std::string& prompt, QWidget* parent);

}  // namespace frostmark
