// Any bytes as a PBN file: nothing but boards, a bad line or a fault may come of them, and every
// board that is stored must come back from its own file as it was. What the file holds beside its
// boards must be text that can be stored, too.
#include "core/fault.h"
#include "formats/pbn/pbn_contents.h"
#include "formats/pbn/pbn_reader.h"
#include "formats/results/table_record.h"
#include "tests/fuzz/checks.h"

namespace tricklet::fuzz {
namespace {

void CheckGame(const FoundGame& game) {
  Require(IsValidUtf8(game.label) && IsValidUtf8(game.notes) && game.line > 0);
  const std::string* last = nullptr;
  for (const std::string& record : game.records) {
    if (last && record == *last) continue;
    last = &record;
    Require(IsValidUtf8(record) && record.find_first_of("\r\n") == std::string::npos);
    Require(BoardNumberOfLin(RenumberedLin(record, kLastBoardNumber)) == kLastBoardNumber);
  }
  Board board = game.board;
  board.boardNumber = kFirstBoardNumber;
  CheckBoard(board);
}

void CheckContents(const FileContents& contents) {
  Require(contents.sections.size() <= 1);
  for (const FoundSection& section : contents.sections) {
    Require(!section.games.empty());
    LinFile results = section.results;
    for (const FoundGame& game : section.games) {
      CheckGame(game);
      results.lin.insert(results.lin.end(), game.records.begin(), game.records.end());
    }
    // One row of a table can stand for any number of tables, all with the same record.
    constexpr std::size_t kMost = 1000;
    if (results.lin.size() > kMost) results.lin.resize(kMost);
    CheckLinFile(results);
  }
  for (const UnreadPart& part : contents.unread) {
    Require(part.line > 0 && IsValidUtf8(part.text) && IsValidUtf8(part.label));
  }
}

}  // namespace
}  // namespace tricklet::fuzz

void tricklet::fuzz::Check(std::string_view bytes) {
  const FileContents contents = ReadPbnContents(bytes);
  CheckContents(contents);
  CheckPlans(contents);
  CheckingSink sink;
  try {
    ReadPBN(bytes, sink);
  } catch (const Fault&) {
    // an auction of more than 100 calls
  }
}
