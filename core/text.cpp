#include "core/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <utf8proc.h>

namespace tricklet {
namespace {

constexpr bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

/// Length of the well-formed UTF-8 sequence at the front of `bytes`, 0 when there is none (Unicode
/// standard, table 3-7: no overlong forms, no surrogates, nothing above U+10FFFF).
std::size_t SequenceLength(std::string_view bytes) {
  const auto at = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned lead = at(0);
  if (lead < 0x80) return 1;
  std::size_t length = 0;
  unsigned low = 0x80;
  unsigned high = 0xBF;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    if (lead == 0xE0) low = 0xA0;
    if (lead == 0xED) high = 0x9F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    if (lead == 0xF0) low = 0x90;
    if (lead == 0xF4) high = 0x8F;
  }
  if (length == 0 || bytes.size() < length || at(1) < low || at(1) > high) return 0;
  for (std::size_t i = 2; i < length; ++i) {
    if (at(i) < 0x80 || at(i) > 0xBF) return 0;
  }
  return length;
}

/// Length of the ASCII text that `bytes` begins with, rounded down to whole machine words.
std::size_t AsciiLength(std::string_view bytes) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  std::size_t length = 0;
  for (std::uint64_t word = 0; length + sizeof word <= bytes.size(); length += sizeof word) {
    std::memcpy(&word, bytes.data() + length, sizeof word);
    if ((word & kHighBits) != 0) break;
  }
  return length;
}

/// The character (well-formed UTF-8) is an order to whatever shows it; see `Showable`.
bool IsOrder(std::string_view character) {
  const auto at = [character](std::size_t i) { return static_cast<unsigned char>(character[i]); };
  if (character.size() == 1) return at(0) < 0x20 || at(0) == 0x7F;
  if (character.size() == 2) return at(0) == 0xC2 && at(1) < 0xA0;
  if (character.size() != 3 || at(0) != 0xE2) return false;
  return (at(1) == 0x80 && at(2) >= 0xA8 && at(2) <= 0xAE) ||
         (at(1) == 0x81 && at(2) >= 0xA6 && at(2) <= 0xA9);
}

/// Valid UTF-8 with a blank for every order that is not one of `kept`.
std::string WithoutOrders(std::string_view text, std::string_view kept) {
  std::string shown;
  shown.reserve(text.size());
  // Nearly all of a text is such characters, and whole boards go through here when they are
  // printed.
  const auto isPlain = [](char c) { return c >= ' ' && c <= '~'; };
  while (!text.empty()) {
    const auto plain = std::find_if_not(text.begin(), text.end(), isPlain);
    shown.append(text.begin(), plain);
    text.remove_prefix(static_cast<std::size_t>(plain - text.begin()));
    if (text.empty()) break;
    const std::string_view character = text.substr(0, SequenceLength(text));
    const bool shows = !IsOrder(character) || kept.find(character) != std::string_view::npos;
    shown += shows ? character : " ";
    text.remove_prefix(character.size());
  }
  return shown;
}

}  // namespace

std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string_view TrimLines(std::string_view text) {
  const auto isBlank = [](char c) { return IsBlank(c) || c == '\r' || c == '\n'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

char ToUpper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string ToUpper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = ToUpper(c);
  return upper;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return ToUpper(x) == ToUpper(y); });
}

std::string FoldCase(std::string_view text) {
  constexpr auto kFolded =
      static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_DECOMPOSE | UTF8PROC_CASEFOLD);
  const std::string valid = MendUtf8(std::string(text));
  utf8proc_uint8_t* folded = nullptr;
  const utf8proc_ssize_t length =
      utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(valid.data()),
                   static_cast<utf8proc_ssize_t>(valid.size()), &folded, kFolded);
  const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(folded, &std::free);
  if (length < 0) throw std::bad_alloc();  // valid UTF-8 has no other way to fail
  return {folded, folded + length};
}

bool EqualFolded(std::string_view a, std::string_view b) {
  return FoldCase(a) == FoldCase(b);
}

int LeadingNumber(std::string_view text) {
  constexpr int kHighest = std::numeric_limits<std::int16_t>::max();
  constexpr int kLowest = std::numeric_limits<std::int16_t>::min();
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  bool negative = false;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  int value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') break;
    value = value * 10 + (c - '0');
    if (value > kHighest) return negative ? kLowest : kHighest;
  }
  return negative ? -value : value;
}

std::string ZeroPadded(int number, std::size_t digits) {
  std::string text = std::to_string(number);
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  return text;
}

std::string ShortestText(float number) {
  constexpr std::size_t kLongest = 64;  // more than any finite float needs without an exponent
  std::array<char, kLongest> digits{};
  const auto written =
      std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
  return {digits.data(), written.ptr};
}

std::string DecimalText(double number, int decimals) {
  constexpr std::size_t kLongest = 400;  // of all finite numbers
  constexpr double kTen = 10;
  const double scale = std::pow(kTen, decimals);
  const double rounded = std::round(number * scale) / scale;
  std::array<char, kLongest> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(),
                                 rounded == 0 ? 0.0 : rounded, std::chars_format::fixed, decimals);
  return {text.data(), end.ptr};
}

std::string GroupedText(std::int64_t number) {
  std::string digits = std::to_string(number);
  for (std::size_t at = digits.size(); at > 3; at -= 3) digits.insert(at - 3, ",");
  return digits;
}

std::string_view TakeLine(std::string_view& rest) {
  constexpr std::string_view kPair = "\r\n";
  const auto end =
      std::find_if(rest.begin(), rest.end(), [](char c) { return c == '\n' || c == '\r'; });
  const std::string_view line = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
  rest.remove_prefix(line.size());
  rest.remove_prefix(rest.starts_with(kPair) ? kPair.size()
                                             : std::min<std::size_t>(rest.size(), 1));
  return line;
}

bool IsValidUtf8(std::string_view bytes) {
  for (bytes.remove_prefix(AsciiLength(bytes)); !bytes.empty();
       bytes.remove_prefix(AsciiLength(bytes))) {
    const std::size_t length = SequenceLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

std::string MendUtf8(std::string mixed) {
  if (IsValidUtf8(mixed)) return mixed;
  std::string_view bytes = mixed;
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t length = SequenceLength(bytes);
    if (length > 0) {
      text += bytes.substr(0, length);
    } else {
      text += Latin1ToUtf8(bytes.substr(0, 1));
    }
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return text;
}

std::string Latin1ToUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      text += c;
    } else {
      text += static_cast<char>(0xC0U | (byte >> 6U));
      text += static_cast<char>(0x80U | (byte & 0x3FU));
    }
  }
  return text;
}

std::string Utf8ToLatin1(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = std::max<std::size_t>(SequenceLength(text), 1);
    const auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80) {
      bytes += text[0];
    } else if (length == 2 && lead <= 0xC3) {
      const auto trail = static_cast<unsigned char>(text[1]);
      bytes += static_cast<char>(((lead & 0x03U) << 6U) | (trail & 0x3FU));
    } else {
      bytes += '?';
    }
    text.remove_prefix(length);
  }
  return bytes;
}

std::string Showable(std::string_view bytes, std::size_t longest) {
  const bool cut = bytes.size() > longest;
  if (cut) {
    bytes = bytes.substr(0, longest);
    // A cut inside a multi-byte character must not turn the whole text into Latin-1.
    std::size_t back = bytes.size();
    while (back > 0 && bytes.size() - back < 3 &&
           (static_cast<unsigned char>(bytes[back - 1]) & 0xC0U) == 0x80U) {
      --back;
    }
    if (back > 0 && static_cast<unsigned char>(bytes[back - 1]) >= 0xC0U &&
        SequenceLength(bytes.substr(back - 1)) == 0) {
      bytes = bytes.substr(0, back - 1);
    }
  }
  std::string text = IsValidUtf8(bytes) ? std::string(bytes) : Latin1ToUtf8(bytes);
  text = WithoutOrders(text, "");
  if (cut) text += "...";
  return text;
}

std::string ShowableLines(std::string_view text) {
  return WithoutOrders(MendUtf8(std::string(text)), "\n\t");
}

std::string ShownName(std::string_view name) {
  return WithoutOrders(MendUtf8(std::string(name)), "");
}

std::string ShownPath(const std::filesystem::path& path) {
  return ShownName(PathText(path));
}

std::string PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::filesystem::path PathFromText(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

}  // namespace tricklet
