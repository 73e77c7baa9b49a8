// The board record: everything that the program knows of one board.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/call.h"
#include "core/holding.h"
#include "core/notation.h"

namespace tricklet {

/// The holdings of all four seats: `hands[seat][suit]`.
using HandTable = PerSeat<PerSuit<Holding>>;

/// Double-dummy tricks of each declarer in each strain. The values of a foreign file are kept as
/// they are; with one outside 0..13 the table does not count (`Board::makeableValid`).
using MakeableTable = EnumArray<TableSeat, EnumArray<TableStrain, std::int16_t, kStrains>, kSeats>;
bool IsPossible(const MakeableTable& table);

/// The current board. A value: copying it copies the board.
struct Board {
  int boardNumber = kFirstBoardNumber;  ///< 1..999; 0 while an import has not met a number yet
  HandTable hands;
  CallList calls;

  // Derived from `calls` by `GetContract`.
  std::string contract;  ///< "4Sx"; "All Pass"; empty when there is none
  Seat declarer = Seat::North;
  Strain trumps = Strain::NoTrump;
  int contractLevel = 0;  ///< 1..7; 0 when there is no contract

  MakeableTable makeable;
  bool makeableValid = false;  ///< `makeable` holds the table of this deal
  bool handChanged = false;    ///< there are changes that are not saved
  bool playMode = false;       ///< the board is being played

  int NumCalls() const { return calls.Count(); }
  Seat Dealer() const { return DealerOfBoard(boardNumber); }
  tricklet::Vulnerability Vulnerability() const { return VulOfBoard(boardNumber); }
};

constexpr std::string_view kAllPass = "All Pass";

/// The seat that holds `card`, as an index 0..3; -1 when it has not been dealt.
int SeatHolding(const HandTable& hands, Card card);

/// Gives `card` to `seat`.
void AddCard(HandTable& hands, Card card, Seat seat);

/// Reads the hand at the front of `text` (ranks of spades, hearts, diamonds, clubs with "." between
/// them, the ten written "10", up to the first blank) into `seat` and leaves in `text` what follows
/// that blank. Suits that are not given become void, and a hand given as "-" has no cards.
void GetHand(std::string_view& text, HandTable& hands, Seat seat);

int CardsIn(const PerSuit<Holding>& hand);
/// Four hands of thirteen cards, each card once.
bool IsComplete(const HandTable& hands);

bool HasCards(const PerSuit<Holding>& hand);
bool HasCards(const HandTable& hands);

/// Derives `contract`, `declarer`, `trumps` and `contractLevel` from the calls and the dealer. The
/// declarer is the first of the last bidder's side to have named the strain. The calls need not be
/// a legal auction; an unread one takes its turn and means nothing.
void GetContract(Board& board);

/// Sets `contract`, `contractLevel` and `trumps` from a text: "4S", "3NTx", "5nXX", "1C**". False,
/// and nothing changed, when it is no contract. The calls play no part in it.
bool SetContract(Board& board, std::string_view text);

/// "4Sx by South", "All Pass", or empty when there is no contract.
std::string ContractLabel(const Board& board);

/// Empties the board for a new deal: cards, calls, contract and table; it then counts as changed.
void ClearAll(Board& board);

}  // namespace tricklet
