#include "formats/exchange/look_at.h"

#include <algorithm>
#include <map>
#include <vector>

#include "core/fault.h"
#include "formats/contents/lin_contents.h"
#include "formats/dlm/dlm_contents.h"

namespace tricklet {
namespace {

/// Keeps what an import without a look would leave in an empty library.
class BoardsKept : public BoardSink {
 public:
  void Store(const Board& board) override { boards_.insert_or_assign(board.boardNumber, board); }
  bool Begin(int /*boardNumber*/, int /*done*/) override { return true; }
  const std::map<int, Board>& Boards() const { return boards_; }

 private:
  std::map<int, Board> boards_;
};

bool AreEqual(const Board& stored, const Board& found) {
  return stored.hands == found.hands && stored.calls == found.calls &&
         stored.makeableValid == found.makeableValid &&
         (!found.makeableValid || stored.makeable == found.makeable);
}

bool HasLeftOut(const LeftOut& out) {
  return out.Unreadable() || !out.repeated.empty() || !out.unstorable.empty() ||
         !out.foreign.empty();
}

/// The reader brings the file's results into the library by itself.
bool KeepsResults(const RecordReader& reader) {
  return reader.brings != Brings::Nothing;
}

std::size_t CountRecords(const std::vector<FoundGame>& games) {
  std::size_t records = 0;
  for (const FoundGame& game : games) records += game.records.size();
  return records;
}

bool HasNotes(const std::vector<FoundGame>& games) {
  return std::any_of(games.begin(), games.end(),
                     [](const FoundGame& game) { return !game.notes.empty(); });
}

/// Every deal of the plan is one of `stored`, and they are no others.
bool StoresAll(const ImportPlan& plan, const std::vector<FoundGame>& games,
               const std::map<int, Board>& stored) {
  if (plan.boards.size() != stored.size()) return false;
  return std::all_of(plan.boards.begin(), plan.boards.end(), [&](const PlannedBoard& planned) {
    const FoundGame& game = games[planned.games.front()];
    if (planned.fate != Fate::Stored || planned.otherDealer || !game.troubles.None()) return false;
    const auto board = stored.find(planned.number);
    return board != stored.end() && AreEqual(board->second, game.board);
  });
}

struct Reread {
  BoardsKept sink;
  Reading reading;
  bool whole = false;  // nothing was left out, and nothing failed
};

void ReadAgain(const RecordReader& reader, const RecordSource& source, Reread& again) {
  RecordSource copy = source;  // a reader may use the bytes up
  try {
    reader.read(copy, again.sink, again.reading);
  } catch (const std::exception&) {
    return;
  }
  const ReadResult& result = again.reading.result;
  again.whole = !result.badLine && result.messages.empty() && !HasLeftOut(result.leftOut);
}

std::string Count(std::size_t number, const std::string& one, const std::string& several) {
  return std::to_string(number) + " " + (number == 1 ? one : several);
}

/// "lost: 3 results, notes": the parts of a line about the loss.
class LossLine {
 public:
  void Add(std::size_t number, const std::string& one, const std::string& several) {
    if (number > 0) Add(Count(number, one, several));
  }
  void Add(const std::string& what) { text_ += (text_.empty() ? "" : ", ") + what; }
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace

FileContents ReadContents(std::string_view type, const std::string& bytes) {
  if (type == "dlm") return ReadDlmContents(bytes);
  if (type == "lin") return ReadLinContents(bytes);
  return {};  // no full reader yet: imported without a look
}

bool LosesNothing(const RecordReader& reader, const RecordSource& source,
                  const FileContents& contents) {
  if (contents.sections.empty()) return true;
  if (contents.sections.size() > 1 || !contents.unread.empty()) return false;
  const auto& games = contents.sections.front().games;
  const std::size_t records = CountRecords(games);
  if (HasNotes(games) || (!KeepsResults(reader) && records > 0)) return false;
  Reread again;
  ReadAgain(reader, source, again);
  if (!again.whole) return false;
  if (KeepsResults(reader) && again.reading.results.lin.size() != records) return false;
  return StoresAll(PlanImport(contents, ImportChoices(), BoardsThere{}), games,
                   again.sink.Boards());
}

std::string LossOf(const FileContents& contents, const RecordReader& reader) {
  LossLine lost;
  LossLine altered;
  std::size_t results = 0;
  bool notes = false;
  for (std::size_t section = 0; section < contents.sections.size(); ++section) {
    const auto& games = contents.sections[section].games;
    ImportChoices choices = WithoutALook();
    choices.section = section;
    const ImportPlan plan = PlanImport(contents, choices, BoardsThere{});
    const auto of = [&plan](const auto& holds) {
      return static_cast<std::size_t>(std::count_if(plan.boards.begin(), plan.boards.end(), holds));
    };
    const auto withFate = [&of](Fate fate) {
      return of([fate](const PlannedBoard& board) { return board.fate == fate; });
    };
    lost.Add(withFate(Fate::Replaced), "deal whose number a later one has",
             "deals whose number a later one has");
    lost.Add(withFate(Fate::NoNumber), "deal without a number that a library can hold",
             "deals without a number that a library can hold");
    lost.Add(withFate(Fate::Impossible), "impossible deal", "impossible deals");
    lost.Add(withFate(Fate::AfterFault), "deal after a line that cannot be read",
             "deals after a line that cannot be read");
    altered.Add(
        of([](const PlannedBoard& board) { return IsStored(board.fate) && board.otherDealer; }),
        "board", "boards");
    results += CountRecords(games);
    notes = notes || HasNotes(games);
  }
  lost.Add(contents.unread.size(), "part that cannot be read", "parts that cannot be read");
  if (!KeepsResults(reader)) lost.Add(results, "result", "results");
  if (notes) lost.Add("notes");
  std::string text = lost.Text().empty() ? "" : "lost: " + lost.Text();
  if (!altered.Text().empty()) {
    text += (text.empty() ? "" : "; ") + std::string("other dealer or vulnerability: ") +
            altered.Text();
  }
  if (contents.fillers > 0) {
    text += (text.empty() ? "" : "; ") + std::string("stored though they only fill the file: ") +
            Count(static_cast<std::size_t>(contents.fillers), "deal", "deals");
  }
  return text;
}

}  // namespace tricklet
