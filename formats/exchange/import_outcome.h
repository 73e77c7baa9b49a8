// How an import ended.
#pragma once

#include <filesystem>

namespace tricklet {

struct ImportOutcome {
  int boardsSaved = 0;           ///< as the message at the end counts them
  bool refused = false;          ///< by the person or because of the file's type: nothing was read
  bool cancelled = false;        ///< by the person, while it was running
  bool failed = false;           ///< not all could be read and stored; what was stored stays
  std::filesystem::path file{};  ///< what was read; empty when it was a text, or refused
};

}  // namespace tricklet
