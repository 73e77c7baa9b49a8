// The games of one session or section of a results file, put together from its deals and its
// tables.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "formats/contents/contents.h"
#include "formats/results/lin_boards.h"
#include "formats/usebio/usebio_hands.h"

namespace tricklet {

/// What a file calls a board.
struct BoardLabel {
  std::string text;  ///< as the file writes it, fit to be shown; empty where it gives none
  int number = 0;    ///< that the text begins with, not negative; 0: none
  friend auto operator<=>(const BoardLabel&, const BoardLabel&) = default;
};

/// A board has a game for each complete deal that the file gives of it, and its tables go to the
/// game of their own deal. Where there is none it has one game, with the best deal that is given.
class UsebioGames {
 public:
  /// The board of this label, which begins in `line` where it is met for the first time. A board
  /// without a label is a new one each time.
  std::size_t Open(const BoardLabel& label, int line);

  /// The deal as the file gives it in hands. False when it is not complete.
  bool AddDeal(std::size_t board, const UsebioHands& hands);
  /// A line for "LIN.txt" with the table's own deal and auction, where it has them.
  void AddLinTable(std::size_t board, std::string line);
  /// A line for "LIN.txt" without a deal, or with `deal` where that is not null and complete.
  void AddTable(std::size_t board, std::string line, const HandTable* deal);
  void AddNote(std::size_t board, const std::string& note);

  /// All games in the order in which their boards were opened. What cannot be read of a deal goes
  /// to `unread`.
  std::vector<FoundGame> Games(std::vector<UnreadPart>& unread);

 private:
  using DealKey = std::array<std::uint16_t, std::size_t{kSeats} * kSuits>;

  struct Deal {
    DealRank rank = DealRank::None;
    HandTable hands;
    bool repeatsCard = false;
    bool fromLin = false;
    bool hasAuction = false;  // of its LIN record
    std::optional<Seat> dealer;
    std::vector<Call> calls;
  };

  struct Table {
    std::string line;
    std::size_t deal = 0;  // among the complete ones
  };

  struct Board {
    BoardLabel label;
    int line = 0;
    std::vector<Deal> complete;
    std::map<DealKey, std::size_t> known;  // of the complete ones
    Deal best;                             // of the others
    bool badHands = false;                 // hands that are no complete deal
    std::vector<Table> tables;
    std::string notes;
  };

  static DealKey KeyOf(const HandTable& hands);
  static std::size_t AddComplete(Board& board, Deal deal);
  bool AuctionsCount() const;
  static FoundGame GameOf(const Board& board, const Deal& deal, bool auctions);

  std::vector<Board> boards_;
  std::map<BoardLabel, std::size_t> byLabel_;
};

}  // namespace tricklet
