// A board as a diagram for letters, mails and forums.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/board.h"
#include "core/holding.h"

namespace tricklet {

/// The play of a board as far as it has come.
struct DiagramPlay {
  PerSeat<std::optional<Card>> trick;  ///< on the table
  std::optional<Seat> onPlay;          ///< nobody when all tricks are played or claimed
  PerSide<int> tricks;                 ///< won so far
  std::string result;                  ///< "Contract made, score +420"; empty before the end
};

/// What is seen of a board at one moment.
struct Diagram {
  Board board;                 ///< its hands are the cards that are held now, 0..13 each
  PerSeat<bool> hidden{};      ///< nothing is told of these hands
  PerSeat<std::string> names;  ///< of the players, UTF-8; empty where not known
  bool auction = true;         ///< the calls are told; the contract is told in any case
  std::optional<DiagramPlay> play;
};

/// "Board 7", "Dealer South", "All vulnerable"; without the first where the number is not known.
std::vector<std::string> DiagramHeading(const Diagram& diagram);

/// The hand is not hidden, and has cards.
bool HandSeen(const Diagram& diagram, Seat seat);

/// The ranks from the ace down without blanks, "AK105"; a dash for a void.
std::string DiagramRanks(Holding holding);

/// The calls in columns of West, North, East and South, with suit symbols; empty where nobody
/// calls.
using CallRow = std::array<std::string, kSeats>;
std::vector<CallRow> DiagramCalls(const Diagram& diagram);

/// What stands below the hands: "4♠ by South", "NS: 4 · EW: 2 · West to play", the result.
std::vector<std::string> DiagramFoot(const Diagram& diagram);

/// Lines in the usual compass layout, UTF-8, each ending in "\n". Columns are made of blanks, for a
/// font in which all characters are equally wide.
std::string DiagramText(const Diagram& diagram);

/// Tables of HTML that bring their styles along, so that they look the same in a word processor and
/// in a mail; UTF-8. Suit symbols have four colours, or with `fourColours` off red and black. Every
/// text is escaped.
std::string DiagramHtml(const Diagram& diagram, bool fourColours);

}  // namespace tricklet
