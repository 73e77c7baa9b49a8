// Which names a library can have, and which are taken.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "library/session.h"

namespace tricklet {

/// The longest name that file systems take, in bytes.
inline constexpr std::size_t kLongestLibraryName = 255;

/// `character` may be typed into the name of a library, at its beginning (`first`) or later.
bool AllowedInLibraryName(char32_t character, bool first);

/// A new library can have the name, as far as its characters go: they are valid UTF-8 and all are
/// allowed, there is at least one, and the name is not longer than `kLongestLibraryName`. Names of
/// devices of Windows, such as "con", are refused on every system: such a library could not go
/// there.
bool HasAllowedCharacters(std::string_view name);

/// A folder of this name, made by whatever program, is a library: the name is a single element of a
/// path, valid UTF-8, and does not begin with a full stop. On Windows names that it takes for
/// others are none: those of devices, and those with a full stop or a blank at the end.
bool IsLibraryName(std::string_view name);

/// `IsLibraryName`; tells when it is not.
bool AcceptLibraryName(Host& host, std::string_view name);

/// Tells that no library can have the name.
void TellNotAName(Host& host, std::string_view name);

/// The names of the libraries in the folder `root`, in the order of the list: by letters, whatever
/// their case; none when there is no such folder. What cannot be seen may be a library and is
/// listed. Throws `Fault` when the root cannot be listed.
std::vector<std::string> FoldersOf(const std::filesystem::path& root);

/// The one of `names` that `name` means: just this name, or else the name without the blanks around
/// it, or else that name in another letter case. Empty when there is none.
std::string NameMeant(const std::vector<std::string>& names, std::string_view name);

/// The library root has a folder of the name, in whatever letter case, or anything else of just
/// this name.
bool IsTakenInRoot(const Session& session, std::string_view name);

/// The name, without the blanks around it, can be given to a new library: its characters are
/// allowed, and no library that is listed has it in whatever letter case.
bool IsNewLibraryName(const Session& session, std::string_view name);

/// The name can be given to a new library now, as the root is on the disk; beeps and tells when its
/// characters are not allowed, and tells when it is taken.
bool AcceptNewName(Session& session, std::string_view name);

}  // namespace tricklet
