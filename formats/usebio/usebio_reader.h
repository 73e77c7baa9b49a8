// Reading USEBIO, the XML form of a club's results: one session of one section with its scoring,
// its pairs, and for each board the traveller lines with the LIN record of deal and play.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "formats/results/lin_file.h"

namespace tricklet {

/// What one file holds.
struct UsebioResults {
  LinFile data;        ///< a LIN record per traveller line, with the private tags
  int firstBoard = 0;  ///< lowest board number as read, 0 when there is no board
  int lastBoard = 0;   ///< highest
};

/// Why a file is not imported: the message for the user.
struct UsebioRefusal {
  std::string message;
};

/// The message for a file that is no XML, or not fit to be read.
inline constexpr const char* kXmlLoadFailed =
    "XML File Load failed - a website might not be available or the file is in the wrong format";

/// The message for a file that does not hold what a results file has to.
inline constexpr const char* kUnexpectedFormat = "Unexpected XML format";

/// Elements inside one another that are read; a results file has some ten.
inline constexpr int kMaxXmlDepth = 64;
/// Longest name, word or record that is read, in bytes.
inline constexpr std::size_t kMaxUsebioText = std::size_t{64} * 1024;
/// Most traveller lines, and most pairs, that are read: 100 tables for each board of a library.
inline constexpr std::size_t kMaxUsebioLines = 100'000;

/// Reads the text (UTF-8) of a whole file. Throws `Fault` for a LIN record whose percent escapes
/// are cut short.
std::variant<UsebioResults, UsebioRefusal> ReadUsebio(std::string text);

/// Abbreviation of a scoring word; a word that is not known stands for itself.
std::string GetAbbreviations(std::string_view scoring);

/// The first letters of the words of a player's name, words being separated by blanks.
std::string GetInitials(std::string_view name);

}  // namespace tricklet
