#pragma once

#include <QFont>
#include <QSizeF>

namespace frostmark {

// The columns of a player's row, from the font alone, so that the heading stands over them.
struct PlayerColumns {
  explicit PlayerColumns(const QFont& font);

  double gap;
  QSizeF badge;
  double mark;    // of a row that stands out, where rows do
  double number;  // the overall rating
  double name;    // an ordinary one
  double age;
  double shortest_bar;
  double longest_bar;
};

}  // namespace frostmark
