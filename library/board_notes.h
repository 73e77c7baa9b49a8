// "Notes.txt" of a library: what is written about its boards.
//
// UTF-8. A line "[7]" stands before the text of board 7, which may have any number of lines. A line
// of a text that would read as such a heading has a blank before it.
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "disk/file_stamp.h"
#include "library/library_write.h"
#include "library/session.h"

namespace tricklet {

/// By board number 1..999; no text is empty, lines are divided by "\n".
using BoardNotes = std::map<int, std::string>;

/// Its name in the library's folder.
inline constexpr const char* kNotesFile = "Notes.txt";

/// Largest "Notes.txt" that is read or written.
inline constexpr std::size_t kMaxNotesBytes = std::size_t{16} * 1024 * 1024;

/// Reads the text of the file, whichever way its lines end. Text that is no UTF-8 is taken as
/// Latin-1. What stands before the first heading, or under one that is no board's, is passed over;
/// texts under one number are joined.
BoardNotes ParseNotes(std::string_view text);
std::string NotesText(const BoardNotes& notes);

std::filesystem::path NotesPath(const Session& session);

/// The notes of the current library; none when it has no such file. Throws `Fault`.
BoardNotes LoadNotes(const Session& session);
/// The notes of the library in `folder`, likewise.
BoardNotes LoadNotesOf(const std::filesystem::path& folder);

/// Puts them into the file of the library that `write` changes, which is kept for the recycle bin
/// as `write` keeps what it replaces. Throws `Fault`, and then the old file is as it was.
void StoreNotes(const BoardNotes& notes, LibraryWrite& write);

/// Gives one board of the current library the text `note`; an empty one takes its notes away. The
/// file is read afresh under the library's lock, so that what others have written meanwhile of
/// other boards stays. `seen` is what the board's notes were when the person began: where another
/// program has changed them since, both texts are kept, and that is told. False, after a message,
/// when it could not be stored; the old file is then as it was.
bool StoreNote(Session& session, int boardNumber, std::string_view note, std::string_view seen);

/// `note` as `StoreNote` keeps it: without empty lines and blanks at both ends, control characters
/// as blanks, lines divided by "\n".
std::string NoteText(std::string_view note);

/// The notes of the current library, kept in memory.
class NotesData {
 public:
  /// Reads the file when it is first asked for, and again when the library is another one or the
  /// file has changed. One that cannot be read is reported once and counts as empty. Holds until
  /// the next call.
  const BoardNotes& Of(Session& session);

 private:
  FileStamp stamp_;
  BoardNotes notes_;
};

}  // namespace tricklet
