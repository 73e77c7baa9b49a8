// The hand records of a LIN text, one after another, before anything is made of them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "formats/lin/lin_record.h"

namespace tricklet {

/// One record of a text. Where it names no board, its number is the next one that its dealer deals.
struct LinTextRecord {
  LinRecord record;
  std::string line;       ///< for "LIN.txt": with the names that hold for it and "|Board N|"
  bool broken = false;    ///< it has a broken percent escape
  bool numbered = false;  ///< the text gives its board number
  int textLine = 0;       ///< where it begins, the first line of the text being 1
};

/// A cursor over the records of a text, however they are broken into lines; a text that is not
/// UTF-8 is taken as Latin-1. Records may be percent-encoded, with or without their bars, after
/// "lin=" in an address or on their own. A record ends where the next one's board or deal begins;
/// after a page mark, any field that may stand before a deal begins the next one. Names hold until
/// others are given. Pages without a deal are passed over.
class LinRecords {
 public:
  explicit LinRecords(std::string_view text);
  LinRecords(const LinRecords&) = delete;
  LinRecords& operator=(const LinRecords&) = delete;
  ~LinRecords() = default;

  /// Takes the next record; false when there is none.
  bool Next(LinTextRecord& next);

  /// How much of the text has been read, in thousandths.
  int Done() const;

 private:
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

  static std::string TextOf(const Collected& record);
  static std::string LineOf(const LinRecord& record, const Collected& collected);
  bool BeginsRecord(const LinField& field) const;
  bool NamesAnotherBoard(std::string_view header) const;
  void Take(const LinField& field);
  bool EndRecord(std::size_t end, LinTextRecord& next);
  bool HasBrokenEscape(std::size_t begin, std::size_t end) const;
  int NextNumberOf(const LinRecord& record) const;

  std::string text_;      // UTF-8, decoded
  bool decoded_ = false;  // it was percent-encoded
  std::string_view rest_;
  Collected record_;       // the current one
  std::size_t begin_ = 0;  // of the current record in the text
  std::size_t lines_ = 0;  // line ends before `counted_`
  std::size_t counted_ = 0;
  int lastNumber_ = 0;  // the highest of the records so far
  bool ended_ = false;
};

}  // namespace tricklet
