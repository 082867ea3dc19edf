#include "desktop/widgets/own_game.h"

#include <QPainter>

#include "desktop/painting/news_painter.h"
#include "desktop/painting/palette.h"

namespace frostmark {

OwnGame::OwnGame(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  hide();
}

void OwnGame::Tell(const QString& line, const QString& own_team) {
  const std::string text = line.toStdString();
  const auto news = ParseNewsLine(text);
  const bool own = news && news->Has(own_team.toStdString());
  line_ = own ? line : QString();
  own_team_ = own_team;
  setAccessibleName(own ? "Your last game: " + line : QString());
  setVisible(own);
  update();
}

QSize OwnGame::sizeHint() const {
  const int line = fontMetrics().height();
  return {line * 20, qRound(line * 2.1)};
}

void OwnGame::paintEvent(QPaintEvent* /*event*/) {
  const std::string text = line_.toStdString();
  const auto news = ParseNewsLine(text);
  if (!news) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor ground(palette::kGold);
  ground.setAlphaF(0.16F);
  painter.setPen(QPen(QColor(palette::kGold), 1.2));
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 8, 8);
  QFont large = font();
  large.setPixelSize(qRound(QFontInfo(large).pixelSize() * 1.2));
  painter.setFont(large);
  const QColor text_color(palette::kIce);
  PaintNews(painter, QRectF(rect()), *news, FortuneOf(*news, own_team_.toStdString()), text_color,
            text_color);
}

}  // namespace frostmark
