#include "formats/exchange/export.h"

#include <algorithm>
#include <array>

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/leftovers.h"
#include "disk/presence.h"
#include "formats/dlm/dlm_writer.h"
#include "formats/exchange/file_type.h"
#include "formats/lin/lin_writer.h"
#include "formats/pbn/pbn_writer.h"
#include "library/board_file.h"
#include "library/board_notes.h"
#include "library/board_range.h"
#include "library/board_store.h"
#include "library/library_scan.h"
#include "library/tables.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

constexpr int kMissingListed = 20;     // fewer missing boards than this are listed
constexpr int kIncompleteListed = 10;  // fewer incomplete boards than this are listed

/// Boards of a range on their way into one file.
struct ExportRun {
  std::string text;
  std::vector<int> incomplete;
  bool cancelled = false;
  int lastWritable = kLastBoardNumber;  // the highest board that the type of file can hold
};

/// Loads board `number` of the range for writing; false when it is incomplete, which the run
/// notes, or when the run was cancelled.
bool LoadForExport(Session& session, const ExportRange& range, int number, ExportRun& run,
                   Board& board) {
  board.boardNumber = number;
  bool complete = false;
  LoadHandBasic(session, board, complete);
  if (!session.host.Step("Exporting board " + std::to_string(number), number - range.first,
                         range.last - range.first + 1)) {
    run.cancelled = true;
    return false;
  }
  if (!complete) run.incomplete.push_back(number);
  return complete;
}

void CollectPBN(Session& session, const ExportRange& range, ExportRun& run) {
  const BoardNotes notes = LoadNotes(session);
  Board board;
  for (int number = range.first; number <= range.last; ++number) {
    const bool complete = LoadForExport(session, range, number, run, board);
    if (run.cancelled) break;
    if (complete) {
      PbnOptions options{session.settings.pbnBids, session.settings.pbnShark};
      if (const auto note = notes.find(number); note != notes.end()) options.notes = note->second;
      run.text += PbnRecord(board, session.LibraryName(), options);
    }
    run.text += "\r\n";
  }
  run.text += "\r\n";
}

void CollectDLM(Session& session, const ExportRange& range, ExportRun& run) {
  run.text = DLMHeader(range.first, range.last);
  run.lastWritable = kLastDLMBoard;
  Board board;
  for (int number = kFirstBoardNumber; number <= kLastDLMBoard; ++number) {
    run.text += DLMBoardHead(number);
    if (number < range.first || number > range.last) {
      run.text += DLMPlaceholderLine(number);
    } else if (LoadForExport(session, range, number, run, board)) {
      run.text += DLMBoardLine(number, board.hands);
    }
    if (run.cancelled) break;
  }
  run.text += DLMFooter();
}

void CollectLIN(Session& session, const ExportRange& range, ExportRun& run) {
  Board board;
  for (int number = range.first; number <= range.last && !run.cancelled; ++number) {
    if (LoadForExport(session, range, number, run, board)) run.text += LinRecordLine(board);
  }
}

std::string IncompleteText(const std::vector<int>& incomplete) {
  const auto count = static_cast<int>(incomplete.size());
  std::string text =
      std::to_string(count) + (count == 1 ? " hand is" : " hands are") + " incomplete";
  if (count < kIncompleteListed) {
    text += ":-\n";
    for (const int number : incomplete) text += std::to_string(number) + " ";
  }
  return text;
}

std::string BoardsText(int first, int last) {
  return first == last ? "board " + std::to_string(first)
                       : "boards " + std::to_string(first) + "-" + std::to_string(last);
}

/// The message for a range that goes beyond what the file can hold.
std::string BeyondText(const ExportRange& range, const ExportRun& run) {
  std::string text = "The file can hold boards 1 to " + std::to_string(run.lastWritable) + ": ";
  if (range.first > run.lastWritable) return text + "none of the range was written";
  if (run.incomplete.empty()) text += BoardsText(range.first, run.lastWritable) + " written, ";
  return text + BoardsText(run.lastWritable + 1, range.last) + " left out";
}

/// "boards (part).pbn" beside "boards.pbn", or "boards (part 2).pbn" and so on when that is taken.
fs::path FreePartPath(const fs::path& path) {
  for (int number = 1;; ++number) {
    fs::path part = path;
    part.replace_filename(path.stem());
    part += number == 1 ? " (part)" : " (part " + std::to_string(number) + ")";
    part += path.extension();
    if (!IsTaken(part)) return part;
  }
}

/// Keeps the part of a cancelled export beside the file that was to be replaced, and asks which of
/// them is to stay.
void KeepPart(Session& session, const fs::path& path, const std::string& text) {
  const fs::path part = FreePartPath(path);
  ReplaceWholeFile(part, text);
  const Answer answer = session.host.Ask(
      {.text = "The file\n" + ShownPath(path) +
               "\nis as it was. What was exported until now is in\n" + ShownPath(part) +
               "\nDo you want this part to replace the old file?",
       .safe = Answer::No,
       .detail = "The old file would go to the recycle bin.",
       .agree = "Replace the old file",
       .refuse = "Keep both files"});
  if (answer != Answer::Yes) return;
  const fs::path old = fs::canonical(path);  // a link stays one
  if (!session.host.Recycle(old)) {
    session.host.TellError("Unable to send the old file to the recycle bin:\n" + ShownPath(old));
    return;
  }
  ReplaceWholeFile(old, text);
  std::error_code failure;
  if (!fs::remove(part, failure)) throw Fault::OfFile(failure, PathText(part));
}

/// Tells how it went; true when all boards were written.
bool ReportRun(Session& session, const ExportRange& range, const ExportRun& run,
               const fs::path& path) {
  if (!run.incomplete.empty()) session.host.TellError(IncompleteText(run.incomplete));
  if (run.cancelled) {
    session.host.Tell("Export cancelled");
    return false;
  }
  if (run.incomplete.empty()) session.host.Tell("File " + ShownPath(path) + " created");
  const bool beyond = range.last > run.lastWritable;
  if (beyond) session.host.TellError(BeyondText(range, run));
  return run.incomplete.empty() && !beyond;
}

using Collector = void (*)(Session&, const ExportRange&, ExportRun&);

/// Null for a type that cannot be written.
Collector CollectorOf(const std::string& type) {
  if (type == "pbn") return CollectPBN;
  if (type == "dlm") return CollectDLM;
  return type == "lin" ? CollectLIN : nullptr;
}

/// Computes the missing tables all at once, so that the solver gets full batches. False when the
/// person cancelled.
bool AddMissingTables(Session& session, const ExportRange& range) {
  if (!session.settings.autoMakeable || !session.getSolver) return true;
  if (!AnalyseBoards(session, session.getSolver(), range.first, range.last, false).cancelled) {
    return true;
  }
  session.host.Tell("Export cancelled");
  return false;
}

bool WriteRange(Session& session, const ExportRange& range, const fs::path& path,
                Collector collect) {
  if (!CheckExportRange(session, range) || !AddMissingTables(session, range)) return false;
  ExportRun run;
  try {
    {
      const WorkScope work(session.host);
      const BatchScope batch(session);
      collect(session, range, run);
    }
    // Of an export that was killed, which nobody else looks for in a folder of the person's own.
    SweepLeftovers(session.host, path.has_parent_path() ? path.parent_path() : fs::path("."));
    // A part is no reason to lose a whole file.
    const bool keepsOld = run.cancelled && FileExists(path);
    if (!keepsOld) ReplaceWholeFile(path, run.text);
    const bool complete = ReportRun(session, range, run, path);
    if (keepsOld) KeepPart(session, path, run.text);
    return complete;
  } catch (const std::exception& failure) {
    ErrorReport(session.host, FaultFrom(failure));
    return false;
  }
}

}  // namespace

const std::vector<std::string>& ExportTypes() {
  static const std::vector<std::string> kTypes{"pbn", "dlm", "lin"};
  return kTypes;
}

bool HasHandsToExport(Session& session) {
  CountHands(session);
  if (session.library.boardCount > 0) return true;
  session.host.Tell("There are no hands to export");
  return false;
}

bool CheckRangeTexts(Session& session, std::string_view from, std::string_view to,
                     ExportRange& range) {
  const auto boards = BoardRangeBetween(from, to);
  if (!boards) {
    session.host.Tell(kInvalidRange);
    return false;
  }
  range.first = boards->first;
  range.last = boards->last;
  return true;
}

bool CheckExportRange(Session& session, const ExportRange& range) {
  CountHands(session);
  int missing = 0;
  std::string list;
  for (int number = range.first; number <= range.last; ++number) {
    if (session.library.boardPresent.at(static_cast<std::size_t>(number))) continue;
    ++missing;
    if (!list.empty()) list += ", ";
    list += std::to_string(number);
  }
  if (missing == 0) return true;
  std::string text = std::to_string(missing) + " hands are missing in the specified range";
  if (missing < kMissingListed) text += ":\nHands " + list;
  session.host.Tell(text);
  return false;
}

fs::path SuggestedExportPath(const fs::path& last, const std::string& type) {
  constexpr std::size_t kTypeLength = 3;
  std::string text = PathText(last);
  if (text.size() > kTypeLength && FileTypeOf(last) != type) {
    text.replace(text.size() - kTypeLength, kTypeLength, type);
  }
  return PathFromText(text);
}

bool Export(Session& session, const ExportRange& range, fs::path& path) {
  if (!CheckExportRange(session, range)) return false;
  const auto chosen = session.host.ChooseSaveFile(
      {"Hand Records", {range.type}, SuggestedExportPath(path, range.type)});
  path = chosen.value_or(fs::path());
  return !path.empty() && ExportFile(session, range, path);
}

bool ExportFile(Session& session, const ExportRange& range, const fs::path& path) {
  // What is written is what is stored, so changes to the current board are settled first.
  if (!SettleChanges(session)) return false;
  if (const Collector collect = CollectorOf(FileTypeOf(path))) {
    return WriteRange(session, range, path, collect);
  }
  session.host.TellError("The file must be of type pbn, dlm or lin");
  return false;
}

}  // namespace tricklet
