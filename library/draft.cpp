#include "library/draft.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/leftovers.h"
#include "disk/native_file.h"
#include "disk/presence.h"
#include "library/board_file.h"
#include "library/board_store.h"
#include "library/dated_folder.h"
#include "library/library_choice.h"
#include "library/library_names.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using std::chrono::seconds;

constexpr const char* kBase = "base.txt";
/// A window says so often that it still has its draft, by the time of the file. Its process number
/// alone does not tell: another program may have it by now.
constexpr seconds kSignOfLife{20};
constexpr seconds kNoSignOfLife{90};

/// The hidden folder goes with what is in it. What cannot be removed is found again at the next
/// start, where it is dropped as saved, or offered.
void Remove(const fs::path& folder) {
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

bool HasWindow(const DraftFolder& draft, const fs::path& board) {
  if (draft.process == ProcessId() || !ProcessRuns(draft.process)) return false;
  std::error_code failure;
  const auto written = fs::last_write_time(board, failure);
  return !failure && fs::file_time_type::clock::now() - written < kNoSignOfLife;
}

std::string TimeOf(const fs::path& file) {
  std::error_code failure;
  const auto written = fs::last_write_time(file, failure);
  const auto age =
      failure ? seconds{0}
              : std::chrono::duration_cast<seconds>(fs::file_time_type::clock::now() - written);
  return DatedText(std::time(nullptr) - static_cast<std::time_t>(age.count()));
}

std::optional<std::string> BytesOf(const fs::path& file) {
  if (!FileExists(file)) return std::nullopt;
  return ReadWholeFile(file, kMaxBoardFileBytes);
}

/// The file of the board in a draft's folder; empty when there is none.
fs::path BoardIn(const fs::path& folder) {
  fs::path board;
  ForEachEntry(folder, [&board](const fs::directory_entry& entry) {
    if (IsStorable(BoardNumberOfFile(PathText(entry.path().filename())))) board = entry.path();
  });
  return board;
}

/// Nothing when it is another window's, is damaged, or has been saved.
std::optional<Draft> ReadDraft(const Session& session, const std::string& library,
                               const DraftFolder& found) {
  const fs::path file = BoardIn(found.path);
  if (file.empty()) {
    if (!ProcessRuns(found.process)) Remove(found.path);
    return std::nullopt;
  }
  if (HasWindow(found, file)) return std::nullopt;
  Draft draft;
  draft.folder = found.path;
  draft.library = library;
  const auto text = BytesOf(file);
  const auto now = BytesOf(session.FileLocation() / PathFromText(library) / file.filename());
  if (text == now) {
    Remove(found.path);
    return std::nullopt;
  }
  if (!text || !ReadBoardText(*text, draft.board, TableReading::Always)) return std::nullopt;
  draft.board.boardNumber = BoardNumberOfFile(PathText(file.filename()));
  draft.base = BytesOf(found.path / kBase);
  draft.fileChanged = draft.base != now;
  draft.time = TimeOf(file);
  return draft;
}

/// The draft as the current board. Saving it asks before it replaces what others have stored since.
bool Restore(Session& session, const Draft& draft) {
  if (draft.library != session.LibraryName() && !SelectLibrary(session, draft.library))
    return false;
  LibraryState& state = session.library;
  state.maxBoard = std::max(state.maxBoard, draft.board.boardNumber);
  if (!SelectBoard(session, draft.board.boardNumber)) return false;
  session.board = draft.board;
  session.board.handChanged = true;
  session.seenFile = {session.BoardPath(draft.board.boardNumber), draft.base};
  ++session.boardsLoaded;
  return true;
}

/// Restored from the bin, it is a library with the one board.
void Discard(Session& session, const Draft& draft) {
  UnflushedFolders unflushed;
  std::error_code ignored;
  fs::remove(draft.folder / kBase, ignored);
  const std::string number = std::to_string(draft.board.boardNumber);
  const fs::path folder =
      BringBeside(draft.folder.parent_path(), draft.folder,
                  DatedName(draft.library, "unsaved board " + number), unflushed);
  if (!session.host.Recycle(folder)) {
    session.host.TellError(
        "The changes could not be sent to the recycle bin.\nThey are kept in the "
        "folder\n" +
        ShownPath(folder));
  }
  unflushed.Flush();
}

Answer AskAbout(Session& session, const Draft& draft) {
  const std::string number = std::to_string(draft.board.boardNumber);
  const std::string detail =
      draft.fileChanged ? "The stored board has been changed since then.\n" : "";
  return session.host.Ask({.text = "Board " + number + " in library " + ShownName(draft.library) +
                                   " was left with changes that had not been saved.",
                           .title = "Changes that were not saved",
                           .detail = detail + "The last change was made at " + draft.time +
                                     ". What is discarded goes to the recycle bin.",
                           .agree = "Restore board " + number,
                           .refuse = "Discard"});
}

}  // namespace

DraftKeeper::~DraftKeeper() {
  Keep();
}

void DraftKeeper::Keep() {
  if (session_.batchRunning) return;
  try {
    const Board& board = session_.board;
    const fs::path path = session_.BoardPath(board.boardNumber);
    const bool wanted = board.handChanged && IsStorable(board.boardNumber);
    const std::string text = wanted ? WriteBoardText(board) : std::string();
    const SeenFile& seen = session_.seenFile;
    const bool same = seen.path == path && seen.bytes == text;
    if (!folder_.empty() && (path != board_ || !wanted || same)) Drop();
    if (!wanted || same) {
      problem_.clear();
      return;
    }
    if (folder_.empty()) Begin(path);
    Write(text);
    problem_.clear();
  } catch (const std::exception& failure) {
    problem_ = FaultFrom(failure).Description();
  }
}

void DraftKeeper::Begin(const fs::path& board) {
  const fs::path library = board.parent_path();
  fs::path folder = library / NewDraftName();
  while (IsTaken(folder)) folder = library / NewDraftName();
  std::error_code failure;
  fs::create_directory(folder, failure);
  if (failure) throw Fault::OfFile(failure, PathText(folder));
  try {
    const SeenFile& seen = session_.seenFile;
    if (seen.path == board && seen.bytes) ReplaceWholeFile(folder / kBase, *seen.bytes);
    FlushFolder(library);
  } catch (const Fault&) {
    Remove(folder);
    throw;
  }
  folder_ = folder;
  board_ = board;
  text_.clear();
}

void DraftKeeper::Write(const std::string& text) {
  const auto now = std::chrono::steady_clock::now();
  const fs::path file = folder_ / board_.filename();
  if (text != text_ || !FileExists(file)) {
    ReplaceWholeFile(file, text);
    text_ = text;
  } else if (now - written_ > kSignOfLife) {
    std::error_code ignored;
    fs::last_write_time(file, fs::file_time_type::clock::now(), ignored);
  } else {
    return;
  }
  written_ = now;
}

/// It is in another place when the library has been renamed.
void DraftKeeper::Drop() {
  Remove(folder_);
  Remove(session_.LibraryPath() / folder_.filename());
  folder_.clear();
}

std::vector<Draft> FindDrafts(const Session& session) {
  std::vector<Draft> drafts;
  for (const std::string& library : FoldersOf(session.FileLocation())) {
    for (const DraftFolder& found :
         DraftFoldersIn(session.FileLocation() / PathFromText(library))) {
      try {
        if (auto draft = ReadDraft(session, library, found)) drafts.push_back(std::move(*draft));
      } catch (const Fault&) {
        // What cannot be read just now may be at another start.
      }
    }
  }
  std::stable_partition(drafts.begin(), drafts.end(), [&session](const Draft& draft) {
    return draft.library == session.LibraryName();
  });
  return drafts;
}

bool OfferDrafts(Session& session, DraftKeeper& keeper) {
  for (const Draft& draft : FindDrafts(session)) {
    const Answer answer = AskAbout(session, draft);
    if (answer == Answer::No) Discard(session, draft);
    if (answer != Answer::Yes) continue;
    if (!Restore(session, draft)) return true;
    keeper.Keep();
    if (keeper.Problem().empty()) Remove(draft.folder);
    return true;
  }
  return false;
}

}  // namespace tricklet
