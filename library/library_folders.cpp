#include "library/library_folders.h"

#include "core/fault.h"
#include "core/text.h"
#include "disk/native_file.h"
#include "disk/presence.h"
#include "library/library_names.h"

namespace tricklet {

namespace fs = std::filesystem;

bool RequireFolder(Session& session, const fs::path& folder) {
  if (FolderExists(folder)) return true;
  session.host.TellError("There is no folder " + ShownPath(folder));
  return false;
}

bool AcceptLibraryRoot(Host& host, const fs::path& folder) {
  if (!IsDriveRoot(folder)) return true;
  host.Tell("Please choose a folder, not " + ShownPath(folder));
  return false;
}

bool MakeFolder(Session& session, const fs::path& path) {
  try {
    std::error_code failure;
    fs::create_directory(path, failure);
    if (failure) throw Fault::OfFile(failure, PathText(path));
    FlushFolder(path.parent_path());
    return true;
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
    return false;
  }
}

void TellNoLibrary(Session& session, const std::string& name) {
  session.host.TellError("There is no library " + ShownName(name) + " in " +
                         ShownName(session.settings.filelocation));
}

bool RequireLibraryFolder(Session& session) {
  const std::string& name = session.LibraryName();
  if (!AcceptLibraryName(session.host, name)) return false;
  if (FolderExists(session.LibraryPath())) return true;
  if (HasAllowedCharacters(name)) return MakeFolder(session, session.LibraryPath());
  TellNotAName(session.host, name);
  return false;
}

}  // namespace tricklet
