// Any bytes as a LIN file: nothing but boards may come of them; a board that is stored can be
// written to its file and comes back, and its record for "LIN.txt" names it.
#include "core/fault.h"
#include "formats/contents/lin_contents.h"
#include "formats/lin/lin_reader.h"
#include "formats/lin/lin_record.h"
#include "tests/fuzz/checks.h"

void tricklet::fuzz::Check(std::string_view bytes) {
  CheckingSink sink;
  std::vector<std::string> records;
  ReadLIN(bytes, sink, records);
  for (const std::string& record : records) {
    const LinRecord parsed = ParseLinRecord(record);
    Require(IsStorable(parsed.boardNumber) && parsed.hasDeal);
  }
  try {
    ParseLinRecord(ReadLinData(bytes));
  } catch (const Fault&) {
    // a broken escape
  }
  CheckPlans(ReadLinContents(bytes));
}
