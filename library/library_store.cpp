#include "library/library_store.h"

#include <algorithm>

#include "core/fault.h"
#include "core/text.h"
#include "library/board_file.h"
#include "library/board_store.h"
#include "library/file_io.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// Names in the order of the list: letter case counts only between names that are otherwise equal.
bool NameBefore(const std::string& a, const std::string& b) {
  const std::string foldedA = FoldCase(a);
  const std::string foldedB = FoldCase(b);
  return foldedA != foldedB ? foldedA < foldedB : a < b;
}

int PositionOf(const std::vector<std::string>& names, std::string_view name) {
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

/// Makes `name` the current library and shows its first board; the list must hold it.
void EnterLibrary(Session& session, int index) {
  session.libIndex = index;
  session.settings.library = session.libraryNames.at(static_cast<std::size_t>(index));
  SaveSetting(session, &Settings::library);
  session.board.boardNumber = kFirstBoardNumber;
  FindFiles(session);
  LoadHand(session);
}

/// Creates the folder in the root, which must be there: a drive that is gone is not to be made anew
/// out of folders. A failure is reported.
bool MakeFolder(Session& session, const fs::path& path) {
  std::error_code failure;
  fs::create_directory(path, failure);
  if (failure) ErrorReport(session.host, Fault::OfFile(failure, PathText(path)));
  return !failure;
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

void RecycleBoardsAbove(Session& session, int highest) {
  for (int number = highest + 1; number <= session.library.maxBoard; ++number) {
    const fs::path path = session.BoardPath(number);
    // A failure is not reported: the count afterwards shows what really remains.
    if (FileExists(path)) session.host.Recycle(path);
  }
}

constexpr std::size_t kShownOfName = 60;

void TellNotAName(Host& host, std::string_view name) {
  host.Tell(name.empty() ? "A library needs a name"
                         : "A library cannot be named " + Showable(name, kShownOfName));
}

std::string_view TrimmedName(std::string_view name) {
  return Trim(name);
}

bool IsListed(const std::vector<std::string>& names, std::string_view name) {
  return std::any_of(names.begin(), names.end(),
                     [name](const std::string& taken) { return EqualFolded(taken, name); });
}

}  // namespace

std::vector<std::string> FoldersOf(const fs::path& root) {
  std::vector<std::string> names;
  std::error_code failure;
  for (fs::directory_iterator entry(root, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    std::string name = PathText(entry->path().filename());
    std::error_code ignored;
    if (!IsLibraryName(name) || !entry->is_directory(ignored)) continue;
    names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end(), NameBefore);
  return names;
}

bool RequireFolder(Session& session, const fs::path& folder) {
  std::error_code ignored;
  if (fs::is_directory(folder, ignored)) return true;
  session.host.Tell("There is no folder " + PathText(folder));
  return false;
}

bool AcceptLibraryRoot(Host& host, const fs::path& folder) {
  if (!IsDriveRoot(folder)) return true;
  host.Tell("Please choose a folder, not " + PathText(folder));
  return false;
}

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
  EnterLibrary(session, std::max(0, PositionOf(session.libraryNames, session.LibraryName())));
}

LibraryState ScanLibrary(const fs::path& folder) {
  LibraryState library;
  std::error_code failure;
  for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    const int number = BoardNumberOfFile(PathText(entry->path().filename()));
    std::error_code ignored;
    if (!IsStorable(number) || entry->is_directory(ignored)) continue;
    library.boardPresent.at(static_cast<std::size_t>(number)) = true;
    ++library.boardCount;
    library.firstBoard = std::min(library.firstBoard, number);
    library.lastBoard = std::max(library.lastBoard, number);
  }
  return library;
}

void CountHands(Session& session) {
  const int maxBoard = session.library.maxBoard;
  session.library = ScanLibrary(session.LibraryPath());
  session.library.maxBoard = maxBoard;
}

void FindFiles(Session& session) {
  CountHands(session);
  LibraryState& library = session.library;
  library.maxBoard = library.boardCount == 0 ? kBoardsOfEmptyLibrary : library.lastBoard;
}

void ListAndShow(Session& session, int number) {
  session.board.boardNumber = number;
  FindFiles(session);
  session.board.boardNumber = std::clamp(number, kFirstBoardNumber, session.library.maxBoard);
  LoadHand(session);
}

std::string LibraryCaption(const Session& session) {
  return "Library - " + session.LibraryName();
}

std::string LibraryCountText(const Session& session) {
  return std::to_string(session.library.boardCount) + " boards in library";
}

Answer CheckSaveChanges(Session& session) {
  if (session.batchRunning || !session.board.handChanged) return Answer::OK;
  const std::string question = "Do you want to save changes to board " +
                               std::to_string(session.board.boardNumber) + " in library " +
                               session.LibraryName() + "?";
  switch (session.host.Ask(question, "Save changes?", Buttons::YesNoCancel)) {
    case Answer::Yes:
      // A board that could not be saved stays, with its changes.
      return SaveHand(session) ? Answer::OK : Answer::Cancel;
    case Answer::No:
      session.board.handChanged = false;
      return Answer::OK;
    default:
      return Answer::Cancel;
  }
}

bool SettleChanges(Session& session) {
  if (session.batchRunning || !session.board.handChanged) return true;
  if (CheckSaveChanges(session) == Answer::Cancel) return false;
  LoadHand(session);
  return true;
}

bool SelectLibrary(Session& session, int index) {
  if (index < 0 || index >= static_cast<int>(session.libraryNames.size())) return false;
  if (CheckSaveChanges(session) == Answer::Cancel) return false;
  EnterLibrary(session, index);
  return true;
}

bool SelectLibrary(Session& session, std::string_view name) {
  const int exact = PositionOf(session.libraryNames, name);
  return SelectLibrary(session,
                       exact >= 0 ? exact : PositionOf(session.libraryNames, TrimmedName(name)));
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
  if (session.host.Ask(TrimQuestion(highest, library.maxBoard), std::string(kProgramName),
                       Buttons::YesNo) != Answer::Yes) {
    return false;
  }
  RecycleBoardsAbove(session, highest);
  library.maxBoard = highest;
  if (session.board.boardNumber > highest) {
    session.board.boardNumber = highest;
    LoadHand(session);
  }
  CountHands(session);
  return true;
}

bool IsLibraryName(std::string_view name) {
  const fs::path path = PathFromText(name);
  return !name.empty() && !name.starts_with('.') && IsValidUtf8(name) && path == path.filename();
}

bool AcceptLibraryName(Host& host, std::string_view name) {
  if (IsLibraryName(name)) return true;
  TellNotAName(host, name);
  return false;
}

bool RequireLibraryFolder(Session& session) {
  const std::string& name = session.LibraryName();
  if (!AcceptLibraryName(session.host, name)) return false;
  std::error_code ignored;
  if (fs::is_directory(session.LibraryPath(), ignored)) return true;
  if (HasAllowedCharacters(name)) return MakeFolder(session, session.LibraryPath());
  TellNotAName(session.host, name);
  return false;
}

bool AllowedInLibraryName(char32_t character, bool first) {
  constexpr std::u32string_view kRefused = U"/:*?\"<>|.\\";  // "\" would make a folder in a folder
  if (character < 0x20 || character == 0x7F) return false;
  if (first && character == U' ') return false;
  return kRefused.find(character) == std::u32string_view::npos;
}

bool HasAllowedCharacters(std::string_view name) {
  bool first = true;
  for (const char c : name) {
    // Bytes of other characters are all allowed, so a byte can stand for its character here.
    if (!AllowedInLibraryName(static_cast<unsigned char>(c), first)) return false;
    first = false;
  }
  return !name.empty() && name.size() <= kLongestLibraryName;
}

bool IsNewLibraryName(const Session& session, std::string_view name) {
  const std::string_view trimmed = TrimmedName(name);
  return HasAllowedCharacters(trimmed) && !IsListed(session.libraryNames, trimmed);
}

bool IsTakenInRoot(const Session& session, std::string_view name) {
  const fs::path root = session.FileLocation();
  return IsListed(FoldersOf(root), name) || IsTaken(root / PathFromText(name));
}

bool AcceptNewName(Session& session, std::string_view name) {
  if (!HasAllowedCharacters(name)) {
    session.host.Beep();
    TellNotAName(session.host, name);
    return false;
  }
  if (!IsTakenInRoot(session, name)) return true;
  session.host.Tell(std::string(name) + " already exists\nPlease choose a different name");
  return false;
}

void RefreshLibraryNames(Session& session) {
  if (!RequireFolder(session, session.FileLocation())) return;
  session.libraryNames = FoldersOf(session.FileLocation());
  session.libIndex = PositionOf(session.libraryNames, session.LibraryName());
  if (session.libIndex < 0) GetLibraryNames(session);
}

bool CreateLibrary(Session& session, std::string_view name) {
  const std::string trimmed(TrimmedName(name));
  if (!AcceptNewName(session, trimmed)) return false;
  if (!SettleChanges(session)) return false;
  if (!MakeFolder(session, session.FileLocation() / PathFromText(trimmed))) return false;
  session.settings.library = trimmed;
  GetLibraryNames(session);
  return true;
}

bool RenameLibrary(Session& session, std::string_view name) {
  const std::string trimmed(TrimmedName(name));
  if (!AcceptNewName(session, trimmed)) return false;
  std::error_code failure;
  fs::rename(session.LibraryPath(), session.FileLocation() / PathFromText(trimmed), failure);
  if (failure) {
    ErrorReport(session.host, Fault::OfFile(failure, PathText(session.LibraryPath())));
    return false;
  }
  if (session.copyLibrary == session.LibraryName()) session.copyLibrary = trimmed;
  session.settings.library = trimmed;
  SaveSetting(session, &Settings::library);
  RefreshLibraryNames(session);
  return true;
}

}  // namespace tricklet
