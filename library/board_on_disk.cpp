#include "library/board_on_disk.h"

#include <utility>

#include "core/fault.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "library/board_file.h"
#include "library/board_store.h"

namespace tricklet {

namespace fs = std::filesystem;

SeenFile LookAtBoardFile(const fs::path& path) {
  try {
    if (!FileExists(path)) return {path, std::nullopt};
    return {path, ReadWholeFile(path, kMaxBoardFileBytes)};
  } catch (const Fault&) {
    return {};
  }
}

DiskChange ChangeSince(const SeenFile& seen, const SeenFile& now) {
  if (seen.path != now.path || seen.bytes == now.bytes) return DiskChange::None;
  if (!seen.bytes) return DiskChange::Added;
  return now.bytes ? DiskChange::Changed : DiskChange::Removed;
}

DiskChange ChangeOnDisk(const Session& session) {
  return ChangeSince(session.seenFile,
                     LookAtBoardFile(session.BoardPath(session.board.boardNumber)));
}

void TakeAsSeen(Session& session, const SeenFile& before, std::string bytes) {
  if (session.seenFile == before) session.seenFile.bytes = std::move(bytes);
}

bool LoadChangedHand(Session& session) {
  const SeenFile now = LookAtBoardFile(session.BoardPath(session.board.boardNumber));
  if (ChangeSince(session.seenFile, now) == DiskChange::None || !now.bytes) return false;
  Board whole;
  whole.boardNumber = session.board.boardNumber;
  return ReadBoardText(*now.bytes, whole, TableReading::Always) && LoadHand(session);
}

std::optional<LibraryWrite> BeginReplacing(Session& session,
                                           const std::function<bool(DiskChange)>& agrees) {
  const fs::path path = session.BoardPath(session.board.boardNumber);
  for (SeenFile now = LookAtBoardFile(path); agrees(ChangeSince(session.seenFile, now));
       now = LookAtBoardFile(path)) {
    auto write = LibraryWrite::Begin(session);
    if (!write || LookAtBoardFile(path) == now) return write;
  }
  return std::nullopt;
}

Question ReplaceChangedQuestion(const Session& session, DiskChange change,
                                const std::string& replacement) {
  const std::string board = std::to_string(session.board.boardNumber);
  return {.text = "Board " + board + " in the library " + session.ShownLibrary() + " has been " +
                  (change == DiskChange::Added ? "added" : "changed") +
                  " by another program since it was opened.\nDo you want to replace it with " +
                  replacement + "?",
          .title = "Board changed on disk",
          .safe = Answer::No,
          .detail = "What the other program has stored as board " + board + " would be replaced.",
          .agree = "Replace board " + board,
          .refuse = "Keep the stored board"};
}

}  // namespace tricklet
