// What the deals of a library look like.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "frequencies/deal_frequencies.h"
#include "library/session.h"

namespace tricklet {

/// What the deals of a library are, counted.
struct LibraryTally {
  DealTally deals;  ///< at least one
  MakeableTally makeable;
  /// What is left out and why, a sentence each.
  std::vector<std::string> remarks;
};

struct LibraryFrequencies {
  DealFrequencies frequencies;
  /// What is left out and why, a sentence each.
  std::vector<std::string> remarks;
};

/// Counts the complete deals of the current library as they are stored, with the tables that they
/// have. Nothing, after a message, when there is none or the disk does not give a board; nothing
/// and no message when the person has cancelled.
std::optional<LibraryTally> TallyLibrary(Session& session);

/// Beside what is to be expected: deals sets at random, which takes up to a second on any thread.
/// `goOn` is as `OrdinarinessOf` has it.
LibraryFrequencies FrequenciesOf(LibraryTally tally, const std::function<bool()>& goOn = {});

/// Both, one after the other.
std::optional<LibraryFrequencies> CountLibrary(Session& session);

}  // namespace tricklet
