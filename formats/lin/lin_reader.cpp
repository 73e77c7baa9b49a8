#include "formats/lin/lin_reader.h"

#include <algorithm>
#include <map>

#include "core/text.h"
#include "formats/lin/lin_address.h"
#include "formats/lin/lin_records.h"

namespace tricklet {
namespace {

class LinReader {
 public:
  LinReader(std::string_view text, BoardSink& sink, std::vector<std::string>& lines)
      : records_(text), sink_(sink), lines_(lines) {}

  ReadResult Read() {
    LinTextRecord next;
    while (!result_.cancelled && records_.Next(next)) Take(next);
    return result_;
  }

 private:
  /// Stores or leaves out one record.
  void Take(LinTextRecord& next) {
    const int number = next.record.boardNumber;
    if (!sink_.Begin(number, records_.Done())) {
      result_.cancelled = true;
    } else if (next.broken) {
      result_.leftOut.broken.push_back(number);
    } else if (!CanBeDealt(next.record)) {
      result_.leftOut.impossible.push_back(number);
    } else if (Count(number) && IsTheBoardStored(next.record)) {
      lines_.push_back(next.line);
    }
  }

  /// Counts the board among the first and last of the result; false when it cannot be stored.
  bool Count(int number) {
    if (result_.firstBoard == 0) result_.firstBoard = number;
    result_.lastBoard = std::max(result_.lastBoard, number);
    if (!IsStorable(number)) result_.leftOut.unstorable.push_back(number);
    return IsStorable(number);
  }

  /// Stores the board of its first record; false for a later record with another deal.
  bool IsTheBoardStored(LinRecord& record) {
    const auto [stored, first] = stored_.try_emplace(record.boardNumber, record.hands);
    if (!first) {
      const bool same = stored->second == record.hands;
      if (!same) result_.leftOut.repeated.push_back(record.boardNumber);
      return same;
    }
    sink_.Store(StorableBoard(record, result_.leftOut));
    ++result_.boardsSaved;
    return true;
  }

  LinRecords records_;
  BoardSink& sink_;
  std::vector<std::string>& lines_;
  std::map<int, HandTable> stored_;
  ReadResult result_;
};

}  // namespace

bool LooksLikeLin(std::string_view text) {
  constexpr std::string_view kDeal = "md|";
  constexpr std::string_view kEncodedDeal = "MD%7C";
  if (text.find(kDeal) != std::string_view::npos) return true;
  return IsLinAddress(text) && ToUpper(text).find(kEncodedDeal) != std::string::npos;
}

ReadResult ReadLIN(std::string_view text, BoardSink& sink, std::vector<std::string>& records) {
  return LinReader(text, sink, records).Read();
}

}  // namespace tricklet
