// Any bytes as a USEBIO file: nothing but results, a refusal or a fault may come of them. Results
// must come back from their "LIN.txt" line by line, and each of their boards from its own file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "core/fault.h"
#include "core/text.h"
#include "formats/results/lin_boards.h"
#include "formats/usebio/usebio_reader.h"
#include "formats/usebio/xml_text.h"
#include "tests/fuzz/checks.h"

namespace {

using namespace tricklet;

void CheckBoards(const UsebioResults& results) {
  for (const Board& board : BoardsOfLinData(results.data, results.firstBoard, results.lastBoard)) {
    fuzz::CheckBoard(board);
  }
}

void CheckResults(const UsebioResults& results) {
  const std::string text = LinFileText(results.data);
  if (!IsValidUtf8(text)) std::abort();
  const LinFile read = ParseLinFile(text);
  if (read.lin.size() != results.data.lin.size()) std::abort();
  if (read.names.size() != results.data.names.size()) std::abort();
  CheckBoards(results);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  XmlText xml = DecodeXml(std::string(reinterpret_cast<const char*>(data), size));
  if (!IsValidUtf8(xml.text)) std::abort();
  RewriteDocumentType(xml.text);
  if (DecodeXml(EncodeXml(xml)).text.size() > xml.text.size()) std::abort();
  try {
    const auto read = ReadUsebio(std::move(xml.text));
    if (const auto* results = std::get_if<UsebioResults>(&read)) CheckResults(*results);
  } catch (const Fault&) {
    // an escape cut short, or an auction of more than 100 calls
  }
  return 0;
}
