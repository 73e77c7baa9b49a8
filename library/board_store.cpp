#include "library/board_store.h"

#include "analysis/get_dds.h"
#include "core/fault.h"
#include "core/statistics.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "library/board_file.h"
#include "library/library_scan.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// Asks before a changed board replaces its file.
bool AgreesToReplace(Session& session, Buttons style) {
  const std::string question =
      "Overwrite existing board " + std::to_string(session.board.boardNumber) + "?";
  const Answer answer = session.host.Ask(question, "Hand already in library", style);
  return answer == Answer::Yes || answer == Answer::OK;
}

/// There is no file of the path; what cannot be seen is tried to be read, and fails so.
bool IsKnownAbsent(const fs::path& path) {
  try {
    return !FileExists(path);
  } catch (const Fault&) {
    return false;
  }
}

void TellUnreadable(Session& session, const fs::path& path) {
  session.host.Tell("Can't read the file " + ShownPath(path));
}

/// The person agrees, and the file is not marked read-only.
bool MaySave(Session& session, Buttons style) {
  const fs::path path = session.BoardPath(session.board.boardNumber);
  if (session.board.handChanged && FileExists(path) && !AgreesToReplace(session, style)) {
    return false;
  }
  if (!IsReadOnly(path)) return true;
  session.host.Tell(ReadOnlyText(path));
  return false;
}

bool ReadBoardFile(const fs::path& path, Board& board, TableReading tables) {
  try {
    return ReadBoardText(ReadWholeFile(path, kMaxBoardFileBytes), board, tables);
  } catch (const Fault&) {
    return false;
  }
}

/// Gives the board just read from `path` the table that it lacks, in memory and in its file.
void AddMissingTable(Session& session, const fs::path& path, Board& board) {
  if (session.tablesInBackground || !WantsTable(session, board)) return;
  if (!GetDDS(board, session.getSolver(), session.host, false)) return;
  board.handChanged = false;
  try {
    if (IsReadOnly(path)) return;
    // What another program is changing is not to be waited for.
    auto write = LibraryWrite::BeginAtOnce(session);
    if (!write) return;
    write->Replace(path, WriteBoardText(board));
    write->Finish();
  } catch (const Fault&) {
    // The table is on the screen all the same; it just cannot be kept in a read-only folder.
  }
}

}  // namespace

std::string ReadOnlyText(const fs::path& path) {
  return "The file\n" + ShownPath(path) + "\nis read only so the hand cannot be saved";
}

bool SaveHand(Session& session, Buttons style) {
  try {
    if (!MaySave(session, style)) return false;
    auto write = LibraryWrite::Begin(session);
    if (!write) return false;
    StoreBoard(session, *write);
    session.board.handChanged = true;  // until it is sure to last
    write->Finish();
    session.board.handChanged = false;
    CountHands(session);
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
    return false;
  }
  return true;
}

void StoreBoard(Session& session, LibraryWrite& write) {
  if (!IsStorable(session.board.boardNumber)) {
    throw Fault(FaultNumber::SubscriptOutOfRange, "A library holds boards 1 to 999");
  }
  const fs::path path = session.BoardPath(session.board.boardNumber);
  if (IsReadOnly(path)) throw Fault(FaultNumber::PathFileAccess, ReadOnlyText(path));
  write.Replace(path, WriteBoardText(session.board));
  session.board.handChanged = false;
}

bool LoadHand(Session& session) {
  const fs::path path = session.BoardPath(session.board.boardNumber);
  ++session.boardsLoaded;
  ClearAll(session.board);
  session.board.handChanged = false;
  if (IsKnownAbsent(path)) return false;
  const bool readable = ReadBoardFile(path, session.board, TableReading::Always);
  if (readable) {
    AddMissingTable(session, path, session.board);
  } else {
    TellUnreadable(session, path);
  }
  return readable;
}

bool ReadBoard(Session& session, Board& board) {
  const fs::path path = session.BoardPath(board.boardNumber);
  ClearAll(board);
  board.handChanged = false;
  const bool readable = ReadBoardFile(path, board, TableReading::OnlyWhenComplete);
  if (!readable) TellUnreadable(session, path);
  return readable;
}

bool LoadHandBasic(Session& session, Board& board, bool& allHandsComplete) {
  const fs::path path = session.BoardPath(board.boardNumber);
  ClearAll(board);
  board.handChanged = false;
  const bool readable =
      ReadBoardText(ReadWholeFile(path, kMaxBoardFileBytes), board, TableReading::OnlyWhenComplete);
  if (!readable) TellUnreadable(session, path);
  allHandsComplete = readable && GetStats(board.hands).allHandsComplete;
  if (allHandsComplete) AddMissingTable(session, path, board);
  return readable;
}

bool WantsTable(const Session& session, const Board& board) {
  return !board.makeableValid && session.settings.autoMakeable && session.getSolver &&
         GetStats(board.hands).allHandsComplete;
}

}  // namespace tricklet
