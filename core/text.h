// Text helpers of the readers and writers. All text inside the program is UTF-8.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>

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

/// `text` in the one form that all its spellings share, whatever their letter case and however
/// their accented letters are composed (Unicode standard, section 3.13, canonical caseless
/// matching). To be compared, not to be shown. Bytes that are no UTF-8 are taken as Latin-1.
std::string FoldCase(std::string_view text);
/// Equal but for letter case and composition.
bool EqualFolded(std::string_view a, std::string_view b);

/// The number that `text` begins with (blanks, a sign, digits); 0 when it begins with none. Numbers
/// beyond 16 bits come back as -32768 or 32767.
int LeadingNumber(std::string_view text);

/// The number that `text` is from its first character to its last, without blanks or a "+", in base
/// 10 or another of 2..36. Nothing for anything else, and for a number that the type cannot hold.
/// Floating point is always in base 10, may have an exponent, and may be "inf" or "nan".
template <class Number = int>
std::optional<Number> NumberFromText(std::string_view text, [[maybe_unused]] int base = 10) {
  Number number{};
  const char* const end = text.data() + text.size();
  std::from_chars_result read{};
  if constexpr (std::is_floating_point_v<Number>) {
    read = std::from_chars(text.data(), end, number);
  } else {
    read = std::from_chars(text.data(), end, number, base);
  }
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return number;
}

/// A number that is not negative in at least so many digits: 7 as "007".
std::string ZeroPadded(int number, std::size_t digits);

/// The shortest text that stands for the number in single precision, without an exponent: "7",
/// "7.5", "-0.1". `number` is finite.
std::string ShortestText(float number);

/// The number with so many decimals, rounded, with a point whatever the locale: "54.17", never
/// "-0.00". `number` is finite, `decimals` is 0..9.
std::string DecimalText(double number, int decimals);

/// "1,234,567"; `number` is not negative.
std::string GroupedText(std::int64_t number);

/// Takes the line at the front of `rest`, without its end (CR LF, CR or LF). `rest` must not be
/// empty.
std::string_view TakeLine(std::string_view& rest);

/// The byte-order mark with which some programs begin a file in UTF-8.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

bool IsValidUtf8(std::string_view bytes);
/// Makes text valid UTF-8: every byte that belongs to no well-formed sequence is taken as Latin-1.
std::string MendUtf8(std::string mixed);
std::string Latin1ToUtf8(std::string_view bytes);
/// Characters outside Latin-1 become "?".
std::string Utf8ToLatin1(std::string_view text);

/// Bytes of a foreign file made fit to be shown on one line: UTF-8 kept, anything else taken as
/// Latin-1, and cut with "..." beyond `longest` bytes. What a terminal or a list would obey instead
/// of showing it becomes a blank: control characters (U+0000-001F, U+007F-009F), line separators
/// (U+2028, U+2029) and characters that turn the direction of writing (U+202A-202E, U+2066-2069).
std::string Showable(std::string_view bytes, std::size_t longest = 200);
/// A whole text of several lines made fit to be shown: as `Showable`, but line ends and tabs stay,
/// and only the bytes that are no UTF-8 are taken as Latin-1.
std::string ShowableLines(std::string_view text);
/// A name made fit to be shown in a line, however long it is.
std::string ShownName(std::string_view name);
/// `ShownName` of a path. To find the file again, use `PathText`.
std::string ShownPath(const std::filesystem::path& path);

std::string PathText(const std::filesystem::path& path);
std::filesystem::path PathFromText(std::string_view text);

}  // namespace tricklet
