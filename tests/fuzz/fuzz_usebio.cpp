// Any bytes as a USEBIO file: nothing but results or a refusal may come of them. Results
// must come back from their "LIN.txt" line by line, and each of their boards from its own file.
#include <utility>

#include "formats/usebio/usebio_reader.h"
#include "formats/usebio/xml_text.h"
#include "tests/fuzz/checks.h"

void tricklet::fuzz::Check(std::string_view bytes) {
  XmlText xml = DecodeXml(std::string(bytes));
  Require(IsValidUtf8(xml.text));
  RewriteDocumentType(xml.text);
  Require(DecodeXml(EncodeXml(xml)).text.size() <= xml.text.size());
  const auto read = ReadUsebio(std::move(xml.text));
  if (const auto* results = std::get_if<UsebioResults>(&read)) CheckLinFile(results->data);
}
