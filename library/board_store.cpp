#include "library/board_store.h"

#include "analysis/get_dds.h"
#include "core/fault.h"
#include "core/statistics.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "library/board_file.h"
#include "library/board_on_disk.h"
#include "library/library_scan.h"
#include "library/loss_text.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

bool AgreesToReplace(Session& session, DiskChange change, Buttons style) {
  if (IsLossToReplace(change)) {
    return session.host.Ask(ReplaceChangedQuestion(session, change, "the board shown here")) ==
           Answer::Yes;
  }
  const std::string question =
      "Overwrite existing board " + std::to_string(session.board.boardNumber) + "?";
  const Answer answer =
      session.host.Ask({.text = question,
                        .title = "Hand already in library",
                        .buttons = style,
                        .safe = style == Buttons::OKCancel ? Answer::Cancel : Answer::No,
                        .detail = ReplacedText(session)});
  return answer == Answer::Yes || answer == Answer::OK;
}

bool IsAbsent(const SeenFile& file) {
  return !file.path.empty() && !file.bytes;
}

bool ReadSeen(const SeenFile& file, Board& board, TableReading tables) {
  return file.bytes && ReadBoardText(*file.bytes, board, tables);
}

void TellUnreadable(Session& session, const fs::path& path) {
  session.host.TellError("Can't read the file " + ShownPath(path));
}

/// The person agrees to what the save replaces, and the file is not marked read-only. One that
/// another program has removed is no loss.
bool MaySave(Session& session, DiskChange change, Buttons style) {
  const fs::path path = session.BoardPath(session.board.boardNumber);
  const bool asks = IsLossToReplace(change) || (session.board.handChanged && FileExists(path));
  if (asks && !AgreesToReplace(session, change, style)) return false;
  if (!IsReadOnly(path)) return true;
  session.host.TellError(ReadOnlyText(path));
  return false;
}

/// Gives the board just read from `file` the table that it lacks, in memory and in that file.
void AddMissingTable(Session& session, const SeenFile& file, Board& board) {
  if (session.tablesInBackground || !WantsTable(session, board)) return;
  if (!GetDDS(board, session.getSolver(), session.host, false)) return;
  board.handChanged = false;
  try {
    if (IsReadOnly(file.path)) return;
    // What another program is changing, or has changed since, is left to it.
    auto write = LibraryWrite::BeginAtOnce(session);
    if (!write || LookAtBoardFile(file.path) != file) return;
    const std::string text = WriteBoardText(board);
    write->Replace(file.path, text);
    TakeAsSeen(session, file, text);
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
    auto write =
        BeginReplacing(session, [&](DiskChange change) { return MaySave(session, change, style); });
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
  std::string text = WriteBoardText(session.board);
  write.Replace(path, text);
  session.seenFile = {path, std::move(text)};
  session.board.handChanged = false;
}

bool LoadHand(Session& session) {
  const fs::path path = session.BoardPath(session.board.boardNumber);
  ++session.boardsLoaded;
  ClearAll(session.board);
  session.board.handChanged = false;
  const SeenFile file = LookAtBoardFile(path);
  session.seenFile = file;
  if (IsAbsent(file)) return false;
  const bool readable = ReadSeen(file, session.board, TableReading::Always);
  if (readable) {
    AddMissingTable(session, file, session.board);
  } else {
    TellUnreadable(session, path);
  }
  return readable;
}

bool ReadBoard(Session& session, Board& board) {
  const fs::path path = session.BoardPath(board.boardNumber);
  ClearAll(board);
  board.handChanged = false;
  const bool readable = ReadSeen(LookAtBoardFile(path), board, TableReading::OnlyWhenComplete);
  if (!readable) TellUnreadable(session, path);
  return readable;
}

bool LoadHandBasic(Session& session, Board& board, bool& allHandsComplete) {
  const fs::path path = session.BoardPath(board.boardNumber);
  ClearAll(board);
  board.handChanged = false;
  const SeenFile file{path, ReadWholeFile(path, kMaxBoardFileBytes)};
  const bool readable = ReadSeen(file, board, TableReading::OnlyWhenComplete);
  if (!readable) TellUnreadable(session, path);
  allHandsComplete = readable && GetStats(board.hands).allHandsComplete;
  if (allHandsComplete) AddMissingTable(session, file, board);
  return readable;
}

bool WantsTable(const Session& session, const Board& board) {
  return !board.makeableValid && session.settings.autoMakeable && session.getSolver &&
         GetStats(board.hands).allHandsComplete;
}

}  // namespace tricklet
