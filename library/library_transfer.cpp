// Copying libraries out and to another root, under another name, and deleting them.
#include "library/library_transfer.h"

#include <algorithm>
#include <iterator>

#include "core/bounded_list.h"
#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "library/folder_copy.h"
#include "library/library_choice.h"
#include "library/library_names.h"
#include "library/library_write.h"
#include "library/loss_text.h"
#include "library/transfer_steps.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// Asks before a copy replaces boards in these libraries of `folder`.
bool AgreesToOverwrite(Session& session, const std::string& text,
                       const std::vector<std::string>& names, const fs::path& folder) {
  std::vector<std::string> shown;
  shown.reserve(names.size());
  for (const std::string& name : names) shown.push_back(ShownName(name));
  return session.host.Ask({.text = text,
                           .safe = Answer::No,
                           .detail = "Boards of the same number would be replaced in " +
                                     ShownPath(folder) + ": " + BoundedList(shown) + "." +
                                     FateOfReplaced(session.settings)}) == Answer::Yes;
}

/// The folder can become the root: it is neither a drive nor the root already. Else says so.
bool AcceptRoot(Session& session, const fs::path& folder) {
  if (IsDriveRoot(folder)) {
    session.host.Tell("Please choose a sub-folder, not " + ShownPath(folder));
    return false;
  }
  if (SameFolder(folder, FolderNamed(session.FileLocation()))) {
    session.host.Tell("That is the same folder as the existing folder");
    return false;
  }
  return true;
}

/// Lets the person choose until the folder can be another root, or he chooses none.
std::optional<fs::path> BrowseRoot(Session& session) {
  for (;;) {
    auto chosen = BrowseFolder(session, "Choose the macro library folder");
    if (!chosen || AcceptRoot(session, *chosen)) return chosen;
  }
}

Answer AskToCopyAll(Session& session, const fs::path& folder) {
  return session.host.Ask("Do you want to copy all your libraries from\n" +
                              ShownName(session.settings.filelocation) + "\nto " +
                              ShownPath(folder),
                          std::string(kProgramName), Buttons::YesNo);
}

/// Libraries that are there already keep their boards unless the person agrees.
bool MayOverwrite(Session& session, const std::vector<std::string>& names, const fs::path& folder) {
  std::vector<std::string> there;
  std::copy_if(names.begin(), names.end(), std::back_inserter(there),
               [&](const std::string& name) { return IsTaken(folder / PathFromText(name)); });
  if (there.empty()) return true;
  return AgreesToOverwrite(session,
                           std::to_string(there.size()) +
                               (there.size() == 1 ? " library is" : " libraries are") +
                               " already in that folder\nDo you wish to overwrite any existing "
                               "boards?",
                           there, folder);
}

/// Copies these libraries of the root into another root-to-be.
Copied CopyAll(Session& session, const std::vector<std::string>& names, const fs::path& folder) {
  const fs::path root = FolderNamed(session.FileLocation());
  if (FolderLiesIn(folder, root)) {
    session.host.TellError("A folder cannot be copied into itself:\n" + ShownPath(root) + "\nto " +
                           ShownPath(folder));
    return Copied::Nothing;
  }
  if (!MayOverwrite(session, names, folder)) return Copied::Nothing;
  return CopyLibraries(session, root, names, folder, {});
}

bool ExportAll(Session& session, const fs::path& folder) {
  if (AskToCopyAll(session, folder) != Answer::Yes) return false;
  const std::vector<std::string> names = RequireLibraries(session);
  return !names.empty() && CopyAll(session, names, folder) == Copied::Whole;
}

/// Stores another root and current library. Where they cannot be stored, a message says so, and
/// they are as they were.
bool StorePlace(Session& session, std::string root, std::string library) {
  const auto exchange = [&] {
    root.swap(session.settings.filelocation);
    library.swap(session.settings.library);
    SaveSetting(session.settings, EntryOf(&Settings::filelocation), session.store);
    SaveSetting(session.settings, EntryOf(&Settings::library), session.store);
  };
  exchange();
  if (StoreSettings(session)) return true;
  exchange();
  return false;
}

/// Makes `folder` the library root and keeps to the current library if the folder has it.
bool SwitchRoot(Session& session, const fs::path& folder) {
  const bool hasCurrent = FolderExists(folder / PathFromText(session.LibraryName()));
  const std::string library = hasCurrent ? session.LibraryName() : "Default";
  const fs::path current = folder / PathFromText(library);
  const bool isNew = !IsTaken(current);
  try {
    MakeFolders(current);
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
    return false;
  }
  if (!StorePlace(session, FolderText(folder), library)) {
    std::error_code ignored;
    if (isNew) fs::remove(current, ignored);
    return false;
  }
  session.copyLibrary.clear();  // the same name may be another library here
  GetLibraryNames(session);
  return true;
}

/// Copies all libraries. A root without what was left out would hide it, and is not moved to.
bool CopyWhole(Session& session, const fs::path& folder) {
  const Copied copied = CopyAll(session, FoldersOf(session.FileLocation()), folder);
  if (copied == Copied::Partly) {
    session.host.Tell("Your library of hands stays in\n" +
                      ShownName(session.settings.filelocation));
  }
  return copied == Copied::Whole;
}

/// Copies the libraries if the person wants it; false when the root is not to move.
bool PrepareMove(Session& session, const fs::path& folder) {
  switch (AskToCopyAll(session, folder)) {
    case Answer::Yes:
      return CopyWhole(session, folder);
    case Answer::No:
      return SettleChanges(session);
    default:
      return false;
  }
}

bool Move(Session& session, const fs::path& folder) {
  return PrepareMove(session, folder) && SwitchRoot(session, folder);
}

}  // namespace

bool ExportLibrary(Session& session) {
  if (!AskToChoose(session, "Please choose the location\nto copy your library (" +
                                session.ShownLibrary() + ") to")) {
    return false;
  }
  const auto chosen = BrowseFolder(session, "Choose the library location");
  return chosen && ExportLibraryTo(session, *chosen);
}

bool ExportLibraryTo(Session& session, const fs::path& folder) {
  const fs::path into = FolderNamed(folder);
  const fs::path to = into / PathFromText(session.LibraryName());
  if (SameFolder(to, session.LibraryPath())) {
    session.host.Tell("That is the same folder as the existing folder");
    return false;
  }
  if (IsTaken(to) &&
      !AgreesToOverwrite(
          session, "That folder already exists\nDo you wish to overwrite any existing boards?",
          {session.LibraryName()}, into)) {
    return false;
  }
  return CopyLibraryFolder(session, session.LibraryPath(), into, session.LibraryName(), {}) ==
         Copied::Whole;
}

bool ExportLibraries(Session& session) {
  if (!AskToChoose(session,
                   "Please choose the folder (new or existing)\nto copy your libraries to")) {
    return false;
  }
  const auto chosen = BrowseRoot(session);
  return chosen && ExportAll(session, *chosen);
}

bool ExportLibrariesTo(Session& session, const fs::path& folder) {
  const fs::path to = FolderNamed(folder);
  return AcceptRoot(session, to) && ExportAll(session, to);
}

bool MoveLibraries(Session& session) {
  if (!AskToChoose(session, "Your library of hands is currently stored in the folder:\n" +
                                ShownName(session.settings.filelocation) +
                                "\nPlease choose a different folder (new or existing)")) {
    return false;
  }
  const auto chosen = BrowseRoot(session);
  return chosen && Move(session, *chosen);
}

bool MoveLibrariesTo(Session& session, const fs::path& folder) {
  const fs::path to = FolderNamed(folder);
  return AcceptRoot(session, to) && Move(session, to);
}

bool CopyLibrary(Session& session, std::string_view name) {
  const std::string trimmed(Trim(name));
  if (!AcceptNewName(session, trimmed)) return false;
  const Copied copied = CopyLibraryFolder(session, session.LibraryPath(),
                                          FolderNamed(session.FileLocation()), trimmed, {});
  if (copied != Copied::Nothing) RefreshLibraryNames(session);
  return copied == Copied::Whole;
}

std::vector<std::string> RequireLibraries(Session& session) {
  std::vector<std::string> names = FoldersOf(session.FileLocation());
  if (names.empty()) {
    session.host.TellError("There are no libraries in " + ShownName(session.settings.filelocation));
  }
  return names;
}

bool DeleteLibrary(Session& session, std::string_view name) {
  const std::vector<std::string> names = FoldersOf(session.FileLocation());
  const fs::path folder = session.FileLocation() / PathFromText(name);
  if (SameFolder(folder, session.LibraryPath())) {
    session.host.TellError("Cannot delete the library currently in use");
    return false;
  }
  // Only what is listed can be named, so no name leads out of the root.
  const bool listed = std::find(names.begin(), names.end(), name) != names.end();
  if (listed && !RequireUnused(session.host, folder)) return false;
  if (!listed || !session.host.Recycle(folder)) {
    session.host.TellError("Unable to delete the library " + ShownName(name));
    return false;
  }
  FlushFolder(session.FileLocation());
  RefreshLibraryNames(session);
  return true;
}

}  // namespace tricklet
