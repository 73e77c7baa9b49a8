// A board as a diagram for letters, mails and forums.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/board.h"
#include "core/holding.h"
#include "publish/call_rows.h"

namespace tricklet {

/// The play of a board as far as it has come.
struct SeenPlay {
  PerSeat<std::optional<Card>> trick;  ///< on the table
  std::optional<Seat> onPlay;          ///< nobody when all tricks are played or claimed
  PerSide<int> tricks;                 ///< won so far
  std::string result;                  ///< "Contract made, score +420"; empty before the end
};

/// What is seen of a board at one moment.
struct SeenBoard {
  Board board;                 ///< its hands are the cards that are held now, 0..13 each
  PerSeat<bool> hidden{};      ///< nothing is told of these hands
  PerSeat<std::string> names;  ///< of the players, UTF-8; empty where not known
  bool auction = true;         ///< the calls are told; the contract is told in any case
  std::optional<SeenPlay> play;
};

/// "Board 7", "Dealer South", "All vulnerable"; without the first where the number is not known.
std::vector<std::string> DiagramHeading(const SeenBoard& seen);

/// The hand is not hidden, and has cards.
bool HandSeen(const SeenBoard& seen, Seat seat);

/// The card that the seat has played to the trick on the table.
std::optional<Card> CardOnTable(const SeenBoard& seen, Seat seat);

/// The ranks from the ace down without blanks, "AK105"; a dash for a void.
std::string DiagramRanks(Holding holding);

/// The calls; empty where they are not told.
std::vector<CallRow> DiagramCalls(const SeenBoard& seen);

/// What stands below the hands: "4♠ by South", "NS: 4 · EW: 2 · West to play", the result.
std::vector<std::string> DiagramFoot(const SeenBoard& seen);

/// Lines in the usual compass layout, UTF-8, each ending in "\n". Columns are made of blanks, for a
/// font in which all characters are equally wide.
std::string DiagramText(const SeenBoard& seen);

/// Tables of HTML that bring their styles along, so that they look the same in a word processor and
/// in a mail; UTF-8. Suit symbols have four colours, or with `fourColours` off red and black. Every
/// text is escaped.
std::string DiagramHtml(const SeenBoard& seen, bool fourColours);

}  // namespace tricklet
