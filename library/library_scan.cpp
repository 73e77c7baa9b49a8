#include "library/library_scan.h"

#include <algorithm>

#include "core/text.h"
#include "disk/presence.h"
#include "library/board_file.h"

namespace tricklet {

namespace fs = std::filesystem;

LibraryState ScanLibrary(const fs::path& folder) {
  LibraryState library;
  const auto take = [&library](const fs::directory_entry& entry) {
    const int number = BoardNumberOfFile(PathText(entry.path().filename()));
    std::error_code ignored;
    if (!IsStorable(number) || entry.is_directory(ignored)) return;
    library.boardPresent.at(static_cast<std::size_t>(number)) = true;
    ++library.boardCount;
    library.firstBoard = std::min(library.firstBoard, number);
    library.lastBoard = std::max(library.lastBoard, number);
  };
  if (FolderExists(folder)) ForEachEntry(folder, take);
  library.maxBoard = library.boardCount == 0 ? kBoardsOfEmptyLibrary : library.lastBoard;
  return library;
}

std::set<int> BoardsIn(const LibraryState& library, int first, int last) {
  std::set<int> numbers;
  for (int number = first; number <= last; ++number) {
    if (library.boardPresent.at(static_cast<std::size_t>(number))) numbers.insert(number);
  }
  return numbers;
}

void CountHands(Session& session) {
  const int maxBoard = session.library.maxBoard;
  session.library = ScanLibrary(session.LibraryPath());
  session.library.maxBoard = maxBoard;
}

bool ListAddedBoards(Session& session) {
  const LibraryState before = session.library;
  CountHands(session);
  session.library.maxBoard = std::max(before.maxBoard, session.library.lastBoard);
  return session.library.boardPresent != before.boardPresent ||
         session.library.maxBoard != before.maxBoard;
}

void FindFiles(Session& session) {
  session.library = ScanLibrary(session.LibraryPath());
}

std::string LibraryCaption(const Session& session) {
  return "Library - " + session.ShownLibrary();
}

std::string LibraryCountText(const Session& session) {
  return std::to_string(session.library.boardCount) + " boards in library";
}

}  // namespace tricklet
