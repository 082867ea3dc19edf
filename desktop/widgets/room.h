#pragma once

class QWidget;

namespace frostmark {

// Makes sure that LIST never gets smaller than ROWS drawn rows of COLUMNS ordinary letters in the
// list's own font, also when that changes.
void GiveRoom(QWidget& list, int columns, int rows);

}  // namespace frostmark
