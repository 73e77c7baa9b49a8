// Any bytes as a USEBIO file: nothing but results or a refusal may come of them. Results
// must come back from their "LIN.txt" line by line, and each of their boards from its own file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "core/text.h"
#include "formats/results/lin_boards.h"
#include "formats/usebio/usebio_reader.h"
#include "formats/usebio/xml_text.h"
#include "tests/fuzz/checks.h"

namespace {

using namespace tricklet;

void CheckResults(const UsebioResults& results) {
  const std::string text = LinFileText(results.data);
  if (!IsValidUtf8(text)) std::abort();
  const LinFile read = ParseLinFile(text);
  if (read.lin.size() != results.data.lin.size()) std::abort();
  if (read.names.size() != results.data.names.size()) std::abort();
  fuzz::CheckingSink sink;
  ReadResult result;
  ReadLinCards(results.data, results.firstBoard, results.lastBoard, sink, result);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  XmlText xml = DecodeXml(std::string(reinterpret_cast<const char*>(data), size));
  if (!IsValidUtf8(xml.text)) std::abort();
  RewriteDocumentType(xml.text);
  if (DecodeXml(EncodeXml(xml)).text.size() > xml.text.size()) std::abort();
  const auto read = ReadUsebio(std::move(xml.text));
  if (const auto* results = std::get_if<UsebioResults>(&read)) CheckResults(*results);
  return 0;
}
