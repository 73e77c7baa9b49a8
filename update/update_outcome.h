// The update check: what the program says of it at its start, and what came of it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/settings.h"
#include "update/fetcher.h"
#include "update/update_answer.h"

namespace tricklet {

/// The version of the running program, "0.1.0".
std::string RunningVersion();

/// What the start dialog says of updates before the check.
std::string UpdateText(const Settings& settings);

struct UpdateOutcome {
  enum class Kind : std::uint8_t {
    Newer,          ///< there is a newer version
    Newest,         ///< there is none
    NotUnderstood,  ///< the file does not tell
    NoAnswer,       ///< there was no file
  };
  Kind kind = Kind::NoAnswer;
  UpdateAnswer answer;  ///< of a newer version
  std::string failure;  ///< why there was no file, fit to be shown on one line
};

/// What `fetched` means for a program of the version `running`.
UpdateOutcome OutcomeOf(const Fetched& fetched, std::string_view running);

}  // namespace tricklet
