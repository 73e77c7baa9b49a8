// What the file at the update address tells.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "update/semantic_version.h"

namespace tricklet {

/// The most that is read of an answer.
inline constexpr std::size_t kLongestAnswer = std::size_t{64} * 1024;  // bytes

struct UpdateAnswer {
  SemanticVersion version;
  std::string shownVersion;  ///< as the file has it, fit to be shown: 40 bytes and "..." at most
  std::string page;          ///< where to read of it and get it; an allowed address
  std::string notes;  ///< what is new, fit to be shown: 300 bytes and "..." at most; may be empty
};

/// Reads the lines "version=", "page=" and "notes=", in any order; other lines are passed over.
/// Nothing when the answer is longer than `kLongestAnswer`, when it names no version or no page, or
/// what is none, or when it names one of the three twice.
std::optional<UpdateAnswer> ReadUpdateAnswer(std::string_view bytes);

}  // namespace tricklet
