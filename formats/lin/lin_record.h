// What one LIN hand record says: board, deal, auction, players, play and a scorer's own tags.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/board.h"
#include "core/recorded_play.h"
#include "formats/lin/lin_text.h"
#include "formats/sink/board_sink.h"

namespace tricklet {

/// The tags that a scorer adds to the records of "LIN.txt", in their order there: tricks, score,
/// match points of either side, contract, declarer, lead, IMPs of North-South.
enum class LinResultTag : std::uint8_t { Qent, Qens, Qenns, Qenew, Qenc, Qend, Qenl, Qeni };
inline constexpr int kLinResultTags = 8;
inline constexpr EnumArray<LinResultTag, std::string_view, kLinResultTags> LinResultTagText{
    {"qent", "qens", "qenns", "qenew", "qenc", "qend", "qenl", "qeni"}};

struct LinRecord {
  int boardNumber = 0;      ///< of "ah|Board N|", else of "qx|oN|"; 0 when neither is there
  bool closedRoom = false;  ///< "qx|cN|"

  bool hasDeal = false;          ///< a hand holds a card
  bool repeatsCard = false;      ///< a card was given twice; it is in the last of its hands
  HandTable hands;               ///< not always 13 cards a hand
  std::optional<Seat> dealer;    ///< of the deal's digit, which need not be the board's dealer
  bool hasAuction = false;       ///< there is an "mb" field
  std::vector<Call> calls;       ///< from the dealer on; not always legal, and of any number
  CallRemarks remarks;           ///< of `calls`, as many: alerts ("!") and explanations ("an")
  PerSeat<std::string> players;  ///< bytes as in the record; empty where none is named
  std::vector<Card> play;        ///< the cards as they were played, the opening lead first
  std::optional<int> claim;      ///< tricks of the declarer as claimed, "mc|N|"
  EnumArray<LinResultTag, std::string, kLinResultTags> results;  ///< empty where not given
};

/// N of the value "Board N" of an "ah" field; 0 when it names no board.
int BoardNumberOfHeader(std::string_view header);

/// The card of a suit letter and a rank letter, whatever their case; the ten is "T".
std::optional<Card> CardOfLetters(char suit, char rank);

/// Reads a record that is already decoded (`ReadLinData`). Nothing is an error: what cannot be read
/// is passed over. When three hands are given and one is empty, that one receives every card that
/// no other hand holds.
LinRecord ParseLinRecord(std::string_view text);

/// The record gives a deal in which no card occurs twice and no hand has more than 13 cards.
bool CanBeDealt(const LinRecord& record);

/// The record's dealer is not the board's, so its auction would begin at the wrong seat.
bool HasForeignDealer(const LinRecord& record);

/// The board as a library stores it: number, hands, calls and the contract from them. An auction of
/// a dealer who is not the board's, or of more than 100 calls, is left out and goes to `leftOut`.
Board StorableBoard(const LinRecord& record, LeftOut& leftOut);

}  // namespace tricklet
