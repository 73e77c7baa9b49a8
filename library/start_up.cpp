#include "library/start_up.h"

#include <algorithm>

#include "core/fault.h"
#include "core/text.h"
#include "core/version.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "library/library_choice.h"
#include "library/library_folders.h"
#include "library/library_names.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// Asks until a folder that can be a library root is chosen; false when none is.
bool ChooseLibraryRoot(Session& session) {
  session.settings.filelocation.clear();
  session.host.Tell(
      "Please choose a folder (new or existing)\nwhere you will keep your library of hands");
  for (;;) {
    const auto chosen = session.host.ChooseFolder("Choose the macro library folder", fs::path());
    if (!chosen || chosen->empty()) {
      session.host.Tell("You must choose a folder");
      return false;
    }
    if (!AcceptLibraryRoot(session.host, *chosen)) continue;
    try {
      MakeFolders(*chosen);
    } catch (const Fault& fault) {
      session.host.TellError(fault.Description());
      continue;
    }
    session.settings.filelocation = FolderText(*chosen);
    SaveSetting(session, &Settings::filelocation);
    return true;
  }
}

/// A library that is gone is made again. Where it cannot be, the first of the root will take its
/// place: without a word, unless no library can ever have had the name.
void MakeStoredLibraryAgain(Session& session) {
  std::string name = session.LibraryName();
  if (name.empty() || !AcceptLibraryName(session.host, name)) return;
  std::erase(name, '.');  // another program may have named it so
  if (!HasAllowedCharacters(name)) return;
  try {
    MakeFolders(session.LibraryPath());
  } catch (const Fault&) {
    return;
  }
}

/// Without the library that was asked for there is no reason to make another.
void ChooseNamedLibrary(Session& session, const std::string& named) {
  const fs::path root = session.FileLocation();
  const std::string meant = NameMeant(FoldersOf(root), named);
  if (meant.empty()) TellNoLibrary(session, named);
  session.settings.library = meant.empty() ? LibraryOfRoot(root, session.LibraryName()) : meant;
}

/// `OpenLibraries` where nothing is hidden.
bool OpenRoot(Session& session, const std::string& named) {
  const fs::path root = session.FileLocation();
  if ((root.empty() || !FolderExists(root)) && !ChooseLibraryRoot(session)) return false;
  if (named.empty()) {
    MakeStoredLibraryAgain(session);
  } else {
    ChooseNamedLibrary(session, named);
  }
  GetLibraryNames(session);
  return true;
}

}  // namespace

std::string VersionText() {
  const std::string revision = std::to_string(kVersionRevision);
  return "Version " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
         (revision.size() < 2 ? "0" : "") + revision;
}

int VersionNumber() {
  return 100 * kVersionMajor + kVersionMinor;
}

void ShowNotice(Session& session) {
  if (session.settings.showMessage >= VersionNumber()) return;
  const Answer again = session.host.Ask(
      "Click Help > New Features to see details of the latest changes\n\n"
      "Do you want to see this message next time Tricklet starts?",
      std::string(kProgramName), Buttons::YesNo);
  if (again != Answer::No) return;
  session.settings.showMessage = VersionNumber();
  SaveSetting(session, &Settings::showMessage);
}

std::string LibraryOfRoot(const fs::path& root, const std::string& stored) {
  const std::vector<std::string> names = FoldersOf(root);
  if (names.empty()) return "Default";
  return std::find(names.begin(), names.end(), stored) != names.end() ? stored : names.front();
}

bool OpenLibraries(Session& session, const std::string& named) {
  try {
    return OpenRoot(session, named);
  } catch (const Fault& fault) {
    session.host.TellError("Unable to open the libraries:\n" + fault.Description());
    return false;
  }
}

}  // namespace tricklet
