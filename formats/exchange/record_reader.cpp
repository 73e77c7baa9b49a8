#include "formats/exchange/record_reader.h"

#include <algorithm>
#include <array>

#include "formats/dlm/dlm_reader.h"
#include "formats/exchange/read_xml.h"
#include "formats/lin/lin_reader.h"
#include "formats/pbn/pbn_reader.h"

namespace tricklet {
namespace {

void ReadPbnFile(RecordSource& source, BoardSink& sink, Reading& reading) {
  reading.result = ReadPBN(source.bytes, sink);
}

void ReadDlmFile(RecordSource& source, BoardSink& sink, Reading& reading) {
  reading.result = ReadDLM(source.bytes, sink);
}

void ReadLinFile(RecordSource& source, BoardSink& sink, Reading& reading) {
  reading.result = ReadLIN(source.bytes, sink, reading.results.lin);
}

}  // namespace

const RecordReader& ReaderOf(std::string_view type) {
  static const std::array<RecordReader, 4> kReaders{{
      {"pbn", Brings::Nothing, ReadPbnFile, ErrorReport},
      {"dlm", Brings::Nothing, ReadDlmFile, ErrorReport},
      {"xml", Brings::Session, ReadXML, TellXmlFailure},
      {"lin", Brings::Records, ReadLinFile, ErrorReport},
  }};
  const auto* const reader = std::find_if(kReaders.begin(), kReaders.end(),
                                          [type](const auto& each) { return each.type == type; });
  if (reader == kReaders.end()) {
    throw Fault(FaultNumber::SubscriptOutOfRange, "There is no reader for this type of file");
  }
  return *reader;
}

}  // namespace tricklet
