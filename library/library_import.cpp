// Copying libraries into the root.
#include <algorithm>

#include "core/fault.h"
#include "core/text.h"
#include "disk/presence.h"
#include "library/library_choice.h"
#include "library/library_folders.h"
#include "library/library_names.h"
#include "library/library_transfer.h"
#include "library/transfer_steps.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// "???.txt": three characters and the ending, in any letter case.
bool IsNamedLikeABoard(const std::string& name) {
  constexpr std::string_view kEnding = ".txt";
  constexpr int kCharacters = 3;
  if (name.size() < kEnding.size()) return false;
  const std::string_view stem = std::string_view(name).substr(0, name.size() - kEnding.size());
  const auto characters = std::count_if(stem.begin(), stem.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;  // the first byte of one
  });
  return characters == kCharacters &&
         EqualNoCase(std::string_view(name).substr(stem.size()), kEnding);
}

/// The folder counts as a library with boards. Throws `Fault` when it cannot be read.
bool HasBoards(const fs::path& folder) {
  bool found = false;
  ForEachEntry(folder, [&found](const fs::directory_entry& entry) {
    if (found || !IsNamedLikeABoard(PathText(entry.path().filename()))) return;
    std::error_code failure;
    const fs::file_status status = entry.symlink_status(failure);
    if (status.type() == fs::file_type::none) {
      throw Fault::OfFile(failure, PathText(entry.path()));
    }
    found = fs::is_regular_file(status);
  });
  return found;
}

/// What a folder holds, in the order of the list.
struct Groups {
  int sameName = 0;
  int withoutBoards = 0;
  std::vector<std::string> toCopy;
};

Groups SortLibraries(const Session& session, const fs::path& folder) {
  Groups groups;
  for (const std::string& name : FoldersOf(folder)) {
    if (IsTakenInRoot(session, name)) {
      ++groups.sameName;
    } else if (!HasBoards(folder / PathFromText(name))) {
      ++groups.withoutBoards;
    } else {
      groups.toCopy.push_back(name);
    }
  }
  return groups;
}

/// "1 library", "2 other libraries".
std::string Libraries(std::size_t count, const char* kind = "") {
  return std::to_string(count) + kind + (count == 1 ? " library" : " libraries");
}

std::string NothingText(const Groups& groups, const fs::path& folder) {
  const bool some = groups.sameName + groups.withoutBoards > 0;
  return std::string("There are no") + (some ? " other" : "") + " libraries in the folder\n" +
         ShownPath(folder);
}

std::string QuestionText(const Groups& groups, const fs::path& folder) {
  const std::string from = " will be copied from\n" + ShownPath(folder);
  if (groups.sameName == 0) return Libraries(groups.toCopy.size()) + from;
  return std::to_string(groups.sameName) + " of the libraries in\n" + ShownPath(folder) +
         (groups.sameName == 1 ? "\nhas the same name as one of your existing libraries"
                               : "\nhave the same name as your existing libraries") +
         "\nand so will not be copied\n\n" + Libraries(groups.toCopy.size(), " other") + from;
}

std::string ReportText(const Groups& groups) {
  std::string text;
  if (groups.withoutBoards == 1) {
    text = "1 library contains no boards\nso has not been copied\n\n";
  } else if (groups.withoutBoards > 1) {
    text = std::to_string(groups.withoutBoards) +
           " libraries contain no boards\nso have not been copied\n\n";
  }
  return text + Libraries(groups.toCopy.size()) +
         (groups.toCopy.size() == 1 ? " has been copied" : " have been copied");
}

/// The chosen folder can be a library of the root; else says why not.
bool AcceptImport(Session& session, const fs::path& folder) {
  const std::string name = PathText(folder.filename());
  if (IsDriveRoot(folder)) {
    session.host.Tell("Please choose a sub-folder, not " + ShownPath(folder));
    return false;
  }
  if (!AcceptLibraryName(session.host, name)) return false;
  if (IsTakenInRoot(session, name)) {
    session.host.Tell("You already have a library - " + ShownName(name) +
                      "\nPlease delete it before importing a library of the same name");
    return false;
  }
  if (!HasBoards(folder)) {
    session.host.Tell("There are no boards in the library " + ShownName(name));
    return false;
  }
  return true;
}

}  // namespace

bool ImportLibrary(Session& session) {
  const auto chosen = BrowseFolder(session, "Choose the library to import");
  return chosen && ImportLibraryFrom(session, *chosen);
}

bool ImportLibraryFrom(Session& session, const fs::path& folder) {
  const fs::path from = FolderNamed(folder);
  const std::string name = PathText(from.filename());
  if (!RequireFolder(session, from) || !AcceptImport(session, from)) return false;
  const Copied copied = CopyLibraryFolder(session, from, FolderNamed(session.FileLocation()), name,
                                          {.files = FileNames::OfBoards});
  if (copied == Copied::Nothing) return false;
  session.libraryNames = FoldersOf(session.FileLocation());
  return SelectLibrary(session, name) && StoreSettings(session) && copied == Copied::Whole;
}

bool ImportLibraries(Session& session) {
  const std::string text = "Choose the folder containing the libraries to import";
  if (!AskToChoose(session, "Please choose the folder containing the libraries to import")) {
    return false;
  }
  const auto chosen = BrowseFolder(session, text);
  return chosen && ImportLibrariesFrom(session, *chosen);
}

bool ImportLibrariesFrom(Session& session, const fs::path& folder) {
  const fs::path from = FolderNamed(folder);
  if (!RequireFolder(session, from)) return false;
  const Groups groups = SortLibraries(session, from);
  if (groups.toCopy.empty()) {
    session.host.Tell(NothingText(groups, from));
    return false;
  }
  if (!AskToChoose(session, QuestionText(groups, from))) return false;
  const Copied copied =
      CopyLibraries(session, from, groups.toCopy, FolderNamed(session.FileLocation()),
                    {Unsaved::Stay, FileNames::OfBoards});
  if (copied == Copied::Nothing) return false;
  session.host.Tell(ReportText(groups));
  RefreshLibraryNames(session);
  return copied == Copied::Whole;
}

}  // namespace tricklet
