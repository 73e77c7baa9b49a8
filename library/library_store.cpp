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

/// Names in the order of the list: letter case does not count, and is the last resort.
bool NameBefore(const std::string& a, const std::string& b) {
  const std::string upperA = ToUpper(a);
  const std::string upperB = ToUpper(b);
  return upperA != upperB ? upperA < upperB : a < b;
}

int PositionOf(const std::vector<std::string>& names, std::string_view name) {
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

/// Makes `name` the current library and shows its first board; the list must hold it.
void EnterLibrary(Session& session, int index) {
  session.LibIndex = index;
  session.settings.library = session.LibraryNames.at(static_cast<std::size_t>(index));
  SaveSetting(session.settings, "library", session.store);
  session.board.BoardNumber = kFirstBoardNumber;
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
  for (int number = highest + 1; number <= session.library.MaxBoard; ++number) {
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
                     [name](const std::string& taken) { return EqualNoCase(taken, name); });
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
  session.LibraryNames = FoldersOf(session.FileLocation());
  if (session.LibraryNames.empty()) {
    if (!MakeFolder(session, session.FileLocation() / "Default")) {
      session.LibIndex = -1;
      return;
    }
    session.LibraryNames.emplace_back("Default");
  }
  EnterLibrary(session, std::max(0, PositionOf(session.LibraryNames, session.LibraryName())));
}

LibraryState ScanLibrary(const fs::path& folder) {
  LibraryState library;
  std::error_code failure;
  for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    const int number = BoardNumberOfFile(PathText(entry->path().filename()));
    std::error_code ignored;
    if (!IsStorable(number) || entry->is_directory(ignored)) continue;
    library.BoardPresent.at(static_cast<std::size_t>(number)) = true;
    ++library.BoardCount;
    library.FirstBoard = std::min(library.FirstBoard, number);
    library.LastBoard = std::max(library.LastBoard, number);
  }
  return library;
}

void CountHands(Session& session) {
  const int maxBoard = session.library.MaxBoard;
  session.library = ScanLibrary(session.LibraryPath());
  session.library.MaxBoard = maxBoard;
}

void FindFiles(Session& session) {
  CountHands(session);
  LibraryState& library = session.library;
  library.MaxBoard = library.BoardCount == 0 ? kBoardsOfEmptyLibrary : library.LastBoard;
}

void ListAndShow(Session& session, int number) {
  session.board.BoardNumber = number;
  FindFiles(session);
  session.board.BoardNumber = std::clamp(number, kFirstBoardNumber, session.library.MaxBoard);
  LoadHand(session);
}

std::string LibraryCaption(const Session& session) {
  return "Library - " + session.LibraryName();
}

std::string LibraryCountText(const Session& session) {
  return std::to_string(session.library.BoardCount) + " boards in library";
}

Answer CheckSaveChanges(Session& session) {
  if (session.BatchRunning || !session.board.HandChanged) return Answer::OK;
  const std::string question = "Do you want to save changes to board " +
                               std::to_string(session.board.BoardNumber) + " in library " +
                               session.LibraryName() + "?";
  switch (session.host.Ask(question, "Save changes?", Buttons::YesNoCancel)) {
    case Answer::Yes:
      // A board that could not be saved stays, with its changes.
      return SaveHand(session) ? Answer::OK : Answer::Cancel;
    case Answer::No:
      session.board.HandChanged = false;
      return Answer::OK;
    default:
      return Answer::Cancel;
  }
}

bool SettleChanges(Session& session) {
  if (session.BatchRunning || !session.board.HandChanged) return true;
  if (CheckSaveChanges(session) == Answer::Cancel) return false;
  LoadHand(session);
  return true;
}

bool SelectLibrary(Session& session, int index) {
  if (index < 0 || index >= static_cast<int>(session.LibraryNames.size())) return false;
  if (CheckSaveChanges(session) == Answer::Cancel) return false;
  EnterLibrary(session, index);
  return true;
}

bool SelectLibrary(Session& session, std::string_view name) {
  const int exact = PositionOf(session.LibraryNames, name);
  return SelectLibrary(session,
                       exact >= 0 ? exact : PositionOf(session.LibraryNames, TrimmedName(name)));
}

bool SelectBoard(Session& session, int boardNumber) {
  if (boardNumber < kFirstBoardNumber || boardNumber > session.library.MaxBoard) return false;
  if (CheckSaveChanges(session) == Answer::Cancel) return false;
  session.board.BoardNumber = boardNumber;
  LoadHand(session);
  return true;
}

bool StepBoard(Session& session, bool backward) {
  const int last = session.library.MaxBoard;
  if (last == 0) return false;
  const int next = session.board.BoardNumber + (backward ? -1 : 1);
  return SelectBoard(session, next > last ? kFirstBoardNumber : next < 1 ? last : next);
}

bool SetMaxBoard(Session& session, int highest) {
  LibraryState& library = session.library;
  if (!IsStorable(highest)) {
    session.host.Beep();
    return false;
  }
  if (highest >= library.MaxBoard) {
    library.MaxBoard = highest;
    return true;
  }
  if (session.host.Ask(TrimQuestion(highest, library.MaxBoard), std::string(kProgramName),
                       Buttons::YesNo) != Answer::Yes) {
    return false;
  }
  RecycleBoardsAbove(session, highest);
  library.MaxBoard = highest;
  if (session.board.BoardNumber > highest) {
    session.board.BoardNumber = highest;
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
  return HasAllowedCharacters(trimmed) && !IsListed(session.LibraryNames, trimmed);
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
  session.LibraryNames = FoldersOf(session.FileLocation());
  session.LibIndex = PositionOf(session.LibraryNames, session.LibraryName());
  if (session.LibIndex < 0) GetLibraryNames(session);
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
  if (session.CopyLibrary == session.LibraryName()) session.CopyLibrary = trimmed;
  session.settings.library = trimmed;
  SaveSetting(session.settings, "library", session.store);
  RefreshLibraryNames(session);
  return true;
}

}  // namespace tricklet
