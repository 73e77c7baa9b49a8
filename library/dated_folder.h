// Folders of old boards beside the libraries, named by library and time, so that each is a library
// that can be opened.
#pragma once

#include <ctime>
#include <filesystem>
#include <string>

#include "disk/file_io.h"

namespace tricklet {

/// The local time: "2026-11-22 10.31". Not every system has a colon in names.
std::string DatedText(std::time_t time);

/// "Club 2026-11-22 10.31 before import", of the library and what ends the name, with the time now.
/// A library's name that is as long as the disk allows is cut.
std::string DatedName(const std::string& library, const std::string& end);

/// Brings `folder`, which lies somewhere in the library's folder `library`, beside it under `name`,
/// with a number behind it where that is taken. Gives where it is now, which is where it was when
/// it cannot be moved. Folders whose names have changed are added to `unflushed`.
std::filesystem::path BringBeside(const std::filesystem::path& library,
                                  const std::filesystem::path& folder, const std::string& name,
                                  UnflushedFolders& unflushed);

}  // namespace tricklet
