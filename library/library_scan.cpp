#include "library/library_scan.h"

#include <algorithm>

#include "core/text.h"
#include "library/board_file.h"

namespace tricklet {

namespace fs = std::filesystem;

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

std::string LibraryCaption(const Session& session) {
  return "Library - " + session.LibraryName();
}

std::string LibraryCountText(const Session& session) {
  return std::to_string(session.library.boardCount) + " boards in library";
}

}  // namespace tricklet
