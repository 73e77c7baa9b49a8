// What an answer would lose, for the second line of a question: whole sentences, or nothing.
#pragma once

#include <string>

#include "library/session.h"

namespace tricklet {

/// "24 boards would be replaced: 1-24." of those that the last scan found from `first` to `last`;
/// empty when there are none. `fate` says what becomes of them: "would be replaced".
std::string BoardsAtStake(const LibraryState& library, int first, int last,
                          const std::string& fate);

/// Whether boards that a command replaces can be brought back, after a blank.
std::string FateOfReplaced(const Settings& settings);

/// What the current board has that its file has not: "The deal and the auction are not saved."
std::string UnsavedText(const Session& session);

/// What saving the current board would replace in its file: "The stored deal and auction would be
/// replaced."
std::string ReplacedText(const Session& session);

}  // namespace tricklet
