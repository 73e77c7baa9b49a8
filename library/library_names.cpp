#include "library/library_names.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "disk/presence.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// Names in the order of the list: letter case counts only between names that are otherwise equal.
bool NameBefore(const std::string& a, const std::string& b) {
  const std::string foldedA = FoldCase(a);
  const std::string foldedB = FoldCase(b);
  return foldedA != foldedB ? foldedA < foldedB : a < b;
}

bool IsListed(const std::vector<std::string>& names, std::string_view name) {
  return std::any_of(names.begin(), names.end(),
                     [name](const std::string& taken) { return EqualFolded(taken, name); });
}

/// Windows takes these for devices, whatever follows a full stop ("Naming Files, Paths, and
/// Namespaces", learn.microsoft.com).
bool NamesADevice(std::string_view name) {
  const std::string stem = ToUpper(Trim(name.substr(0, name.find('.'))));
  constexpr std::array<std::string_view, 6> kDevices{"CON", "PRN",    "AUX",
                                                     "NUL", "CONIN$", "CONOUT$"};
  if (std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end()) return true;
  constexpr std::array<std::string_view, 13> kPorts{"0", "1", "2", "3",      "4",      "5",     "6",
                                                    "7", "8", "9", "\u00b9", "\u00b2", "\u00b3"};
  const std::string_view port =
      std::string_view(stem).substr(std::min<std::size_t>(3, stem.size()));
  return (stem.starts_with("COM") || stem.starts_with("LPT")) &&
         std::find(kPorts.begin(), kPorts.end(), port) != kPorts.end();
}

/// The system keeps a folder of just this name.
bool CanBeKept([[maybe_unused]] std::string_view name) {
#ifdef _WIN32
  return !NamesADevice(name) && !name.ends_with('.') && !name.ends_with(' ');
#else
  return true;
#endif
}

}  // namespace

bool AllowedInLibraryName(char32_t character, bool first) {
  constexpr std::u32string_view kRefused = U"/:*?\"<>|.\\";  // "\" would make a folder in a folder
  if (character < 0x20 || character == 0x7F) return false;
  if (first && character == U' ') return false;
  return kRefused.find(character) == std::u32string_view::npos;
}

bool HasAllowedCharacters(std::string_view name) {
  bool first = true;
  for (const char c : name) {
    // All characters outside ASCII are allowed, so each of their bytes may pass as a character.
    if (!AllowedInLibraryName(static_cast<unsigned char>(c), first)) return false;
    first = false;
  }
  return !name.empty() && name.size() <= kLongestLibraryName && IsValidUtf8(name) &&
         !NamesADevice(name);
}

bool IsLibraryName(std::string_view name) {
  const fs::path path = PathFromText(name);
  return !name.empty() && !name.starts_with('.') && IsValidUtf8(name) && path == path.filename() &&
         CanBeKept(name);
}

bool AcceptLibraryName(Host& host, std::string_view name) {
  if (IsLibraryName(name)) return true;
  TellNotAName(host, name);
  return false;
}

void TellNotAName(Host& host, std::string_view name) {
  constexpr std::size_t kShown = 60;
  host.Tell(name.empty() ? "A library needs a name"
                         : "A library cannot be named " + Showable(name, kShown));
}

std::vector<std::string> FoldersOf(const fs::path& root) {
  std::vector<std::string> names;
  if (!FolderExists(root)) return names;
  ForEachEntry(root, [&names](const fs::directory_entry& entry) {
    std::string name = PathText(entry.path().filename());
    std::error_code failure;
    const fs::file_type type = entry.status(failure).type();  // a link to nothing is no folder
    // One that cannot be seen may be a library; whoever enters it hears why it cannot be.
    if (type != fs::file_type::directory && type != fs::file_type::none) return;
    if (IsLibraryName(name)) names.push_back(std::move(name));
  });
  std::sort(names.begin(), names.end(), NameBefore);
  return names;
}

std::string NameMeant(const std::vector<std::string>& names, std::string_view name) {
  for (const std::string_view wanted : {name, Trim(name)}) {
    const auto found = std::find(names.begin(), names.end(), wanted);
    if (found != names.end()) return *found;
  }
  const auto found = std::find_if(names.begin(), names.end(), [name](const std::string& other) {
    return EqualFolded(other, Trim(name));
  });
  return found != names.end() ? *found : std::string();
}

bool IsTakenInRoot(const Session& session, std::string_view name) {
  const fs::path root = session.FileLocation();
  return IsListed(FoldersOf(root), name) || IsTaken(root / PathFromText(name));
}

bool IsNewLibraryName(const Session& session, std::string_view name) {
  const std::string_view trimmed = Trim(name);
  return HasAllowedCharacters(trimmed) && !IsListed(session.libraryNames, trimmed);
}

bool AcceptNewName(Session& session, std::string_view name) {
  if (!HasAllowedCharacters(name)) {
    session.host.Beep();
    TellNotAName(session.host, name);
    return false;
  }
  if (!IsTakenInRoot(session, name)) return true;
  session.host.Tell(ShownName(name) + " already exists\nPlease choose a different name");
  return false;
}

}  // namespace tricklet
