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

/// The captions of the four hands; empty ones are not shown. Declarer and dummy are told by a word
/// where the settings ask for it. A board without cards has none.
PerSeat<QString> TableCaptions(const Board& board, const Settings& settings);

/// The captions while the board is being played: "North: Dummy", "East: to play".
PerSeat<QString> PlayCaptions(const Board& board, const Settings& settings,
                              std::optional<Seat> onPlay);
/// The captions while hands are edited: all with the seat's name, of empty hands too.
PerSeat<QString> EditCaptions(const Board& board, const Settings& settings);
/// "Pack: 12 cards".
QString PackCaption(const Board& board);

/// The captions during an auction: the player to call is told in words too.
PerSeat<QString> CallCaptions(const Board& board, const Settings& settings, Seat toCall);

/// "Board 7"; no line where the number is not known.
QStringList BoardLine(const Board& board);
/// "Dealer South", "All vul".
QStringList DealerLines(const Board& board);

/// The ranks from the ace down with blanks between; a dash for a void.
QString HoldingLine(Holding holding);

/// The board in words: "Board 1. Dealer North. Love all. North: spades A K 10 5; hearts ...".
QString DescribeTable(const Board& board, std::optional<Seat> toCall = std::nullopt);
/// The deal while it is edited: what waits for a card or a hand, the hands, and the pack.
QString DescribeEdit(const Board& board, const TableEdit& edit);
/// The play in words: whose turn it is, the trick on the table, the tricks won and the cards left.
QString DescribePlay(const Board& board, const PlaySnapshot& play);

}  // namespace tricklet::ui
