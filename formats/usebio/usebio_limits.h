// What a results file may hold, and what is told when it holds something else.
#pragma once

#include <cstddef>
#include <string>

namespace tricklet {

/// Largest XML file that is read, in bytes: a session of 30 boards at 15 tables takes some 1 MiB,
/// and the document in memory may take twenty times its file.
inline constexpr std::size_t kMaxXmlBytes = std::size_t{64} * 1024 * 1024;
/// How many elements may be nested inside one another, the outermost included; a results file has
/// some ten.
inline constexpr int kMaxXmlDepth = 64;
/// Longest name, word or record that is read, in bytes.
inline constexpr std::size_t kMaxUsebioText = std::size_t{64} * 1024;
/// Most traveller lines, and most pairs, that are read: 100 tables for each board of a library.
inline constexpr std::size_t kMaxUsebioLines = 100'000;

/// Why a file is not imported. Thrown and caught inside the reader.
struct UsebioRefusal {
  std::string message;  ///< for the user
};

/// The message for a file that is no XML, or not fit to be read.
inline constexpr const char* kXmlLoadFailed =
    "XML File Load failed - a website might not be available or the file is in the wrong format";

/// The message for a file that does not hold what a results file has to.
inline constexpr const char* kUnexpectedFormat = "Unexpected XML format";

}  // namespace tricklet
