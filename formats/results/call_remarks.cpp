#include "formats/results/call_remarks.h"

#include <algorithm>

namespace tricklet {

CallRemarks RemarksOn(const Board& board, const Traveller& traveller) {
  if (board.calls.Empty()) return {};
  for (const TravellerRow& row : traveller.rows) {
    const RecordedPlay& record = row.record;
    const bool says = std::any_of(record.remarks.begin(), record.remarks.end(),
                                  [](const CallRemark& remark) { return !remark.Empty(); });
    if (says && record.board.calls == board.calls && record.board.hands == board.hands) {
      return record.remarks;
    }
  }
  return {};
}

std::string RemarksText(const Board& board, const CallRemarks& remarks) {
  std::string text;
  for (int i = 0; i < board.NumCalls() && i < static_cast<int>(remarks.size()); ++i) {
    const CallRemark& remark = remarks[static_cast<std::size_t>(i)];
    if (remark.Empty()) continue;
    if (!text.empty()) text += "; ";
    text += board.calls.ShownAt(i) + ": " + (remark.meaning.empty() ? "alerted" : remark.meaning);
  }
  return text;
}

}  // namespace tricklet
