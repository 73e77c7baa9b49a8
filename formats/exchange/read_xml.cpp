#include "formats/exchange/read_xml.h"

#include <exception>
#include <optional>
#include <utility>
#include <variant>

#include "core/text.h"
#include "formats/results/lin_boards.h"
#include "formats/usebio/usebio_limits.h"
#include "formats/usebio/usebio_reader.h"
#include "formats/usebio/xml_text.h"

namespace tricklet {
namespace {

constexpr const char* kUnable = "Unable to import XML file";

std::string ErrorText(const Fault& fault) {
  return "Error " + std::to_string(static_cast<int>(fault.Number())) + " (" + fault.Description() +
         ") in procedure ReadFileXML of Module modXML";
}

/// Nothing, and a message in `reading`, when the file cannot be imported.
std::optional<UsebioResults> ReadResults(RecordSource& source, Reading& reading) {
  auto& messages = reading.result.messages;
  if (source.bytes.size() > kMaxXmlBytes) {
    messages.emplace_back(kXmlLoadFailed);
    return std::nullopt;
  }
  XmlText xml = DecodeXml(std::move(source.bytes));
  if (!CheckXMLfile(xml.text)) {
    messages.push_back("This xml file has no LIN data:\n\n" + ShownPath(source.path));
    return std::nullopt;
  }
  if (RewriteDocumentType(xml.text)) reading.extended = EncodeXml(xml);
  auto read = ReadUsebio(std::move(xml.text));
  if (const auto* refusal = std::get_if<UsebioRefusal>(&read)) {
    messages.push_back(refusal->message);
    return std::nullopt;
  }
  return std::get<UsebioResults>(std::move(read));
}

}  // namespace

bool CheckXMLfile(std::string_view text) {
  return text.find("<LIN_DATA>") != std::string_view::npos;
}

void TellXmlFailure(Host& host, const Fault& fault) {
  host.TellError(ErrorText(fault));
  host.TellError(kUnable);
}

void ReadXML(RecordSource& source, BoardSink& sink, Reading& reading) {
  ReadResult& result = reading.result;
  std::optional<UsebioResults> read;
  try {
    read = ReadResults(source, reading);
  } catch (const std::exception& failure) {
    result.messages = {ErrorText(FaultFrom(failure)), kUnable};
  }
  if (!read) return;
  result.leftOut = std::move(read->leftOut);
  if (read->broken) result.messages.push_back(ErrorText(*read->broken));
  reading.results = std::move(read->data);
  ReadLinCards(reading.results, read->firstBoard, read->lastBoard, sink, result);
  if (read->broken && result.boardsSaved == 0) result.messages.emplace_back(kUnable);
}

}  // namespace tricklet
