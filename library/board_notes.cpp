#include "library/board_notes.h"

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"

namespace tricklet {
namespace {

/// The board of a heading "[7]"; 0 for any other line.
int HeadingOf(std::string_view line) {
  line = Trim(line);
  if (line.size() < 3 || line.front() != '[' || line.back() != ']') return 0;
  const auto number = NumberFromText(line.substr(1, line.size() - 2));
  return number && IsStorable(*number) ? *number : 0;
}

}  // namespace

BoardNotes ParseNotes(std::string_view text) {
  if (text.starts_with(kUtf8Mark)) text.remove_prefix(kUtf8Mark.size());
  const std::string utf8 = IsValidUtf8(text) ? std::string(text) : Latin1ToUtf8(text);
  std::string_view rest = utf8;
  BoardNotes notes;
  int board = 0;
  while (!rest.empty()) {
    std::string_view line = TakeLine(rest);
    if (const int heading = line.starts_with('[') ? HeadingOf(line) : 0; heading != 0) {
      board = heading;
      continue;
    }
    if (board == 0) continue;
    if (line.starts_with(' ') && HeadingOf(line) != 0) line.remove_prefix(1);
    std::string& note = notes[board];
    note.append(line);
    note += '\n';
  }
  for (auto& [number, note] : notes) note = TrimLines(note);
  std::erase_if(notes, [](const auto& each) { return each.second.empty(); });
  return notes;
}

std::string NotesText(const BoardNotes& notes) {
  constexpr std::string_view kLineEnd = "\r\n";
  std::string text;
  for (const auto& [number, note] : notes) {
    text += "[" + std::to_string(number) + "]";
    text += kLineEnd;
    for (std::string_view rest = note; !rest.empty();) {
      const std::string_view line = TakeLine(rest);
      if (HeadingOf(line) != 0) text += ' ';
      text += line;
      text += kLineEnd;
    }
  }
  return text;
}

std::filesystem::path NotesPath(const Session& session) {
  return session.LibraryPath() / kNotesFile;
}

BoardNotes LoadNotes(const Session& session) {
  return LoadNotesOf(session.LibraryPath());
}

BoardNotes LoadNotesOf(const std::filesystem::path& folder) {
  const std::filesystem::path path = folder / kNotesFile;
  return FileExists(path) ? ParseNotes(ReadWholeFile(path, kMaxNotesBytes)) : BoardNotes();
}

void StoreNotes(const BoardNotes& notes, LibraryWrite& write) {
  const std::string text = NotesText(notes);
  if (text.size() > kMaxNotesBytes) {
    throw Fault(FaultNumber::PathFileAccess, "The notes of the library would be too long");
  }
  write.Replace(write.Library() / kNotesFile, text);
}

std::string NoteText(std::string_view note) {
  std::string text;
  for (std::string_view rest = note; !rest.empty();) {
    text += TakeLine(rest);
    text += '\n';
  }
  return std::string(TrimLines(ShowableLines(text)));
}

bool StoreNote(Session& session, int boardNumber, std::string_view note, std::string_view seen) {
  std::string text = NoteText(note);
  try {
    auto write = LibraryWrite::Begin(session);
    if (!write) return false;
    BoardNotes notes = LoadNotes(session);
    std::string& stored = notes[boardNumber];
    const bool changed = stored != seen && stored != text && !stored.empty();
    if (changed) text = stored + (text.empty() ? "" : "\n\n" + text);
    if (stored == text && !changed) return true;
    stored = text;
    if (text.empty()) notes.erase(boardNumber);
    StoreNotes(notes, *write);
    write->Finish();
    if (changed) {
      session.host.Tell("Another program has changed the notes of board " +
                        std::to_string(boardNumber) + " meanwhile. Both texts are kept.");
    }
    return true;
  } catch (const Fault& fault) {
    session.host.TellError("The notes of board " + std::to_string(boardNumber) +
                           " could not be stored:\n" + fault.Description());
    return false;
  }
}

const BoardNotes& NotesData::Of(Session& session) {
  const FileStamp stamp = StampOf(NotesPath(session));
  if (stamp == stamp_) return notes_;
  stamp_ = stamp;
  notes_.clear();
  try {
    notes_ = LoadNotes(session);
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
  }
  return notes_;
}

}  // namespace tricklet
