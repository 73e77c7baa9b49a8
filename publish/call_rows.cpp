#include "publish/call_rows.h"

#include <utility>

#include "core/columns.h"
#include "publish/sheet_text.h"

namespace tricklet {
namespace {

std::string CallText(const CallList& calls, int index) {
  const Call call = calls[index];
  if (!call.IsBid()) return calls.ShownAt(index);
  return std::to_string(call.Level()) + std::string(StrainSymbol(ToStrain(call.Denomination())));
}

void AppendRow(std::string& text, const CallRow& row) {
  constexpr std::size_t kWidth = 7;
  std::string line;
  for (const std::string& call : row) line += PadRight(call + ' ', kWidth);  // any may be long
  AppendLine(text, std::move(line));
}

}  // namespace

std::vector<CallRow> CallRows(const Board& board) {
  std::vector<CallRow> rows;
  const auto first = static_cast<std::size_t>(IndexOf(SeatAfter(board.Dealer())));
  for (int i = 0; i < board.NumCalls(); ++i) {
    const std::size_t place = first + static_cast<std::size_t>(i);
    rows.resize(place / kSeats + 1);
    rows.back().at(place % kSeats) = CallText(board.calls, i);
  }
  return rows;
}

std::string CallRowsText(const std::vector<CallRow>& rows) {
  std::string text;
  if (rows.empty()) return text;
  CallRow heading;
  for (std::size_t i = 0; i < heading.size(); ++i) heading.at(i) = SeatName[kCallSeats.at(i)];
  AppendRow(text, heading);
  for (const CallRow& row : rows) AppendRow(text, row);
  return text;
}

}  // namespace tricklet
