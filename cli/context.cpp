#include "cli/context.h"

#include "core/fault.h"
#include "core/text.h"
#include "disk/native_file.h"
#include "disk/presence.h"
#include "library/board_store.h"
#include "library/library_folders.h"
#include "library/library_names.h"
#include "library/library_scan.h"

namespace tricklet::cli {

namespace fs = std::filesystem;

bool RootExists(const Context& context) {
  Session& session = context.session;
  if (!session.settings.filelocation.empty()) {
    return AcceptLibraryRoot(session.host, session.FileLocation()) &&
           RequireFolder(session, session.FileLocation());
  }
  session.host.Tell("There is no library root yet: name one with --root");
  return false;
}

namespace {

/// Makes the folder when only it is missing. Throws `Fault`.
void MakeRoot(const fs::path& root) {
  std::error_code failure;
  if (fs::create_directory(root, failure)) FlushFolder(root / "..");
  if (!failure || failure == std::errc::no_such_file_or_directory || FolderExists(root)) return;
  throw Fault::OfFile(failure, PathText(root));
}

}  // namespace

bool OpenLibrary(const Context& context, bool create) {
  Session& session = context.session;
  if (create && context.rootNamed) MakeRoot(session.FileLocation());
  if (!RootExists(context)) return false;
  if (create) {
    if (!RequireLibraryFolder(session)) return false;
  } else {
    if (!AcceptLibraryName(session.host, session.LibraryName())) return false;
    if (!FolderExists(session.LibraryPath())) {
      TellNoLibrary(session, session.LibraryName());
      return false;
    }
  }
  FindFiles(session);
  return true;
}

bool LoadBoard(const Context& context, int boardNumber) {
  Session& session = context.session;
  if (!OpenLibrary(context, false)) return false;
  if (!FileExists(session.BoardPath(boardNumber))) {
    session.host.Tell("There is no board " + std::to_string(boardNumber) + " in library " +
                      session.ShownLibrary());
    return false;
  }
  session.board.boardNumber = boardNumber;
  return LoadHand(session);
}

}  // namespace tricklet::cli
