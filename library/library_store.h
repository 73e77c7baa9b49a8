// Library folders: finding, selecting, counting, trimming; copying one board to another place.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "library/session.h"

namespace tricklet {

/// Boards that an empty library offers.
inline constexpr int kBoardsOfEmptyLibrary = 24;

/// The folder exists; else says so.
bool RequireFolder(Session& session, const std::filesystem::path& folder);

/// The folder can be the root of libraries: a drive cannot, and says so.
bool AcceptLibraryRoot(Host& host, const std::filesystem::path& folder);

/// Lists the libraries of the root (sub-folders whose name does not begin with ".") and selects the
/// current one, or the first when it is gone. An empty root is given the library "Default".
/// Selecting loads board 1, after `CheckSaveChanges`; on Cancel nothing happens.
void GetLibraryNames(Session& session);

/// Names of the libraries under `root`, in the order of the list.
std::vector<std::string> FoldersOf(const std::filesystem::path& root);

/// The library root has a folder of the name, whatever the letter case, or something else of it.
bool IsTakenInRoot(const Session& session, std::string_view name);

/// Scans a library's folder, once; `maxBoard` is left at 0.
LibraryState ScanLibrary(const std::filesystem::path& folder);

/// Scans the current library.
void CountHands(Session& session);

/// Scans the current library and sets the number of boards offered.
void FindFiles(Session& session);

/// The same, and loads board `number`, or the highest that is offered.
void ListAndShow(Session& session, int number);

/// "Library - NAME" and "N boards in library".
std::string LibraryCaption(const Session& session);
std::string LibraryCountText(const Session& session);

/// Asks about unsaved changes before the board is left. OK, or Cancel when the person wants to stay
/// (or wanted to save and the board could not be saved).
Answer CheckSaveChanges(Session& session);

/// The same before a command that works on what is stored and leaves the board on the screen: where
/// changes were given up it is shown as it is stored. False when the person wants to stay.
bool SettleChanges(Session& session);

/// Selects the library at `index` of `libraryNames` and loads its board 1, after
/// `CheckSaveChanges`. False when the person stayed.
bool SelectLibrary(Session& session, int index);
/// The same by name; false too when there is no such library.
bool SelectLibrary(Session& session, std::string_view name);

/// Selects a board of 1..MaxBoard and loads it, after `CheckSaveChanges`. False when the person
/// stayed or there is no such entry.
bool SelectBoard(Session& session, int boardNumber);

/// Steps to the next or the previous board and round the end of the list.
bool StepBoard(Session& session, bool backward = false);

/// Sets the highest board offered: raised at once; lowered after a question, which sends the boards
/// above it to the recycle bin. False when `highest` is not 1..999 or the person said No.
bool SetMaxBoard(Session& session, int highest);

/// `character` may be typed into a library's name at this place.
bool AllowedInLibraryName(char32_t character, bool first);
/// What file systems take for a name, in bytes.
inline constexpr std::size_t kLongestLibraryName = 255;
/// All characters of `name` are allowed, and there is one, and not too many.
bool HasAllowedCharacters(std::string_view name);
/// A folder of this name, made by whatever program, is a library: the name is a single element of a
/// path, valid UTF-8, and does not begin with a full stop.
bool IsLibraryName(std::string_view name);
/// The same; else a message.
bool AcceptLibraryName(Host& host, std::string_view name);
/// The folder of the current library is there, or is made when its name is fit for a new one; else
/// a message.
bool RequireLibraryFolder(Session& session);
/// `name` can be given to a new library of this root: allowed characters, and not yet taken in any
/// letter case.
bool IsNewLibraryName(const Session& session, std::string_view name);

/// The same for a name that is to be used now, of the folders that there are now; else a message,
/// and a beep for a name that could not have been typed.
bool AcceptNewName(Session& session, std::string_view name);

/// Lists the libraries again and leaves the current library and its board alone; unless that
/// library is gone, and then as `GetLibraryNames`.
void RefreshLibraryNames(Session& session);

/// Makes an empty library of the name and selects it, after `CheckSaveChanges`. False, with a beep
/// or a message, when it could not.
bool CreateLibrary(Session& session, std::string_view name);

/// Gives the current library another name; refused with a message when that is taken.
bool RenameLibrary(Session& session, std::string_view name);

/// `mnuCopyHand`: remembers the current board as the one to paste.
void CopyHand(Session& session);
/// `mnuPasteHand`: copies the remembered board's file over the current board's, byte for byte,
/// after a question when the current board holds cards. False when nothing was pasted.
bool PasteHand(Session& session);

}  // namespace tricklet
