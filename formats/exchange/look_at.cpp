#include "formats/exchange/look_at.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "core/fault.h"
#include "formats/contents/lin_contents.h"
#include "formats/dlm/dlm_contents.h"
#include "formats/pbn/pbn_contents.h"
#include "formats/usebio/usebio_contents.h"

namespace tricklet {
namespace {

/// Keeps what an import without a look would leave in an empty library.
class BoardsKept : public BoardSink {
 public:
  void Store(const Board& board) override { boards_.insert_or_assign(board.boardNumber, board); }
  bool Begin(int /*boardNumber*/, int /*done*/) override { return true; }
  std::map<int, Board> Take() { return std::move(boards_); }

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
  std::map<int, Board> boards;  // by number
  Reading reading;
  bool whole = false;  // nothing was left out, and nothing failed
};

Reread ReadAgain(const RecordReader& reader, const RecordSource& source) {
  Reread again;
  BoardsKept sink;
  RecordSource copy = source;  // a reader may use the bytes up
  try {
    reader.read(copy, sink, again.reading);
    const ReadResult& result = again.reading.result;
    again.whole = !result.badLine && result.messages.empty() && !HasLeftOut(result.leftOut);
  } catch (const std::exception&) {
    again.whole = false;  // what had been read is kept, as the import keeps it
  }
  again.boards = sink.Take();
  return again;
}

std::string Count(std::size_t number, const std::string& one, const std::string& several) {
  return std::to_string(number) + " " + (number == 1 ? one : several);
}

/// What an import without a look makes of a file.
struct Loss {
  std::size_t deals = 0;
  std::size_t lostDeals = 0;
  std::size_t otherDealers = 0;
  std::size_t results = 0;
  std::size_t fillers = 0;
  bool notes = false;

  void AddBoards(const ImportPlan& plan, const std::vector<FoundGame>& games,
                 const std::map<int, Board>& stored) {
    for (const PlannedBoard& planned : plan.boards) {
      const FoundGame& game = games[planned.games.front()];
      if (game.troubles.Has(DealTrouble::NoCards)) continue;
      ++deals;
      const auto board = stored.find(game.number);
      const bool kept = board != stored.end() && board->second.hands == game.board.hands;
      if (!kept) ++lostDeals;
      if (kept && planned.otherDealer) ++otherDealers;
    }
  }

  std::string Text() const {
    std::vector<std::string> lost;
    if (lostDeals > 0)
      lost.push_back(std::to_string(lostDeals) + " of " + Count(deals, "deal", "deals"));
    if (results > 0) lost.push_back(Count(results, "result", "results"));
    if (notes) lost.emplace_back("notes");
    std::string text;
    for (const std::string& each : lost) text += (text.empty() ? "lost: " : ", ") + each;
    const auto add = [&text](const std::string& more) {
      text += (text.empty() ? "" : "; ") + more;
    };
    if (otherDealers > 0) {
      add("other dealer or vulnerability: " + Count(otherDealers, "board", "boards"));
    }
    if (fillers > 0)
      add("stored though they only fill the file: " + Count(fillers, "deal", "deals"));
    return text;
  }
};

/// The file has something that the import never keeps.
bool HasWhatIsLost(const RecordReader& reader, const FileContents& contents) {
  if (contents.sections.size() > 1 || !contents.unread.empty()) return true;
  const auto& games = contents.sections.front().games;
  return HasNotes(games) || (!KeepsResults(reader) && CountRecords(games) > 0);
}

/// The import leaves all that the file has, as the file has it.
bool KeepsAll(const RecordReader& reader, const RecordSource& source,
              const FileContents& contents) {
  if (HasWhatIsLost(reader, contents)) return false;
  const Reread again = ReadAgain(reader, source);
  const auto& games = contents.sections.front().games;
  return again.whole &&
         (!KeepsResults(reader) || again.reading.results.lin.size() == CountRecords(games)) &&
         StoresAll(PlanImport(contents, ImportChoices(), BoardsThere{}), games, again.boards);
}

std::string LossOf(const RecordReader& reader, const Reread& again, const FileContents& contents) {
  Loss loss;
  for (std::size_t section = 0; section < contents.sections.size(); ++section) {
    ImportChoices choices = WithoutALook();
    choices.skipBad = true;  // what cannot be read here is not what ends such an import
    choices.section = section;
    const auto& games = contents.sections[section].games;
    loss.AddBoards(PlanImport(contents, choices, BoardsThere{}), games, again.boards);
    loss.notes = loss.notes || HasNotes(games);
    loss.results += CountRecords(games);
  }
  if (KeepsResults(reader)) {
    loss.results -= std::min(loss.results, again.reading.results.lin.size());
  }
  loss.fillers = static_cast<std::size_t>(contents.fillers);
  return loss.Text();
}

}  // namespace

FileContents ReadContents(std::string_view type, const std::string& bytes) {
  if (type == "pbn") return ReadPbnContents(bytes);
  if (type == "dlm") return ReadDlmContents(bytes);
  if (type == "lin") return ReadLinContents(bytes);
  return ReadUsebioContents(bytes);
}

PlainImport WithoutLook(const RecordReader& reader, const RecordSource& source,
                        const FileContents& contents) {
  PlainImport plain;
  plain.losesNothing = contents.sections.empty() || KeepsAll(reader, source, contents);
  if (plain.losesNothing) return plain;
  plain.loss = [&reader, source](const FileContents& all) {
    return LossOf(reader, ReadAgain(reader, source), all);
  };
  return plain;
}

}  // namespace tricklet
