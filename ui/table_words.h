// What the table says in words: captions and the description for a screen reader.
#pragma once

#include <QString>
#include <QStringList>

#include "core/board.h"
#include "core/settings.h"

namespace tricklet::ui {

/// The captions of the four hands; empty ones are not shown. Declarer and dummy are told by a word
/// where the settings ask for it. A board without cards has none.
PerSeat<QString> TableCaptions(const Board& board, const Settings& settings);

/// "Board 7"; no line where the number is not known.
QStringList BoardLine(const Board& board);
/// "Dealer South", "All vul".
QStringList DealerLines(const Board& board);

/// The ranks from the ace down with blanks between; a dash for a void.
QString HoldingLine(Holding holding);

/// The board in words: "Board 1. Dealer North. Love all. North: spades A K 10 5; hearts ...".
QString DescribeTable(const Board& board);

}  // namespace tricklet::ui
