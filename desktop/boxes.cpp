#include "desktop/boxes.h"

#include <QInputDialog>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "desktop/painting/palette.h"

namespace frostmark {

namespace {

// All signs are drawn in a square of 32 by 32.
constexpr double kSquare = 32;
constexpr QPointF kMiddle(kSquare / 2, kSquare / 2);

QPen Stroke(double width) {
  return {QColor(Qt::white), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void PaintDisc(QPainter& painter, QRgb color, QRgb edge) {
  painter.setBrush(QColor(color));
  painter.setPen(QPen(QColor(edge), 2));
  painter.drawEllipse(kMiddle, 14.5, 14.5);
}

// An eight-sided plate with a bar across.
void PaintStop(QPainter& painter) {
  QPolygonF plate;
  for (int corner = 0; corner < 8; ++corner) {
    const double angle = (corner + 0.5) * std::acos(-1.0) / 4;
    plate << kMiddle + 15.0 * QPointF(std::cos(angle), std::sin(angle));
  }
  painter.setBrush(QColor(palette::kRedDeep));
  painter.setPen(QPen(QColor(palette::kRedBright), 2));
  painter.drawPolygon(plate);
  painter.setPen(Stroke(4));
  painter.drawLine(QPointF(9.5, 16), QPointF(22.5, 16));
}

void PaintInformation(QPainter& painter) {
  PaintDisc(painter, palette::kBlueDeep, palette::kBlueBright);
  painter.setPen(Stroke(4));
  painter.drawPoint(QPointF(16, 9.5));
  painter.drawLine(QPointF(16, 15.5), QPointF(16, 23));
}

void PaintQuestion(QPainter& painter) {
  PaintDisc(painter, palette::kBlueDeep, palette::kBlueBright);
  QPainterPath hook(QPointF(11.5, 12.5));
  hook.cubicTo(11.5, 6.5, 20.5, 6.5, 20.5, 12.5);
  hook.cubicTo(20.5, 15.5, 16, 15.5, 16, 19);
  painter.setPen(Stroke(3.4));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(hook);
  painter.setPen(Stroke(4));
  painter.drawPoint(QPointF(16, 24));
}

}  // namespace

QPixmap BoxSign(BoxIcon icon, int size, double ratio) {
  if (icon == BoxIcon::kNone) return {};
  QPixmap sign((QSizeF(size, size) * ratio).toSize());
  sign.setDevicePixelRatio(ratio);
  sign.fill(Qt::transparent);
  QPainter painter(&sign);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / kSquare, size / kSquare);
  switch (icon) {
    case BoxIcon::kStop:
      PaintStop(painter);
      break;
    case BoxIcon::kInformation:
      PaintInformation(painter);
      break;
    case BoxIcon::kQuestion:
      PaintQuestion(painter);
      break;
    case BoxIcon::kNone:
      break;
  }
  return sign;
}

SignedBox::SignedBox(BoxIcon icon, const QString& text, QWidget* parent) : QMessageBox(parent) {
  setTextFormat(Qt::PlainText);
  setText(text);
  ensurePolished();
  const int size = fontMetrics().height() * 2;
  const QPixmap sign = BoxSign(icon, size, devicePixelRatioF());
  if (sign.isNull()) return;
  setIconPixmap(sign);
  // A single line stands level with the middle of the sign.
  auto* words = findChild<QLabel*>("qt_msgbox_label");
  const auto* around = findChild<QLabel*>("qt_msgboxex_icon_label");
  if (words == nullptr || around == nullptr) return;
  around->ensurePolished();
  words->setMinimumHeight(around->sizeHint().height());
  words->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

Answer ShowMessageBox(const MessageBox& box, QWidget* parent) {
  SignedBox shown(box.icon, QString::fromStdString(box.text), parent);
  const bool asks = box.buttons == BoxButtons::kYesNo;
  if (asks) {
    shown.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    shown.setEscapeButton(QMessageBox::No);  // closing the box is a No as well
    shown.setDefaultButton(QMessageBox::No);
  }
  const bool yes = shown.exec() == QMessageBox::Yes;
  if (!asks) return Answer::kOk;
  return yes ? Answer::kYes : Answer::kNo;
}

std::string AskForText(const std::string& prompt, QWidget* parent) {
  QInputDialog dialog(parent);
  dialog.setLabelText(QString::fromStdString(prompt));
  return dialog.exec() == QDialog::Accepted ? dialog.textValue().toStdString() : std::string();
}

}  // namespace frostmark
