// Steps that the procedures for whole libraries share.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "library/folder_copy.h"
#include "library/session.h"

namespace tricklet {

/// The folder browser, at the parent folder of the library root.
std::optional<std::filesystem::path> BrowseFolder(Session& session, const std::string& title);

/// `folder` as an absolute path without a separator at its end (but for a drive's). Throws `Fault`
/// when it is empty.
std::filesystem::path FolderNamed(const std::filesystem::path& folder);

/// OK to a text that announces the folder browser.
bool AskToChoose(Session& session, const std::string& text);

/// What becomes of unsaved changes before a copy, once nothing speaks against it any more.
enum class Unsaved : std::uint8_t {
  Stay,     ///< what is copied does not hold them
  Settled,  ///< what is copied is what is stored
};

/// Copies the folders `names` of `from` into `to`; false, reported, when that is refused, failed or
/// was cancelled and has been undone.
bool CopyLibraries(Session& session, const std::filesystem::path& from,
                   const std::vector<std::string>& names, const std::filesystem::path& to,
                   Unsaved unsaved);
/// The same for one folder, under another name; unsaved changes are settled.
bool CopyLibraryFolder(Session& session, const std::filesystem::path& from,
                       const std::filesystem::path& to, const std::string& name);

}  // namespace tricklet
