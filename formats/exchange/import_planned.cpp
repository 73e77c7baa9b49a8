#include "formats/exchange/import_planned.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/bounded_list.h"
#include "core/text.h"
#include "formats/exchange/import_run.h"
#include "formats/look/plan_rows.h"
#include "formats/results/table_record.h"
#include "formats/sink/record_text.h"
#include "library/library_choice.h"
#include "library/library_names.h"
#include "library/library_scan.h"

namespace tricklet {
namespace {

constexpr std::size_t kLongestLabel = 16;  // bytes

/// "Club-2", or the next such name from `number` on that no library has; leaves `number` after it.
std::string NextName(const Session& session, const std::string& name, int& number) {
  for (;;) {
    std::string next = name + "-" + std::to_string(number++);
    if (!IsTakenInRoot(session, next)) return next;
  }
}

/// The boards of one library of a plan, on their way into it.
class PartReader {
 public:
  PartReader(const FileContents& contents, const ImportChoices& choices, const ImportPlan& plan,
             int part)
      : section_(contents.sections.at(choices.section)), choices_(choices) {
    for (const PlannedBoard& board : plan.boards) {
      if (IsStored(board.fate) && board.part == part) boards_.push_back(&board);
    }
  }

  void Read(BoardSink& sink, Reading& reading) const {
    reading.results = section_.results;
    reading.results.lin.clear();
    int done = 0;
    for (const PlannedBoard* board : boards_) {
      // What belongs to a board is known before it is stored, whatever ends the storing.
      if (choices_.keepResults) TakeResults(*board, reading);
      if (!Store(*board, done++, sink, reading.result)) return;
    }
  }

  int Tables() const {
    std::size_t tables = 0;
    for (const PlannedBoard* board : boards_) {
      for (const std::size_t game : board->games) tables += section_.games[game].records.size();
    }
    return static_cast<int>(tables);
  }
  int Boards() const { return static_cast<int>(boards_.size()); }

 private:
  void TakeResults(const PlannedBoard& planned, Reading& reading) const {
    for (const std::size_t at : planned.games) {
      const FoundGame& game = section_.games[at];
      for (const std::string& line : game.records) {
        reading.results.lin.push_back(
            planned.number == game.number ? line : RenumberedLin(line, planned.number));
      }
      if (game.notes.empty()) continue;
      std::string& notes = reading.notes[planned.number];
      notes += (notes.empty() ? "" : "\n") + game.notes;
    }
  }

  bool Store(const PlannedBoard& planned, int done, BoardSink& sink, ReadResult& result) const {
    if (!sink.Begin(planned.number, done * kWholeText / Boards())) {
      result.cancelled = true;
      return false;
    }
    sink.Store(StorableBoard(section_.games[planned.games.front()], planned.number));
    if (++result.boardsSaved == 1) result.firstBoard = planned.number;
    result.firstBoard = std::min(result.firstBoard, planned.number);
    result.lastBoard = std::max(result.lastBoard, planned.number);
    return true;
  }

  const FoundSection& section_;
  const ImportChoices& choices_;
  std::vector<const PlannedBoard*> boards_;
};

void Join(std::string& text, const std::string& more) {
  if (!more.empty()) text += (text.empty() ? "" : "\n") + more;
}

/// How a board is named that the file numbers so, or does not number.
std::string NameOf(const std::string& label, int line) {
  if (!label.empty()) return Showable(label, kLongestLabel);
  return line > 0 ? "line " + std::to_string(line) : "one without a number";
}

/// "3 boards were left out: 5, 7, line 32"; empty when there are none.
std::string ListText(const std::vector<std::string>& names, const std::string& one,
                     const std::string& several) {
  if (names.empty()) return "";
  return std::to_string(names.size()) + " " + (names.size() == 1 ? one : several) + ": " +
         BoundedList(names);
}

/// What was not stored, for the last message.
std::string LeftOutSummary(const FileContents& contents, const FoundSection& section,
                           const ImportPlan& plan) {
  std::vector<std::string> boards;
  std::vector<std::string> deals;
  std::vector<std::string> parts;
  parts.reserve(contents.unread.size());
  for (const PlannedBoard& board : plan.boards) {
    const FoundGame& game = section.games[board.games.front()];
    if (!IsStored(board.fate)) {
      boards.push_back(NameOf(game.label, game.line));
    } else if (game.troubles.Has(DealTrouble::Impossible)) {
      deals.push_back(NameOf(game.label, game.line));
    }
  }
  for (const UnreadPart& part : contents.unread) parts.push_back(NameOf(part.label, part.line));
  std::string text;
  Join(text,
       ListText(boards, "board of the file was left out", "boards of the file were left out"));
  Join(text, ListText(deals, "board has its results without its impossible deal",
                      "boards have their results without their impossible deals"));
  Join(text, ListText(parts, "part of the file could not be read",
                      "parts of the file could not be read"));
  return text;
}

ImportOutcome StorePart(Session& session, const ImportLook& look, const PartReader& part,
                        std::string summary) {
  RecordReader reader{"", Brings::Planned, {}, ErrorReport};
  reader.read = [&](RecordSource& /*source*/, BoardSink& sink, Reading& reading) {
    reading.summary = std::move(summary);
    part.Read(sink, reading);
  };
  return StoreText(session, {look.file, {}}, "Cannot read the file " + ShownPath(look.file),
                   reader);
}

void Add(ImportOutcome& whole, const ImportOutcome& part) {
  whole.boardsSaved += part.boardsSaved;
  whole.cancelled = part.cancelled;
  whole.refused = part.refused;
  whole.failed = whole.failed || part.failed;
}

/// Stores one section; opens the first of the libraries that it fills.
ImportOutcome StoreSection(Session& session, const ImportLook& look, const ImportChoices& choices) {
  if (!choices.newLibrary.empty() && !CreateLibrary(session, choices.newLibrary)) {
    return {.refused = true};
  }
  CountHands(session);
  const ImportPlan plan = PlanImport(look.contents, choices, session.library.boardPresent);
  const std::string first = session.LibraryName();
  const std::vector<std::string> names = PartNames(session, first, plan.parts);
  ImportOutcome whole{.file = look.file};
  // Without any board, too, the person is told so.
  const int parts = std::max(plan.parts, 1);
  for (int part = 0; part < parts && !whole.cancelled && !whole.refused; ++part) {
    const PartReader boards(look.contents, choices, plan, part);
    if (boards.Boards() == 0 && plan.stored > 0) continue;  // no number of this one fits a deal
    if (part > 0 && !CreateLibrary(session, names.at(static_cast<std::size_t>(part)))) {
      whole.failed = true;
      break;
    }
    std::string summary;
    if (choices.keepResults) summary = TablesText(boards.Boards(), boards.Tables());
    if (part + 1 == parts)
      Join(summary,
           LeftOutSummary(look.contents, look.contents.sections.at(choices.section), plan));
    Add(whole, StorePart(session, look, boards, std::move(summary)));
  }
  if (session.LibraryName() != first) SelectLibrary(session, first);
  return whole;
}

}  // namespace

std::vector<std::string> PartNames(const Session& session, const std::string& library, int parts) {
  std::vector<std::string> names{library};
  int number = 2;
  for (int part = 1; part < parts; ++part) names.push_back(NextName(session, library, number));
  return names;
}

std::string LibraryNameFor(const Session& session, std::string_view wanted) {
  std::string name;
  for (const char c : wanted) {
    name += static_cast<unsigned char>(c) < 0x80 &&
                    !AllowedInLibraryName(static_cast<char32_t>(c), name.empty())
                ? '-'
                : c;
  }
  name = Trim(name);
  if (!HasAllowedCharacters(name)) name = "Imported";
  int number = 2;
  return IsTakenInRoot(session, name) ? NextName(session, name, number) : name;
}

std::string SectionLibrary(const Session& session, const ImportLook& look, std::size_t at) {
  const std::string& section = look.contents.sections.at(at).name;
  return LibraryNameFor(session, PathText(look.file.stem()) + " " + section);
}

ImportOutcome StorePlanned(Session& session, const ImportLook& look, const ImportChoices& choices) {
  if (choices.section != kEverySection) return StoreSection(session, look, choices);
  ImportOutcome whole{.file = look.file};
  std::string first;
  for (std::size_t at = 0; at < look.contents.sections.size(); ++at) {
    ImportChoices each = choices;
    each.section = at;
    each.unwanted.clear();
    each.newLibrary = SectionLibrary(session, look, at);
    Add(whole, StoreSection(session, look, each));
    if (whole.cancelled || whole.refused) break;
    if (first.empty()) first = session.LibraryName();
  }
  if (!first.empty() && session.LibraryName() != first) SelectLibrary(session, first);
  return whole;
}

}  // namespace tricklet
