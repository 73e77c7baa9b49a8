#include "formats/lin/lin_reader.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "core/text.h"
#include "formats/lin/lin_record.h"
#include "formats/sink/record_text.h"

namespace tricklet {
namespace {

constexpr std::string_view kParameter = "lin=";

/// The records of a text copied from a site's address, which has them percent-encoded after
/// "lin=", blanks as "+".
std::string DecodeAddress(std::string_view text) {
  const auto parameter = text.find(kParameter);
  if (parameter != std::string_view::npos) text.remove_prefix(parameter + kParameter.size());
  std::string encoded(text);
  std::replace(encoded.begin(), encoded.end(), '+', ' ');
  return DecodeLinRecords(encoded);
}

/// The text is an address: "lin=" stands before its first bar, or all its bars are percent-encoded.
bool IsAddress(std::string_view text) {
  constexpr std::string_view kEncodedBar = "%7C";
  const auto bar = text.find('|');
  if (text.substr(0, bar).find(kParameter) != std::string_view::npos) return true;
  return bar == std::string_view::npos && ToUpper(text).find(kEncodedBar) != std::string::npos;
}

/// The bars stand as they are, but the commas between the hands of a deal are percent-encoded.
bool HasEncodedDeal(std::string_view text) {
  constexpr std::string_view kDeal = "md|";
  constexpr std::string_view kEncodedComma = "%2C";
  for (auto deal = text.find(kDeal); deal != std::string_view::npos; deal = text.find(kDeal)) {
    text.remove_prefix(deal + kDeal.size());
    if (ToUpper(text.substr(0, text.find('|'))).find(kEncodedComma) != std::string::npos) {
      return true;
    }
  }
  return false;
}

/// The text of the records, decoded if it was encoded.
struct RecordsText {
  std::string text;      // UTF-8
  bool decoded = false;  // it was percent-encoded
};

RecordsText PlainText(std::string_view text) {
  text = WithoutUtf8Mark(text);
  RecordsText records;
  const bool address = IsAddress(text);
  records.decoded = address || HasEncodedDeal(text);
  if (!records.decoded) {
    records.text = text;
  } else {
    records.text = address ? DecodeAddress(text) : DecodeLinRecords(text);
  }
  if (!IsValidUtf8(records.text)) records.text = Latin1ToUtf8(records.text);
  return records;
}

/// The tag describes the board or its play; chat, scores of the match and page marks do not.
bool IsKept(std::string_view tag) {
  constexpr std::array<std::string_view, 8> kKept{"st", "md", "sv", "mb", "an", "pc", "mc", "zz"};
  return std::find(kKept.begin(), kKept.end(), tag) != kKept.end();
}

/// The tag may come before a deal. After the page mark that ends a record it belongs to the next
/// one: a header there would otherwise number the deal before it.
bool StandsBeforeDeal(std::string_view tag) {
  constexpr std::array<std::string_view, 5> kBefore{"pn", "st", "rh", "ah", "sv"};
  return std::find(kBefore.begin(), kBefore.end(), tag) != kBefore.end();
}

/// A record as it is collected, field by field.
struct Collected {
  std::string_view room;    // of "qx"
  std::string_view header;  // of "ah"
  std::string_view players;
  std::string_view deal;
  bool hasRoom = false;
  bool hasPlayers = false;
  bool hasDeal = false;
  bool pageEnded = false;  // a page mark has come since the deal
  std::string fields;      // those that are kept as they stand
};

/// The fields to be read of a record, with the names that hold for it.
std::string LineOf(const Collected& record) {
  return "qx|" + std::string(record.room) + "|pn|" + std::string(record.players) + "|ah|" +
         std::string(record.header) + "|" + record.fields;
}

/// A record for "LIN.txt": the players of its own room, and its board by the number stored.
std::string LineOf(const LinRecord& record, const Collected& collected) {
  const PerSeat<std::string>& players = record.players;
  return std::string("qx|") + (record.closedRoom ? "c" : "o") + std::to_string(record.boardNumber) +
         "|pn|" + players[Seat::South] + "," + players[Seat::West] + "," + players[Seat::North] +
         "," + players[Seat::East] + "|rh||ah|Board " + std::to_string(record.boardNumber) + "|" +
         collected.fields + "pg||";
}

class LinReader {
 public:
  LinReader(const RecordsText& source, BoardSink& sink, std::vector<std::string>& records)
      : text_(source.text),
        decoded_(source.decoded),
        rest_(text_),
        sink_(sink),
        records_(records) {}

  ReadResult Read() {
    std::string_view before = rest_;
    for (LinField field; !stopped_ && NextLinField(rest_, field); before = rest_) {
      if (BeginsRecord(field)) EndRecord(text_.size() - before.size());
      if (!stopped_) Take(field);
    }
    if (!stopped_) EndRecord(text_.size());
    return result_;
  }

 private:
  bool BeginsRecord(const LinField& field) const {
    const std::string_view tag = field.tag;
    if (tag == "qx") return record_.hasDeal || record_.hasRoom;
    if (!record_.hasDeal) return false;
    if (tag == "md") return true;
    if (tag == "pn" && record_.hasPlayers) return true;
    if (tag == "ah" && NamesAnotherBoard(field.value)) return true;
    return record_.pageEnded && StandsBeforeDeal(tag);
  }

  bool NamesAnotherBoard(std::string_view header) const {
    const int number = BoardNumberOfHeader(header);
    const int before = BoardNumberOfHeader(record_.header);
    return number != 0 && before != 0 && number != before;
  }

  void Take(const LinField& field) {
    if (field.tag == "qx") {
      record_.room = field.value;
      record_.hasRoom = true;
    } else if (field.tag == "pn") {
      record_.players = field.value;
      record_.hasPlayers = true;
    } else if (field.tag == "ah") {
      record_.header = field.value;
    } else if (field.tag == "md") {
      record_.deal = field.value;
      record_.hasDeal = true;
    } else if (field.tag == "pg") {
      record_.pageEnded = record_.hasDeal;
    }
    if (!IsKept(field.tag)) return;
    record_.fields += field.tag;
    record_.fields += '|';
    record_.fields += field.value;
    record_.fields += '|';
  }

  /// Stores or leaves out the current record, which ends at offset `end` of the text; its names
  /// hold for the next.
  void EndRecord(std::size_t end) {
    const Collected record = std::exchange(record_, Collected());
    const bool broken = HasBrokenEscape(begin_, end);
    begin_ = end;
    if (record.players.find(kBrokenEscape) == std::string_view::npos || !decoded_) {
      record_.players = record.players;
    }
    // A page without a deal, or one that clears the table: "md|0|".
    if (record.deal.find_first_not_of("0123456789,") == std::string_view::npos) return;
    LinRecord parsed = ParseLinRecord(LineOf(record));
    if (parsed.boardNumber == 0) parsed.boardNumber = NextNumberOf(parsed);
    lastNumber_ = std::max(lastNumber_, parsed.boardNumber);
    if (!sink_.Begin(parsed.boardNumber, ThousandthsRead(text_, rest_))) {
      result_.cancelled = stopped_ = true;
    } else if (broken) {
      result_.leftOut.broken.push_back(parsed.boardNumber);
    } else if (!CanBeDealt(parsed)) {
      result_.leftOut.impossible.push_back(parsed.boardNumber);
    } else if (Count(parsed.boardNumber) && IsTheBoardStored(parsed)) {
      records_.push_back(LineOf(parsed, record));
    }
  }

  bool HasBrokenEscape(std::size_t begin, std::size_t end) const {
    return decoded_ && text_.substr(begin, end - begin).find(kBrokenEscape) != std::string::npos;
  }

  int NextNumberOf(const LinRecord& record) const {
    int number = lastNumber_ + 1;
    while (record.dealer && DealerOfBoard(number) != *record.dealer) ++number;
    return number;
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

  std::string_view text_;
  const bool decoded_;
  std::string_view rest_;
  BoardSink& sink_;
  std::vector<std::string>& records_;
  Collected record_;       // the current one
  std::size_t begin_ = 0;  // of the current record in the text
  int lastNumber_ = 0;     // the highest of the records so far
  std::map<int, HandTable> stored_;
  bool stopped_ = false;
  ReadResult result_;
};

}  // namespace

bool LooksLikeLin(std::string_view text) {
  constexpr std::string_view kDeal = "md|";
  constexpr std::string_view kEncodedDeal = "MD%7C";
  if (text.find(kDeal) != std::string_view::npos) return true;
  return IsAddress(text) && ToUpper(text).find(kEncodedDeal) != std::string::npos;
}

ReadResult ReadLIN(std::string_view text, BoardSink& sink, std::vector<std::string>& records) {
  const RecordsText plain = PlainText(text);
  return LinReader(plain, sink, records).Read();
}

}  // namespace tricklet
