#include "formats/lin/lin_records.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/text.h"
#include "formats/lin/lin_address.h"
#include "formats/sink/record_text.h"

namespace tricklet {
namespace {

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
  const bool address = IsLinAddress(text);
  records.decoded = address || HasEncodedDeal(text);
  if (!records.decoded) {
    records.text = text;
  } else {
    records.text = address ? DecodeLinAddress(text) : DecodeLinRecords(text);
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

}  // namespace

/// The fields to be read of a record, with the names that hold for it.
std::string LinRecords::TextOf(const Collected& record) {
  return "qx|" + std::string(record.room) + "|pn|" + std::string(record.players) + "|ah|" +
         std::string(record.header) + "|" + record.fields;
}

/// A record for "LIN.txt": the players of its own room, and its board by the number stored.
std::string LinRecords::LineOf(const LinRecord& record, const Collected& collected) {
  const PerSeat<std::string>& players = record.players;
  return std::string("qx|") + (record.closedRoom ? "c" : "o") + std::to_string(record.boardNumber) +
         "|pn|" + players[Seat::South] + "," + players[Seat::West] + "," + players[Seat::North] +
         "," + players[Seat::East] + "|rh||ah|Board " + std::to_string(record.boardNumber) + "|" +
         collected.fields + "pg||";
}

LinRecords::LinRecords(std::string_view text) {
  RecordsText plain = PlainText(text);
  text_ = std::move(plain.text);
  decoded_ = plain.decoded;
  rest_ = text_;
}

int LinRecords::Done() const {
  return ThousandthsRead(text_, rest_);
}

bool LinRecords::Next(LinTextRecord& next) {
  std::string_view before = rest_;
  for (LinField field; NextLinField(rest_, field); before = rest_) {
    const bool ends = BeginsRecord(field) && EndRecord(text_.size() - before.size(), next);
    Take(field);
    if (ends) return true;
  }
  return !std::exchange(ended_, true) && EndRecord(text_.size(), next);
}

bool LinRecords::BeginsRecord(const LinField& field) const {
  const std::string_view tag = field.tag;
  if (tag == "qx") return record_.hasDeal || record_.hasRoom;
  if (!record_.hasDeal) return false;
  if (tag == "md") return true;
  if (tag == "pn" && record_.hasPlayers) return true;
  if (tag == "ah" && NamesAnotherBoard(field.value)) return true;
  return record_.pageEnded && StandsBeforeDeal(tag);
}

bool LinRecords::NamesAnotherBoard(std::string_view header) const {
  const int number = BoardNumberOfHeader(header);
  const int before = BoardNumberOfHeader(record_.header);
  return number != 0 && before != 0 && number != before;
}

void LinRecords::Take(const LinField& field) {
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

/// Gives the current record, which ends at offset `end` of the text; its names hold for the next.
/// False when it has no deal.
bool LinRecords::EndRecord(std::size_t end, LinTextRecord& next) {
  const Collected record = std::exchange(record_, Collected());
  next.broken = HasBrokenEscape(begin_, end);
  const std::size_t begin = std::exchange(begin_, end);
  if (record.players.find(kBrokenEscape) == std::string_view::npos || !decoded_) {
    record_.players = record.players;
  }
  // A page without a deal, or one that clears the table: "md|0|".
  if (record.deal.find_first_not_of("0123456789,") == std::string_view::npos) return false;
  const auto from = text_.begin();
  lines_ += static_cast<std::size_t>(std::count(from + static_cast<std::ptrdiff_t>(counted_),
                                                from + static_cast<std::ptrdiff_t>(begin), '\n'));
  counted_ = begin;
  next.textLine = static_cast<int>(lines_) + 1;
  next.record = ParseLinRecord(TextOf(record));
  next.numbered = next.record.boardNumber != 0;
  if (!next.numbered) next.record.boardNumber = NextNumberOf(next.record);
  lastNumber_ = std::max(lastNumber_, next.record.boardNumber);
  next.line = LineOf(next.record, record);
  return true;
}

bool LinRecords::HasBrokenEscape(std::size_t begin, std::size_t end) const {
  return decoded_ && std::string_view(text_).substr(begin, end - begin).find(kBrokenEscape) !=
                         std::string::npos;
}

int LinRecords::NextNumberOf(const LinRecord& record) const {
  int number = lastNumber_ + 1;
  while (record.dealer && DealerOfBoard(number) != *record.dealer) ++number;
  return number;
}

}  // namespace tricklet
