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

/// The folder that the person chooses, as `FolderNamed` gives it; nothing when none was chosen. The
/// browser begins at the parent folder of the library root.
std::optional<std::filesystem::path> BrowseFolder(Session& session, const std::string& title);

/// `folder` as an absolute path without a separator at its end (but for a drive's). Throws `Fault`
/// when it is empty.
std::filesystem::path FolderNamed(const std::filesystem::path& folder);

/// The person says OK to a text that announces what is to be chosen or done.
bool AskToChoose(Session& session, const std::string& text);

/// What becomes of unsaved changes before a copy, once nothing stands in its way.
enum class Unsaved : std::uint8_t {
  Stay,     ///< they are kept: the board is not among what is copied
  Settled,  ///< the person is asked: what is copied is what is stored
};

/// How folders are copied.
struct CopyManner {
  Unsaved unsaved = Unsaved::Settled;
  FileNames files = FileNames::Kept;
};

/// How a copy ended. What is not whole has been told or reported.
enum class Copied : std::uint8_t {
  Nothing,  ///< it was refused, failed or was cancelled; what was copied has been undone
  Partly,   ///< links and special files were left out
  Whole,
};

/// Copies the folders `names` of `from` into `to`.
Copied CopyLibraries(Session& session, const std::filesystem::path& from,
                     const std::vector<std::string>& names, const std::filesystem::path& to,
                     CopyManner manner);
/// Copies the folder `from` into `to`, where its name is `name`.
Copied CopyLibraryFolder(Session& session, const std::filesystem::path& from,
                         const std::filesystem::path& to, const std::string& name,
                         CopyManner manner);

}  // namespace tricklet
