// Editing the cards of a board by hand. The cards that no seat holds are the pack.
//
// Every edit leaves the board unsaved and its makeable table not valid, and no card in two hands.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/board.h"
#include "core/random_source.h"

namespace tricklet {

/// What every edit does besides moving cards.
void MarkEdited(Board& board);

/// Gives the card to a seat, or back to the pack. False, and nothing changed, when the seat already
/// holds 13 other cards. When the card is there already, the board stays as it is.
bool MoveCard(Board& board, Card card, std::optional<Seat> to);

enum class TakeCards : std::uint8_t {
  FromPack,      ///< a card that another seat holds is refused
  FromAllSeats,  ///< such a card is taken from that seat
};

/// Gives the seat the hand that `text` writes (see `ReadHandText`) in place of its cards, which go
/// back to the pack. Returns nothing when that was done; else the reason, for the person to read,
/// and nothing has changed. When the seat has that hand already, the board stays as it is.
[[nodiscard]] std::optional<std::string> SetHand(Board& board, Seat seat, std::string_view text,
                                                 TakeCards take = TakeCards::FromPack);

/// The boards that undoing a clear and undoing a fill go back to. To be emptied when another board
/// is loaded.
struct EditHistory {
  std::optional<Board> clearFrames;  ///< before the last `Clear`
  std::optional<Board> cardFrame;    ///< before the last `Fill` or `FillFourthHand`
};

/// There is a clear, or a fill, of this board to undo.
bool CanUndoClear(const Board& board, const EditHistory& history);
bool CanUndoFill(const Board& board, const EditHistory& history);

/// `cmdClear`: takes all cards and calls from the board. A clear of an empty board leaves the undo
/// as it was.
void Clear(Board& board, EditHistory& history);
/// `cmdUndoClear`: cards, auction and makeable table are again as before the last `Clear`. False
/// when there is none of this board to undo.
bool UndoClear(Board& board, EditHistory& history);

/// `cmdRandom`: deals the pack at random to the seats that lack cards. A full deal stays as it is.
/// False when `Random` refuses; the person is then told `kRandomisationError`.
bool Fill(Board& board, EditHistory& history, RandomSource& random);
/// Three seats hold 13 cards, and the fourth does not.
bool FourthHandIsOpen(const Board& board);
/// Gives the pack to that fourth seat. False, and nothing changed, when there is none.
bool FillFourthHand(Board& board, EditHistory& history);
/// `cmdUndoFill`: cards and makeable table are again as before the last fill. False when there is
/// none of this board to undo.
bool UndoFill(Board& board, EditHistory& history);

}  // namespace tricklet
