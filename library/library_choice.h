// Choosing a library and a board; creating, renaming and trimming libraries.
#pragma once

#include <string_view>

#include "library/session.h"

namespace tricklet {

/// Lists the libraries of the root (sub-folders whose name does not begin with ".") and selects the
/// current one, or the first when it is gone. An empty root is given the library "Default".
/// Selecting loads board 1, after `CheckSaveChanges`; on Cancel nothing happens.
void GetLibraryNames(Session& session);

/// Lists the libraries again and leaves the current library and its board alone; unless that
/// library is gone, and then as `GetLibraryNames`.
void RefreshLibraryNames(Session& session);

/// Selects the library at `index` of `libraryNames` and loads its board 1, after
/// `CheckSaveChanges`. False when the person stayed or there is no such entry.
bool SelectLibrary(Session& session, int index);
/// Selects the library of the name, as `LibraryIndex` finds it. False when the person stayed or
/// there is no such library.
bool SelectLibrary(Session& session, std::string_view name);

/// The position in `libraryNames` of the library of the name: of just this name, or else of the
/// name without the blanks around it, or else of that name in another letter case. -1 when there is
/// none.
int LibraryIndex(const Session& session, std::string_view name);

/// Makes an empty library of the name and selects it, after `CheckSaveChanges`. False, with a beep
/// or a message, when it could not be made; false too when the person stayed.
bool CreateLibrary(Session& session, std::string_view name);

/// Gives the current library another name. False, with a message, when that is taken or the folder
/// could not be renamed.
bool RenameLibrary(Session& session, std::string_view name);

/// Selects a board of 1..`maxBoard` and loads it, after `CheckSaveChanges`. False when the person
/// stayed or there is no such entry.
bool SelectBoard(Session& session, int boardNumber);

/// Steps to the next or the previous board and round the end of the list. False as `SelectBoard`.
bool StepBoard(Session& session, bool backward = false);

/// Scans the current library and loads board `number`, or the highest that is offered.
void ListAndShow(Session& session, int number);

/// Sets the highest board offered, 1..999: raised at once; lowered after a question, which sends
/// the boards above it to the recycle bin. False when `highest` is no board number, with a beep, or
/// the person did not agree.
bool SetMaxBoard(Session& session, int highest);

}  // namespace tricklet
