// Whole libraries: copying them out, in and to another root, under another name, and deleting them.
//
// Every copy is complete or undone: when it fails or is cancelled, what was copied goes to the
// recycle bin. All these are false when nothing was done, the person having been told why or having
// refused. They throw `Fault` when a folder to be copied cannot be listed.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "library/session.h"

namespace tricklet {

/// `mnuExportLibrary`: copies the current library into a folder that the person chooses.
bool ExportLibrary(Session& session);
/// Copies the current library into `folder`, which is made when it is missing.
bool ExportLibraryTo(Session& session, const std::filesystem::path& folder);

/// `mnuExportLibraries`: copies all libraries into a folder that the person chooses. A folder that
/// is refused lets him choose again.
bool ExportLibraries(Session& session);
bool ExportLibrariesTo(Session& session, const std::filesystem::path& folder);

/// `mnuMoveLibraries`: another folder becomes the library root, after all libraries were copied
/// there if the person wants it. Without an answer to that, nothing is done. The old root stays as
/// it is.
bool MoveLibraries(Session& session);
bool MoveLibrariesTo(Session& session, const std::filesystem::path& folder);

/// `mnuImportLibrary`: copies a folder of boards into the root and makes it the current library,
/// after `CheckSaveChanges`.
bool ImportLibrary(Session& session);
bool ImportLibraryFrom(Session& session, const std::filesystem::path& folder);

/// `mnuImportLibraries`: copies each library of a folder into the root, except those whose names
/// are taken and those without boards. The current library stays the current one.
bool ImportLibraries(Session& session);
bool ImportLibrariesFrom(Session& session, const std::filesystem::path& folder);

/// `cmdOK` of `frmCopyLib`: copies the current library under a new name, which must be one that
/// `AcceptNewName` takes. The current library stays the current one.
bool CopyLibrary(Session& session, std::string_view name);

/// The libraries of the root, as `frmDeleteLib` lists them; when there are none, the person is
/// told.
std::vector<std::string> RequireLibraries(Session& session);
/// `cmdOK` of `frmDeleteLib`: sends a library to the recycle bin; refused for the current one.
bool DeleteLibrary(Session& session, std::string_view name);

}  // namespace tricklet
