// The types of files that can be imported, and how each is read.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "core/fault.h"
#include "core/host.h"
#include "formats/exchange/reading.h"

namespace tricklet {

/// What a file brings beside its deals, which decides what becomes of the library's "LIN.txt".
enum class Brings : std::uint8_t {
  Nothing,  ///< "LIN.txt" belongs to the deals that are replaced, so it is recycled
  Records,  ///< records of its own boards: those of other boards stay
  Session,  ///< a whole session with names and scoring: "LIN.txt" is replaced
  Planned,  ///< results of its own boards, if any: those of other boards stay
};

struct RecordReader {
  std::string_view type;  ///< as `FileTypeOf` gives it
  Brings brings;
  /// Reads a whole file, whose bytes it may use up. What it throws is reported and ends the import;
  /// boards stored before it stay.
  std::function<void(RecordSource& source, BoardSink& sink, Reading& reading)> read;
  /// Tells that a file of the library could not be written.
  void (*tellUnwritten)(Host& host, const Fault& fault);
};

/// The reader of a type that can be imported: "pbn", "dlm", "xml" or "lin". Throws `Fault`
/// FaultNumber::SubscriptOutOfRange for any other.
const RecordReader& ReaderOf(std::string_view type);

}  // namespace tricklet
