// What a hand-record file holds, before anyone has decided what a library makes of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/board.h"
#include "formats/results/lin_file.h"

namespace tricklet {

/// What is wrong with a deal by itself, whatever the library. Bits of `FoundGame::troubles`.
enum class DealTrouble : std::uint8_t {
  NoCards = 1,           ///< the file gives no card of it
  Incomplete = 2,        ///< some hand has fewer than 13 cards, and none too many
  Impossible = 4,        ///< a card occurs twice, or a hand has more than 13
  OddTable = 8,          ///< its double-dummy table has another number of rows than 20
  WrongCheck = 16,       ///< its check value is another than that of its letters
  OverlongAuction = 32,  ///< more than 100 calls, which no board holds: the board has none
  OutsideRange = 64      ///< its number is outside the range of boards that the file says it has
};

class DealTroubles {
 public:
  constexpr bool Has(DealTrouble trouble) const { return (bits_ & Bit(trouble)) != 0; }
  constexpr void Add(DealTrouble trouble) {
    bits_ = static_cast<std::uint8_t>(bits_ | Bit(trouble));
  }
  constexpr bool None() const { return bits_ == 0; }

 private:
  static constexpr std::uint8_t Bit(DealTrouble trouble) {
    return static_cast<std::uint8_t>(trouble);
  }
  std::uint8_t bits_ = 0;
};

/// One record of the file: a deal, and the tables whose results come with it. The same deal played
/// at two tables is two of these where the file has a record for each.
struct FoundGame {
  std::string label;  ///< the number as the file writes it, UTF-8: "12", "4-1"; empty: none
  int number = 0;     ///< the number that `label` begins with, whatever it is; 0: none
  std::string room;   ///< "Open", "Closed"; empty where the file names none
  int line = 0;       ///< where the record begins, the first line of the file being 1; 0: unknown
  Board board;        ///< hands, calls with their contract, and table; its number is not set
  std::optional<Seat> dealer;                            ///< as the file gives it
  std::optional<tricklet::Vulnerability> vulnerability;  ///< as the file gives it
  DealTroubles troubles;
  /// Lines for "LIN.txt", one for each table, under the number `number`; `RenumberedLin` gives them
  /// another.
  std::vector<std::string> records;
  std::string notes;  ///< commentary, UTF-8, lines divided by "\n"
};

/// A part of the file that cannot be read.
struct UnreadPart {
  int line = 0;        ///< the first line of the file being 1; 0: unknown
  std::string label;   ///< of the board that it belongs to, as the file writes it; may be empty
  std::string text;    ///< what stands there
  std::string reason;  ///< what is wrong, where the text does not show it; may be empty
};

/// One session, or section, of a file; most files are one.
struct FoundSection {
  std::string name;              ///< "Section A"; empty where the file does not divide itself
  std::vector<FoundGame> games;  ///< in the order of the file
  LinFile results;  ///< scoring, teams and names of the pairs; its records are those of the games
};

/// A whole file in memory.
struct FileContents {
  std::string format;                  ///< for the person: "PBN 2.1", "DLM", "LIN", "USEBIO 1.2"
  std::string encoding;                ///< for the person: "UTF-8", "Latin-1"
  std::vector<FoundSection> sections;  ///< at least one where there is a game
  std::vector<UnreadPart> unread;      ///< in the order of the file
  /// Deals that are no games but that an import without a look stores: they only fill the file.
  int fillers = 0;
};

/// Adds to `game.troubles` what its hands show: `NoCards`, `Incomplete`, `Impossible`.
void NoteDealTroubles(FoundGame& game);

}  // namespace tricklet
