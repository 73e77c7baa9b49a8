// Reading USEBIO, the XML form of a club's results: one session of one section with its scoring,
// its pairs, and for each board the traveller lines with the LIN record of deal and play.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "core/fault.h"
#include "formats/results/lin_file.h"
#include "formats/sink/board_sink.h"
#include "formats/usebio/usebio_limits.h"

namespace tricklet {

// Scoring words.
inline constexpr const char* kMatchPoints = "MATCH_POINTS";
inline constexpr const char* kImps = "IMPS";
inline constexpr const char* kCrossImps = "CROSS_IMPS";
inline constexpr const char* kButlerImps = "BUTLER_IMPS";

/// What one file holds.
struct UsebioResults {
  LinFile data;        ///< a LIN record per traveller line, with the private tags
  int firstBoard = 0;  ///< lowest board number as read, 0 when there is no board
  int lastBoard = 0;   ///< highest
  LeftOut leftOut;     ///< LIN records that cannot be decoded, and boards that cannot be stored
  std::optional<Fault> broken;  ///< what the first of those records threw
};

/// Reads the text (UTF-8) of a whole file; gives a refusal for one that cannot be kept whole.
std::variant<UsebioResults, UsebioRefusal> ReadUsebio(std::string text);

/// Abbreviation of a scoring word; a word that is not known stands for itself.
std::string GetAbbreviations(std::string_view scoring);

/// The first letters of the words of a player's name, words being separated by blanks.
std::string GetInitials(std::string_view name);

}  // namespace tricklet
