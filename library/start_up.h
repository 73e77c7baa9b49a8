// From the program's entry to the first board.
#pragma once

#include <filesystem>
#include <string>

#include "library/session.h"

namespace tricklet {

/// "Version 3.2.05".
std::string VersionText();

/// 100 x major + minor: what is compared with the setting `showMessage`.
int VersionNumber();

/// Shows the notice of new features when this version's has not been seen, and stores that it has
/// when the person says that he does not want it again.
void ShowNotice(Session& session);

/// The library to open in a root other than the stored one: the library of the stored name if the
/// root has it, else its first; "Default" when it has none.
std::string LibraryOfRoot(const std::filesystem::path& root, const std::string& stored);

/// Makes sure that the library root and the current library exist (asking for a root when there is
/// none), lists libraries and boards and loads board 1. `named` is the library that was asked for,
/// if any, in whatever letter case. When the root does not have it, the person is told, it is not
/// made, and the current or the first library opens. False when no root was chosen, or, after a
/// message, when the stored one or its list cannot be seen; it stays stored. The program ends then.
bool OpenLibraries(Session& session, const std::string& named = {});

}  // namespace tricklet
