#include "cli/board_text.h"

#include <array>

#include "analysis/makeable_view.h"
#include "analysis/par.h"
#include "core/columns.h"
#include "core/statistics.h"
#include "publish/call_rows.h"

namespace tricklet::cli {
namespace {

constexpr std::size_t kColumn = 26;  // of the diagram: West, North and South, East
constexpr std::size_t kSeatWidth = 7;
constexpr std::size_t kNumberWidth = 4;

std::string SuitLine(const Board& board, Seat seat, Suit suit) {
  const Holding holding = board.hands[seat][suit];
  return std::string(SuitSymbol[suit]) + (holding.Empty() ? " -" : HoldingText(holding));
}

void AppendHand(std::string& text, const Board& board, Seat seat) {
  const std::string indent(kColumn, ' ');
  AppendLine(text, indent + std::string(SeatName[seat]));
  for (const Suit suit : kAllSuits) AppendLine(text, indent + SuitLine(board, seat, suit));
}

void AppendWestAndEast(std::string& text, const Board& board) {
  AppendLine(text, PadRight("West", 2 * kColumn) + "East");
  for (const Suit suit : kAllSuits) {
    AppendLine(text, PadRight(SuitLine(board, Seat::West, suit), 2 * kColumn) +
                         SuitLine(board, Seat::East, suit));
  }
}

void AppendAuction(std::string& text, const Board& board) {
  if (board.NumCalls() == 0) return;
  text += CallRowsText(CallRows(board));
  if (!board.contract.empty()) AppendLine(text, "\nContract: " + ContractLabel(board));
}

void AppendStatistics(std::string& text, const Board& board) {
  const Statistics statistics = GetStats(board.hands);
  std::string line = "\n" + PadRight("", kSeatWidth) + " HCP LTC";
  for (const Suit suit : kAllSuits) line += PadLeft(std::string(SuitSymbol[suit]), kNumberWidth);
  AppendLine(text, line);
  for (const Seat seat : kAllSeats) {
    line = PadRight(std::string(SeatName[seat]), kSeatWidth) +
           PadLeft(std::to_string(statistics.seatHcp[seat]), kNumberWidth) +
           PadLeft(std::to_string(statistics.seatLtc[seat]), kNumberWidth);
    for (const Suit suit : kAllSuits) {
      line += PadLeft(std::to_string(statistics.suitLength[seat][suit]), kNumberWidth);
    }
    AppendLine(text, line);
  }
  AppendLine(text, "Losers: NS " + std::to_string(statistics.pairLtc[Side::NorthSouth]) + ", EW " +
                       std::to_string(statistics.pairLtc[Side::EastWest]));
}

void AppendTable(std::string& text, const Board& board, bool contracts) {
  if (!board.makeableValid) return;
  const MakeableView view = MakeMakeableView(board.makeable, contracts);
  AppendLine(text, view.caption);
  std::string line = PadRight("", kSeatWidth);
  for (const Suit suit : kAllSuits) line += PadLeft(std::string(SuitSymbol[suit]), kNumberWidth);
  AppendLine(text, line + PadLeft("NT", kNumberWidth));
  for (const MakeableView::Row& row : view.rows) {
    line = PadRight(row.seat, kSeatWidth);
    for (const std::string& cell : row.cells) line += PadLeft(cell, kNumberWidth);
    AppendLine(text, line);
  }
  AppendLine(text, ParText(ComputePar(board.makeable, board.Dealer(), board.Vulnerability())));
}

}  // namespace

std::string HandsText(const Board& board) {
  std::string text;
  AppendHand(text, board, Seat::North);
  AppendWestAndEast(text, board);
  AppendHand(text, board, Seat::South);
  return text;
}

std::string AuctionText(const Board& board) {
  std::string text;
  AppendAuction(text, board);
  return text;
}

std::string TableText(const Board& board, bool contracts) {
  std::string text;
  AppendTable(text, board, contracts);
  return text;
}

std::string BoardText(const Board& board, const std::string& libraryName,
                      const Settings& settings) {
  std::string text;
  AppendLine(text, libraryName + " - Board " + std::to_string(board.boardNumber));
  AppendLine(text, "Dealer " + std::string(SeatName[board.Dealer()]) + ", " +
                       std::string(VulText[board.Vulnerability()]));
  text += "\n" + HandsText(board);
  const std::string auction = AuctionText(board);
  if (!auction.empty()) text += "\n" + auction;
  AppendStatistics(text, board);
  const std::string table = TableText(board, settings.makeableContract);
  if (!table.empty()) text += "\n" + table;
  return text;
}

}  // namespace tricklet::cli
