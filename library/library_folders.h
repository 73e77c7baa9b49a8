// The folders that libraries need: the root, and one for each library.
#pragma once

#include <filesystem>
#include <string>

#include "library/session.h"

namespace tricklet {

/// The folder exists; tells when it does not.
bool RequireFolder(Session& session, const std::filesystem::path& folder);

/// The folder can be the root of libraries. A drive cannot, which is told.
bool AcceptLibraryRoot(Host& host, const std::filesystem::path& folder);

/// Makes the folder in one that must be there: a drive that is gone is not to be made anew out of
/// folders. True too when it exists; a failure is reported.
bool MakeFolder(Session& session, const std::filesystem::path& path);

/// Tells that the root has no library of the name.
void TellNoLibrary(Session& session, const std::string& name);

/// The folder of the current library exists, or has been made, which needs a name that is fit for a
/// new one. Tells when it does not, and reports when it could not be made.
bool RequireLibraryFolder(Session& session);

}  // namespace tricklet
