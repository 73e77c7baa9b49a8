#include "formats/exchange/import.h"

#include <string>
#include <utility>

#include "formats/dlm/dlm_reader.h"
#include "formats/exchange/file_type.h"
#include "formats/exchange/import_run.h"
#include "formats/exchange/import_xml.h"
#include "formats/pbn/pbn_reader.h"
#include "library/board_store.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

ResultsReader XmlReaderOf(Session& session, const fs::path& path) {
  return {[&session, &path](std::string bytes, BoardSink& sink) {
    return ReadXML(session, path, std::move(bytes), sink);
  }};
}

ImportOutcome ImportChosen(Session& session, const fs::path& path) {
  const std::string type = FileTypeOf(path);
  if (type == "pbn") return StoreFile(session, path, DealReader{ReadPBN});
  if (type == "dlm") return StoreFile(session, path, DealReader{ReadDLM});
  if (type == "xml") return StoreFile(session, path, XmlReaderOf(session, path));
  session.host.Tell("The file must be of type pbn, dlm or xml");
  // A board whose changes the person gave up is shown as it is stored.
  LoadHand(session);
  return {.refused = true};
}

}  // namespace

ImportOutcome Import(Session& session) {
  if (!MayImport(session)) return {.refused = true};
  const auto path = session.host.ChooseOpenFile({"Hand Records", {"pbn", "dlm", "xml"}, {}});
  if (!path || path->empty()) {
    LoadHand(session);
    return {.refused = true};
  }
  return ImportChosen(session, *path);
}

ImportOutcome ImportFile(Session& session, const fs::path& path) {
  if (!MayImport(session)) return {.refused = true};
  return ImportChosen(session, path);
}

}  // namespace tricklet
