// The text of a hand-record file: its byte order mark, and how far it has been read.
#pragma once

#include <string_view>

namespace tricklet {

/// `text` without the byte order mark of UTF-8 at its front, if there is one.
std::string_view WithoutUtf8Mark(std::string_view text);

/// Progress is counted in thousandths of a text.
inline constexpr int kWholeText = 1000;

/// How far a reader of `text` is when `rest` of it is left: 0..`kWholeText`. An empty text counts
/// as read.
int ThousandthsRead(std::string_view text, std::string_view rest);

}  // namespace tricklet
