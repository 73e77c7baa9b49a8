// The Auction and Play sections of a PBN game, with the notes to the calls.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/board.h"
#include "formats/pbn/pbn_games.h"
#include "formats/results/table_record.h"

namespace tricklet {

struct PbnAuction {
  std::vector<ExplainedCall> calls;  ///< at most `CallList::kCapacity`
  bool overlong = false;             ///< there were more; `calls` is then empty
  std::optional<Seat> dealer;        ///< by the tag and the dashes before the first call
  std::vector<std::string> unused;   ///< notes that no call refers to: "1: text"
};

/// Reads the section as `ReadAuction` does, and with each call what its notes ("=1=") say.
PbnAuction ReadPbnAuction(const PbnGame& game);

/// The cards in the order in which they were played. Each row of the section is a trick, with a
/// column for each seat from that of the tag on; who led to it follows from the row before. The
/// play ends with the first card that is not known, and after its first trick when `trumps` are not
/// known. The declarer's left-hand opponent led to the first trick, or the seat of the tag when
/// there is no declarer.
std::vector<Card> ReadPbnPlay(const PbnGame& game, std::optional<Strain> trumps,
                              std::optional<Seat> declarer);

/// A comment or a note without the blanks around it; "\S", "\H", "\D" and "\C" have become suit
/// symbols, and line ends "\n".
std::string PbnComment(std::string_view comment);

/// "1: text" of a note tag.
std::string PbnNoteLine(std::string_view note);

}  // namespace tricklet
