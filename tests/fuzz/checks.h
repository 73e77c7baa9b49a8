// What a fuzz target does with its bytes, and what must hold of all that a reader hands over,
// whatever it has read.
#pragma once

#include <cstdlib>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/statistics.h"
#include "core/text.h"
#include "formats/look/plan_rows.h"
#include "formats/pbn/pbn_writer.h"
#include "formats/results/lin_boards.h"
#include "formats/results/table_record.h"
#include "formats/sink/board_sink.h"
#include "formats/sink/record_text.h"
#include "library/board_file.h"

namespace tricklet::fuzz {

/// Each target's own: reads the bytes, and ends the program when something does not hold.
void Check(std::string_view bytes);

inline void Require(bool holds) {
  if (!holds) std::abort();
}

inline bool HasCardTwice(const HandTable& hands) {
  const Statistics statistics = GetStats(hands);
  int cards = 0;
  for (const int count : statistics.seatCardCount) cards += count;
  for (const Holding missing : statistics.missingCards) cards += missing.Count();
  return cards > kCardsInPack;
}

/// The board can be stored, and its file gives it back; but a card that is in two hands stays in
/// one of them. It can be written as PBN.
inline void CheckBoard(const Board& board) {
  Require(IsStorable(board.boardNumber));
  Board read;
  read.boardNumber = board.boardNumber;
  Require(ReadBoardText(WriteBoardText(board), read, TableReading::Always));
  Require(read.hands == board.hands || HasCardTwice(board.hands));
  Require(read.calls == board.calls && read.contract == board.contract);
  Require(!PbnRecord(board, "Library", {}).empty());
}

/// Takes boards and checks them.
class CheckingSink : public BoardSink {
 public:
  void Store(const Board& board) override { CheckBoard(board); }
  bool Begin(int /*boardNumber*/, int done) override {
    Require(done >= 0 && done <= kWholeText);
    return true;
  }
};

/// The results come back from their "LIN.txt" line by line, and without change from the second one
/// on. Each of their boards comes back from its own file.
inline void CheckLinFile(const LinFile& results) {
  const std::string text = LinFileText(results);
  Require(IsValidUtf8(text));
  const LinFile read = ParseLinFile(text);
  Require(read.lin.size() == results.lin.size() && read.names.size() == results.names.size());
  Require(read.teamEvent.has_value() == results.teamEvent.has_value());
  Require(ParseLinFile(LinFileText(read)) == read);
  CheckingSink sink;
  ReadResult result;
  ReadLinCards(read, kFirstBoardNumber, kLastBoardNumber, sink, result);
}

/// A plan gives each board that it stores a place of its own, and the board and its results can be
/// kept under its number. All that is shown of the plan can be shown.
inline void CheckPlan(const FileContents& contents, const ImportChoices& choices) {
  BoardsThere there{};
  there.at(2) = true;
  const ImportPlan plan = PlanImport(contents, choices, there);
  std::set<std::pair<int, int>> places;
  for (const PlannedBoard& planned : plan.boards) {
    Require(!planned.games.empty());
    if (!IsStored(planned.fate)) continue;
    Require(places.emplace(planned.part, planned.number).second);
    const FoundGame& game = contents.sections.at(choices.section).games.at(planned.games.front());
    CheckBoard(StorableBoard(game, planned.number));
    const std::string* last = nullptr;
    for (const std::string& line : game.records) {
      if (last != nullptr && *last == line) continue;  // one row of a table can be many of these
      last = &line;
      Require(BoardNumberOfLin(RenumberedLin(line, planned.number)) == planned.number);
    }
  }
  Require(plan.stored == static_cast<int>(places.size()));
  const std::vector<std::string> names(static_cast<std::size_t>(plan.parts) + 1, "Club");
  for (const PlanRow& row : PlanRows(contents, choices, plan, names)) {
    Require(IsValidUtf8(row.inFile + row.hand + row.what));
    Require(row.what.find('\n') == std::string::npos);
  }
}

/// Every plan for the file holds, whatever somebody decides.
inline void CheckPlans(const FileContents& contents) {
  for (ImportChoices choices; choices.section < contents.sections.size(); ++choices.section) {
    for (const Numbering numbers :
         {Numbering::Keep, Numbering::First, Numbering::Next, Numbering::From}) {
      choices.numbers = numbers;
      choices.from = kLastBoardNumber;
      choices.dealer = choices.dealer == DealerBy::File ? DealerBy::Number : DealerBy::File;
      choices.skipBad = !choices.skipBad;
      CheckPlan(contents, choices);
    }
  }
}

}  // namespace tricklet::fuzz
