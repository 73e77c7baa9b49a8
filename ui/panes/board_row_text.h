// What the row of a board says.
#pragma once

#include <QString>

#include "library/board_summary.h"
#include "ui/panes/board_list_model.h"

namespace tricklet::ui {

/// A cell: "7*" (changed), "S", "NS", "4\u2660x S" ("empty" for a board that is not stored),
/// "\u221250". Nothing where there is nothing to say.
QString CellText(const ListedBoard& board, BoardColumn column);

/// The whole row in words: "Board 7, dealer South, NS vulnerable, 4 spades doubled by South, score
/// minus 50, changes not saved".
QString RowText(const ListedBoard& board);

struct HeadTexts {
  QString shown;   ///< short
  QString inFull;  ///< in words
};
HeadTexts HeadText(BoardColumn column);

}  // namespace tricklet::ui
