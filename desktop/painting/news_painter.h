#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <optional>
#include <string_view>

#include "records/lines/news_line.h"

class QPainter;

namespace frostmark {

// How a game ended for one of its teams.
enum class Fortune { kWon, kLost, kTied };

// How NEWS ended for TEAM; nothing when it did not play.
std::optional<Fortune> FortuneOf(const NewsLine& news, std::string_view team);

// The letter of FORTUNE: W, L or T.
QString LetterOf(Fortune fortune);

// Draws FORTUNE into RECT, a square: its letter in a disc of its color.
void PaintFortune(QPainter& painter, const QRectF& rect, Fortune fortune);

// Draws the result of NEWS into RECT in the painter's font: the teams on both sides of the score,
// which stands at the same place in every RECT of one width, the winner bold and in TEXT, the loser
// in QUIET. OWN is drawn at the left end, whose room stays free without it.
void PaintNews(QPainter& painter, const QRectF& rect, const NewsLine& news,
               std::optional<Fortune> own, const QColor& text, const QColor& quiet);

}  // namespace frostmark
