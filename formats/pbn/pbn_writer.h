// Writing Portable Bridge Notation.
#pragma once

#include <string>
#include <string_view>

#include "core/board.h"

namespace tricklet {

struct PbnOptions {
  bool bids = true;    ///< write the auction
  bool shark = false;  ///< write a result tag and a board comment
  /// UTF-8, lines divided by "\n": written as a comment after the rest; nothing where empty.
  /// Braces become parentheses, since the first "}" ends a comment (PBN 2.1, section 3.8), and no
  /// line opens with "[" or "%", which readers by lines take for a tag and for an escape.
  std::string_view notes{};
};

/// One game: Description, Board, Dealer, Vulnerable and Deal; the auction and the table when the
/// board has them. Dealer and vulnerability follow from the board number. Lines end in CR LF; text
/// is Latin-1, as the PBN standard (2.1, section 2.2) has it.
std::string PbnRecord(const Board& board, std::string_view libraryName, PbnOptions options);

}  // namespace tricklet
