// Text helpers of the readers and writers. All text inside the program is UTF-8.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace tricklet {

/// Without the blanks at both ends (blanks and tabs only: line ends are the readers' business).
std::string_view Trim(std::string_view text);

/// Without the blanks, tabs and line ends at both ends.
std::string_view TrimLines(std::string_view text);

/// ASCII letters in upper case; all other bytes as they are.
std::string ToUpper(std::string_view text);
char ToUpper(char c);

/// Equal but for the case of ASCII letters.
bool EqualNoCase(std::string_view a, std::string_view b);

/// The number that `text` begins with (blanks, a sign, digits); 0 when it begins with none. Numbers
/// beyond 16 bits come back as -32768 or 32767.
int LeadingNumber(std::string_view text);

/// A number that is not negative in at least so many digits: 7 as "007".
std::string ZeroPadded(int number, std::size_t digits);

/// The shortest text that stands for the number in single precision, without an exponent: "7",
/// "7.5", "-0.1". `number` is finite.
std::string ShortestText(float number);

/// Takes the line at the front of `rest`, without its end (CR LF, CR or LF). `rest` must not be
/// empty.
std::string_view TakeLine(std::string_view& rest);

bool IsValidUtf8(std::string_view bytes);
/// Makes text valid UTF-8: every byte that belongs to no well-formed sequence is taken as Latin-1.
std::string MendUtf8(std::string mixed);
std::string Latin1ToUtf8(std::string_view bytes);
/// Characters outside Latin-1 become "?".
std::string Utf8ToLatin1(std::string_view text);

/// Bytes of a foreign file made fit to be shown: UTF-8 kept, anything else taken as Latin-1,
/// control characters as blanks, and cut with "..." beyond `longest` bytes.
std::string Showable(std::string_view bytes, std::size_t longest = 200);

std::string PathText(const std::filesystem::path& path);
std::filesystem::path PathFromText(std::string_view text);

}  // namespace tricklet
