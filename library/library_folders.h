// The folders that libraries need: the root, and one for each library.
#pragma once

#include <filesystem>
#include <string>

#include "library/session.h"

namespace tricklet {

/// The folder exists; tells when it does not. Throws `Fault` when that cannot be seen.
bool RequireFolder(Session& session, const std::filesystem::path& folder);

/// The folder can be the library root. A drive cannot be, and the person is told so.
bool AcceptLibraryRoot(Host& host, const std::filesystem::path& folder);

/// Makes the folder, but none above it: a folder must not take the place of a drive that is gone.
/// True too when it exists; a failure is reported.
bool MakeFolder(Session& session, const std::filesystem::path& path);

/// Tells that the root has no library of the name.
void TellNoLibrary(Session& session, const std::string& name);

/// The folder of the current library exists, or has been made, provided that its name is fit for a
/// new library. Tells when the name is not, and reports when the folder could not be made.
bool RequireLibraryFolder(Session& session);

}  // namespace tricklet
