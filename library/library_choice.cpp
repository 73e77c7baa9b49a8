#include "library/library_choice.h"

#include <algorithm>
#include <optional>

#include "core/fault.h"
#include "core/text.h"
#include "disk/native_file.h"
#include "disk/presence.h"
#include "library/board_store.h"
#include "library/library_folders.h"
#include "library/library_names.h"
#include "library/library_scan.h"
#include "library/library_write.h"
#include "library/loss_text.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

int PositionOf(const std::vector<std::string>& names, std::string_view name) {
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

/// Makes the library at `index` of the list the current one and loads its board 1. Throws `Fault`
/// when the library cannot be listed; nothing has changed then.
void EnterLibrary(Session& session, int index) {
  const std::string& name = session.libraryNames.at(static_cast<std::size_t>(index));
  const LibraryState scanned = ScanLibrary(session.FileLocation() / PathFromText(name));
  session.libIndex = index;
  session.settings.library = name;
  SaveSetting(session.settings, EntryOf(&Settings::library), session.store);
  // The library is entered all the same when this fails. Whatever is stored next brings it along.
  session.store.Sync();
  session.board.boardNumber = kFirstBoardNumber;
  session.library = scanned;
  LoadHand(session);
}

/// At the start, and after the root has moved: where the library cannot be entered, none is.
void EnterOrReport(Session& session, int index) {
  try {
    EnterLibrary(session, index);
  } catch (const Fault& fault) {
    session.libIndex = -1;
    session.library = {};
    ClearAll(session.board);
    ErrorReport(session.host, fault);
  }
}

std::string TrimQuestion(int highest, int maxBoard) {
  std::string text = "Please confirm that you wish to remove hand";
  if (highest == maxBoard - 1) {
    text += " " + std::to_string(maxBoard);
  } else {
    text += "s " + std::to_string(highest + 1) + " to " + std::to_string(maxBoard);
  }
  return text + "\n\nClick yes to send them to the recycle bin";
}

/// The highest board of the list afterwards: when the person cancels, the list stays as it was.
/// Nothing, after a message, when another program is changing the library.
std::optional<int> RecycleBoardsAbove(Session& session, int highest) {
  auto write = LibraryWrite::Begin(session);
  if (!write) return std::nullopt;
  int listed = highest;
  const WorkScope work(session.host);
  const int count = session.library.maxBoard - highest;
  for (int number = highest + 1; number <= session.library.maxBoard; ++number) {
    if (!session.host.Step("Removing hand " + std::to_string(number), number - highest, count)) {
      listed = session.library.maxBoard;
      break;
    }
    const fs::path path = session.BoardPath(number);
    // A failure is not reported: the count afterwards shows what really remains.
    if (FileExists(path)) session.host.Recycle(path);
  }
  write->Unflushed().Add(session.LibraryPath());
  write->Finish();
  return listed;
}

}  // namespace

void GetLibraryNames(Session& session) {
  if (!RequireFolder(session, session.FileLocation()) ||
      CheckSaveChanges(session) == Answer::Cancel)
    return;
  session.libraryNames = FoldersOf(session.FileLocation());
  if (session.libraryNames.empty()) {
    if (!MakeFolder(session, session.FileLocation() / "Default")) {
      session.libIndex = -1;
      return;
    }
    session.libraryNames.emplace_back("Default");
  }
  EnterOrReport(session, std::max(0, PositionOf(session.libraryNames, session.LibraryName())));
}

void ListAndShow(Session& session, int number) {
  session.board.boardNumber = number;
  FindFiles(session);
  session.board.boardNumber = std::clamp(number, kFirstBoardNumber, session.library.maxBoard);
  LoadHand(session);
}

bool SelectLibrary(Session& session, int index) {
  if (index < 0 || index >= static_cast<int>(session.libraryNames.size())) return false;
  if (CheckSaveChanges(session) == Answer::Cancel) return false;
  EnterLibrary(session, index);
  return true;
}

bool SelectLibrary(Session& session, std::string_view name) {
  return SelectLibrary(session, LibraryIndex(session, name));
}

int LibraryIndex(const Session& session, std::string_view name) {
  return PositionOf(session.libraryNames, NameMeant(session.libraryNames, name));
}

bool SelectBoard(Session& session, int boardNumber) {
  if (boardNumber < kFirstBoardNumber || boardNumber > session.library.maxBoard) return false;
  if (CheckSaveChanges(session) == Answer::Cancel) return false;
  session.board.boardNumber = boardNumber;
  LoadHand(session);
  return true;
}

bool StepBoard(Session& session, bool backward) {
  const int last = session.library.maxBoard;
  if (last == 0) return false;
  const int next = session.board.boardNumber + (backward ? -1 : 1);
  return SelectBoard(session, next > last ? kFirstBoardNumber : next < 1 ? last : next);
}

bool SetMaxBoard(Session& session, int highest) {
  LibraryState& library = session.library;
  if (!IsStorable(highest)) {
    session.host.Beep();
    return false;
  }
  if (highest >= library.maxBoard) {
    library.maxBoard = highest;
    return true;
  }
  if (session.host.Ask({.text = TrimQuestion(highest, library.maxBoard),
                        .safe = Answer::No,
                        .detail = BoardsAtStake(library, highest + 1, library.maxBoard,
                                                "would be removed")}) != Answer::Yes) {
    return false;
  }
  const auto listed = RecycleBoardsAbove(session, highest);
  if (!listed) return false;
  library.maxBoard = *listed;
  if (session.board.boardNumber > *listed) {
    session.board.boardNumber = *listed;
    LoadHand(session);
  }
  CountHands(session);
  return true;
}

void RefreshLibraryNames(Session& session) {
  if (!RequireFolder(session, session.FileLocation())) return;
  session.libraryNames = FoldersOf(session.FileLocation());
  session.libIndex = PositionOf(session.libraryNames, session.LibraryName());
  if (session.libIndex < 0) GetLibraryNames(session);
}

bool CreateLibrary(Session& session, std::string_view name) {
  const std::string trimmed(Trim(name));
  if (!AcceptNewName(session, trimmed)) return false;
  if (!SettleChanges(session)) return false;
  if (!MakeFolder(session, session.FileLocation() / PathFromText(trimmed))) return false;
  session.settings.library = trimmed;
  GetLibraryNames(session);
  StoreSettings(session);
  return true;
}

bool RenameLibrary(Session& session, std::string_view name) {
  const std::string trimmed(Trim(name));
  if (!AcceptNewName(session, trimmed)) return false;
  if (!RequireUnused(session.host, session.LibraryPath())) return false;
  std::error_code failure;
  fs::rename(session.LibraryPath(), session.FileLocation() / PathFromText(trimmed), failure);
  if (failure) {
    ErrorReport(session.host, Fault::OfFile(failure, PathText(session.LibraryPath())));
    return false;
  }
  FlushFolder(session.FileLocation());
  if (session.copyLibrary == session.LibraryName()) session.copyLibrary = trimmed;
  const bool seen = session.seenFile.path == session.BoardPath(session.board.boardNumber);
  session.settings.library = trimmed;
  if (seen) session.seenFile.path = session.BoardPath(session.board.boardNumber);
  SaveSetting(session, &Settings::library);
  RefreshLibraryNames(session);
  return true;
}

}  // namespace tricklet
