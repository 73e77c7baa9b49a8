#include "analysis/get_dds.h"

#include "analysis/dds_types.h"
#include "analysis/deal_text.h"

namespace tricklet {

MakeableTable ToMakeable(const SolverRecord& record) {
  constexpr std::array kSolverStrains{Strain::Spades, Strain::Hearts, Strain::Diamonds,
                                      Strain::Clubs, Strain::NoTrump};
  MakeableTable table;
  for (const Seat seat : kAllSeats) {
    for (const Strain strain : kSolverStrains) {
      const auto position =
          static_cast<std::size_t>(seat) * kStrains + static_cast<std::size_t>(strain);
      table[ToTableSeat(seat)][ToTableStrain(strain)] =
          static_cast<std::int16_t>(record.at(position));
    }
  }
  return table;
}

std::string DealWarning(const HandTable& hands) {
  for (const Seat seat : kAllSeats) {
    int cardCount = 0;
    const std::string hand = HandDealText(hands[seat], cardCount);
    if (cardCount == kCardsInHand) continue;
    return "Warning - hand " + std::string(SeatName[seat]) + " - " + hand + " has " +
           std::to_string(cardCount) + " cards.";
  }
  if (SolverDealText(hands).size() >= dds::kDealTextSize) return "String too long";
  return {};
}

std::vector<MakeableTable> SolveDeals(Solver& solver, const std::vector<HandTable>& deals,
                                      std::string& failure) {
  std::vector<std::string> texts;
  texts.reserve(deals.size());
  for (const HandTable& hands : deals) texts.push_back(SolverDealText(hands));
  std::vector<SolverRecord> records(deals.size());
  failure = solver.Solve(texts, records);
  std::vector<MakeableTable> tables;
  if (!failure.empty()) return tables;
  tables.reserve(records.size());
  for (const SolverRecord& record : records) tables.push_back(ToMakeable(record));
  return tables;
}

bool GetDDS(Board& board, Solver& solver, Host& host, bool showWarnings) {
  std::string warning = DealWarning(board.hands);
  if (warning.empty()) {
    const std::vector<MakeableTable> tables = SolveDeals(solver, {board.hands}, warning);
    if (warning.empty()) {
      board.makeable = tables.front();
      board.makeableValid = true;
      board.handChanged = true;
      return true;
    }
  }
  if (showWarnings) host.TellError(warning);
  return false;
}

}  // namespace tricklet
