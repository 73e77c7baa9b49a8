// What other programs do to the file of the current board while it is open here.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "library/library_write.h"
#include "library/session.h"

namespace tricklet {

/// What has become of a board's file since it was read or stored.
enum class DiskChange : std::uint8_t {
  None,  ///< or it cannot be told: the file cannot be read just now
  Changed,
  Added,
  Removed,
};

/// The file as it is now; `SeenFile{}` when that cannot be told. Never throws.
SeenFile LookAtBoardFile(const std::filesystem::path& path);

/// What happened between two looks at one file. None when they were at two.
DiskChange ChangeSince(const SeenFile& seen, const SeenFile& now);

/// What has become of the current board's file since `session.seenFile`. Reads the file.
DiskChange ChangeOnDisk(const Session& session);

/// The program itself has put `bytes` in the place of what the file held `before`. So the current
/// board's file has not changed, unless it had before that.
void TakeAsSeen(Session& session, const SeenFile& before, std::string bytes);

/// Loads the current board afresh from a file that another program has changed or added. False,
/// and nothing changed, when it has done neither or the file is not, or not yet, a whole board.
bool LoadChangedHand(Session& session);

/// Begins to replace the current board's file once `agrees`, which is told what has become of it,
/// says yes; asks again when the file is another one by the time of the lock. Nothing when it says
/// no, or after a message when another program is changing the library.
std::optional<LibraryWrite> BeginReplacing(Session& session,
                                           const std::function<bool(DiskChange)>& agrees);

/// Another program has stored something there that is about to be replaced.
constexpr bool IsLossToReplace(DiskChange change) {
  return change == DiskChange::Changed || change == DiskChange::Added;
}

/// The question before what another program has stored is replaced; No is its safe answer.
/// `replacement` says by what: "the board shown here". To be asked where
/// `IsLossToReplace`.
Question ReplaceChangedQuestion(const Session& session, DiskChange change,
                                const std::string& replacement);

}  // namespace tricklet
