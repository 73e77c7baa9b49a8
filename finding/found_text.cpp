#include "finding/found_text.h"

#include <algorithm>
#include <functional>

#include "core/text.h"

namespace tricklet {

std::string FoundContractText(const FoundBoard& board) {
  const auto& summary = board.listed.summary;
  if (!summary) return {};
  if (summary->contractLevel == 0) return summary->contract;
  return summary->contract + ' ' + SeatName[summary->declarer].front();
}

std::string FoundParText(const FoundBoard& board) {
  constexpr std::string_view kPar = "Par ";
  return board.par ? ParText(*board.par).substr(kPar.size()) : std::string();
}

std::string FoundPointsText(const FoundBoard& board) {
  if (!board.complete) return {};
  const auto sum = [&](Seat seat) { return board.points[seat] + board.points[PartnerOf(seat)]; };
  return std::to_string(sum(Seat::North)) + "-" + std::to_string(sum(Seat::East));
}

std::array<int, kSuits> FoundLengths(const FoundBoard& board, Seat seat) {
  std::array<int, kSuits> lengths{};
  for (const Suit suit : kAllSuits) {
    lengths.at(static_cast<std::size_t>(suit)) = board.hands[seat][suit].Count();
  }
  std::sort(lengths.begin(), lengths.end(), std::greater<>());
  return lengths;
}

std::string FoundShapeText(const FoundBoard& board, Seat seat) {
  std::string text;
  if (!board.complete) return text;
  for (const int length : FoundLengths(board, seat)) {
    text += (text.empty() ? "" : "-") + std::to_string(length);
  }
  return text;
}

std::string FoundNoteText(const FoundBoard& board) {
  std::string_view rest = board.note;
  return std::string(TakeLine(rest));
}

}  // namespace tricklet
