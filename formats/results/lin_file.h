// "LIN.txt" of a library: what is kept of an imported club result, one LIN record per traveller
// line.
//
// A sectioned text, UTF-8, CR LF after each line. A line in brackets begins a section. The sections
// in the order in which they are written:
//
//   [BoardScoringMethod]  the scoring word: "MATCH_POINTS", "IMPS", "CROSS_IMPS" ...
//   [BoardScoringAbb]     its abbreviation: "MP", "IMP", "XIMP" ...
//   [Teams]               of a team event: a line per team
//   [TeamScoringMethod]   of a team event
//   [TeamScoringAbb]      of a team event
//   [Names]               a line per pair: number, direction, the players joined by " & "
//   [LIN]                 a line per traveller line: the decoded LIN record, then the private tags
//
// Headers are known in any letter case. [TeamScoringMethod] is written so but looked for as
// [TeamsScoringMethod], so the team scoring method of a file that Tricklet wrote is not read back;
// nothing that is shown depends on it. [BoardScoring] is an older spelling of [BoardScoringMethod].
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "library/library_write.h"
#include "library/session.h"

namespace tricklet {

/// Its name in the library's folder.
inline constexpr const char* kLinFile = "LIN.txt";

/// Largest "LIN.txt" that is read or written. A session of 30 boards at 15 tables takes under 1
/// MiB.
inline constexpr std::size_t kMaxLinFileBytes = std::size_t{128} * 1024 * 1024;

/// What a team event has and a pairs event has not.
struct LinTeams {
  std::vector<std::string> teams;  ///< a line per team
  std::string teamScoringMethod;
  std::string teamScoringAbb;
  friend bool operator==(const LinTeams&, const LinTeams&) = default;
};

/// "LIN.txt" in memory. All text is UTF-8.
struct LinFile {
  std::string boardScoringMethod;
  std::string boardScoringAbb;
  std::optional<LinTeams> teamEvent;
  std::vector<std::string> names;  ///< a line per pair
  std::vector<std::string> lin;    ///< a record per traveller line
  friend bool operator==(const LinFile&, const LinFile&) = default;

  /// There is nothing to show.
  bool Empty() const { return lin.empty(); }
};

/// The text of the file. Line ends and control characters inside a value become blanks, and a value
/// that would read as a header gets a blank before it; empty names and records are left out.
std::string LinFileText(const LinFile& data);

/// Reads the text of a "LIN.txt", whichever way its lines end; a byte order mark is passed over.
/// Text that is no valid UTF-8 is taken as Latin-1. Sections that are not known are passed over; of
/// a repeated value the last counts.
LinFile ParseLinFile(std::string_view text);

/// "LIN.txt" of the current library.
std::filesystem::path LinDataPath(const Session& session);

/// Reads "LIN.txt" of the current library; empty when there is none. Throws `Fault` when it cannot
/// be read.
LinFile LoadLinData(const Session& session);
/// "LIN.txt" of the library in `folder`, likewise.
LinFile LoadLinDataOf(const std::filesystem::path& folder);

/// Puts `data`, which holds what is to be kept of the old file, in the place of the current
/// library's "LIN.txt", whole or not at all. Throws `Fault`, and then the old file is as it was.
void StoreLinData(const Session& session, const LinFile& data, LibraryWrite& write);

/// Puts `data` in the place of the current library's "LIN.txt", whose old file goes to the recycle
/// bin. Throws `Fault`, also when it does not go there, and then the old file is as it was.
void RenewLinData(Session& session, const LinFile& data, LibraryWrite& write);

/// Told when `RecycleLinData` has failed.
inline constexpr const char* kResultsNotRecycled =
    "Unable to send the old LIN.txt of the library to the recycle bin";

/// Sends the current library's "LIN.txt" to the recycle bin, where there is one. True when none is
/// left.
bool RecycleLinData(Session& session);

}  // namespace tricklet
