// What the table says in words: captions and the description for a screen reader.
#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "core/board.h"
#include "core/settings.h"
#include "ui/table/play_snapshot.h"
#include "ui/table/table_edit.h"

namespace tricklet::ui {

/// "Board 7"; no line where the number is not known.
QStringList BoardLine(const Board& board);
/// "Dealer South", "All vul".
QStringList DealerLines(const Board& board);

/// The ranks from the ace down with blanks between; a dash for a void.
QString HoldingLine(Holding holding);

// The cards of hands that are `hidden` are not told.

/// The board in words: "Board 1. Dealer North. Love all. North: spades A K 10 5; hearts ...".
QString DescribeTable(const Board& board, std::optional<Seat> toCall = std::nullopt,
                      const PerSeat<bool>& hidden = {});
/// The deal while it is edited: what waits for a card or a hand, the hands, and the pack.
QString DescribeEdit(const Board& board, const TableEdit& edit);
/// The play in words: whose turn it is, the trick on the table, the tricks won and the cards left.
QString DescribePlay(const Board& board, const PlaySnapshot& play,
                     const PerSeat<bool>& hidden = {});

}  // namespace tricklet::ui
