#include "formats/exchange/import_xml.h"

#include <exception>
#include <utility>
#include <variant>

#include "core/fault.h"
#include "core/text.h"
#include "formats/results/lin_boards.h"
#include "formats/results/lin_file.h"
#include "formats/usebio/usebio_reader.h"
#include "library/file_io.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// Results of boards that were not stored would stand beside older deals of the same numbers, so
/// they are left out.
void LeaveOutAbove(LinFile& results, int lastBoard) {
  std::erase_if(results.lin, [lastBoard](const std::string& record) {
    return BoardNumberOfLin(record) > lastBoard;
  });
}

/// Stores the boards, and when any was stored the results. `rewritten` is the file with another
/// document type, empty when it was left alone.
void StoreAll(Session& session, UsebioResults& read, const std::string& rewritten, BoardSink& sink,
              ReadResult& result) {
  std::exception_ptr failure;
  try {
    ReadLinCards(read.data, read.firstBoard, read.lastBoard, sink, result);
  } catch (const std::exception&) {
    failure = std::current_exception();
  }
  if (result.boardsSaved > 0) {
    if (result.cancelled || failure) LeaveOutAbove(read.data, result.lastBoard);
    StoreLinData(session, read.data);
    if (!rewritten.empty()) ReplaceWholeFile(session.LibraryPath() / "QENXML.xml", rewritten);
  }
  if (failure) std::rethrow_exception(failure);
}

void StoreFile(Session& session, const fs::path& path, std::string bytes, BoardSink& sink,
               ReadResult& result) {
  result.failed = true;
  if (bytes.size() > kMaxXmlBytes) {
    session.host.Tell(kXmlLoadFailed);
    return;
  }
  XmlText xml = DecodeXml(std::move(bytes));
  if (!CheckXMLfile(session.host, path, xml)) return;
  const std::string rewritten = RewriteDocumentType(xml.text) ? EncodeXml(xml) : std::string();
  auto read = ReadUsebio(std::move(xml.text));
  if (const auto* refusal = std::get_if<UsebioRefusal>(&read)) {
    session.host.Tell(refusal->message);
    return;
  }
  result.failed = false;
  auto& results = std::get<UsebioResults>(read);
  StoreAll(session, results, rewritten, sink, result);
}

}  // namespace

bool CheckXMLfile(Host& host, const fs::path& path, const XmlText& xml) {
  if (xml.text.find("<LIN_DATA>") != std::string::npos) return true;
  host.Tell("This xml file has no LIN data:\n\n" + PathText(path));
  return false;
}

ReadResult ReadXML(Session& session, const fs::path& path, std::string bytes, BoardSink& sink) {
  ReadResult result;
  try {
    StoreFile(session, path, std::move(bytes), sink, result);
  } catch (const std::exception& failure) {
    const Fault fault = FaultFrom(failure);
    result.failed = true;
    session.host.Tell("Error " + std::to_string(static_cast<int>(fault.Number())) + " (" +
                      fault.Description() + ") in procedure ReadFileXML of Module modXML");
    session.host.Tell("Unable to import XML file");
  }
  return result;
}

}  // namespace tricklet
