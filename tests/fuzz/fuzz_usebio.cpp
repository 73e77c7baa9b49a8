// Any bytes as a USEBIO file: nothing but results or a refusal may come of them. Results
// must come back from their "LIN.txt" line by line, and each of their boards from its own file. All
// that is found in such a file is text, has its tables under one board, and comes back likewise.
#include <utility>

#include "formats/usebio/usebio_contents.h"
#include "formats/usebio/usebio_reader.h"
#include "formats/usebio/xml_text.h"
#include "tests/fuzz/checks.h"

namespace tricklet::fuzz {
namespace {

void CheckGame(const FoundGame& game) {
  Require(game.number >= 0 && game.line > 0);
  Require(IsValidUtf8(game.label) && IsValidUtf8(game.notes));
  Require(!game.troubles.Has(DealTrouble::NoCards) || !HasCards(game.board.hands));
  for (const std::string& record : game.records) Require(!record.empty());
  Board board = game.board;
  board.boardNumber = kFirstBoardNumber;
  GetContract(board);
  if (!game.troubles.Has(DealTrouble::Impossible)) CheckBoard(board);
}

void CheckContents(std::string_view bytes) {
  const FileContents contents = ReadUsebioContents(std::string(bytes));
  for (const FoundSection& section : contents.sections) {
    Require(!section.games.empty() && section.results.lin.empty());
    LinFile results = section.results;
    for (const FoundGame& game : section.games) {
      CheckGame(game);
      results.lin.insert(results.lin.end(), game.records.begin(), game.records.end());
    }
    CheckLinFile(results);
  }
  for (const UnreadPart& part : contents.unread) {
    Require(IsValidUtf8(part.label) && IsValidUtf8(part.text) && !part.reason.empty());
  }
  CheckPlans(contents);
}

}  // namespace
}  // namespace tricklet::fuzz

void tricklet::fuzz::Check(std::string_view bytes) {
  XmlText xml = DecodeXml(std::string(bytes));
  Require(IsValidUtf8(xml.text));
  RewriteDocumentType(xml.text);
  Require(DecodeXml(EncodeXml(xml)).text.size() <= xml.text.size());
  const auto read = ReadUsebio(std::move(xml.text));
  if (const auto* results = std::get_if<UsebioResults>(&read)) CheckLinFile(results->data);
  CheckContents(bytes);
}
