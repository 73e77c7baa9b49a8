#include "library/session.h"

#include "core/text.h"
#include "library/board_file.h"

namespace tricklet {

namespace fs = std::filesystem;

std::string Session::ShownLibrary() const {
  return ShownName(settings.library);
}

fs::path Session::FileLocation() const {
  return PathFromText(settings.filelocation);
}

fs::path Session::LibraryPath() const {
  return FileLocation() / PathFromText(settings.library);
}

fs::path Session::BoardPath(int boardNumber) const {
  return LibraryPath() / BoardFileName(boardNumber);
}

void TellUnreadSettings(Session& session) {
  const std::string failure = session.store.Failure();
  if (!failure.empty()) session.host.TellError(std::string(kSettingsNotRead) + "\n" + failure);
}

bool StoreSettings(Session& session) {
  if (session.store.Sync()) return true;
  const std::string why = session.store.SyncFailure();
  session.host.TellError(kSettingsNotStored + (why.empty() ? why : "\n" + why));
  session.host.FailureReported();
  return false;
}

std::string FolderText(const fs::path& path) {
  return PathText(path / "");
}

bool IsDriveRoot(const fs::path& path) {
  return !path.has_filename() && path == path.root_path();
}

}  // namespace tricklet
