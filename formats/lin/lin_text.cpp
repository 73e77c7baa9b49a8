#include "formats/lin/lin_text.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/fault.h"
#include "core/notation.h"
#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::string_view kNames = "pn|";

std::optional<unsigned> HexDigit(char c) {
  constexpr unsigned kTen = 10;
  if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
  if (c >= 'A' && c <= 'F') return kTen + static_cast<unsigned>(c - 'A');
  if (c >= 'a' && c <= 'f') return kTen + static_cast<unsigned>(c - 'a');
  return std::nullopt;
}

struct DecodedText {
  std::string text;
  bool broken = false;  // an escape was broken and has become `kBrokenEscape`
};

/// One pass: a decoded character never begins another escape.
DecodedText DecodePercent(std::string_view text, std::size_t room = 0) {
  DecodedText result;
  std::string& decoded = result.text;
  decoded.reserve(text.size() + room);
  while (!text.empty()) {
    const std::string_view plain = text.substr(0, text.find('%'));
    decoded += plain;
    text.remove_prefix(plain.size());
    if (text.empty()) break;
    const std::string_view digits = text.substr(1, 2);
    const auto high = digits.size() == 2 ? HexDigit(digits[0]) : std::nullopt;
    const auto low = digits.size() == 2 ? HexDigit(digits[1]) : std::nullopt;
    if (high && low) {
      decoded += static_cast<char>((*high << 4U) | *low);
      text.remove_prefix(1 + digits.size());
    } else {
      decoded += kBrokenEscape;
      text.remove_prefix(1);
      result.broken = true;
    }
  }
  return result;
}

/// Where the next "pn" field begins, at `from` or after it; npos when there is none.
std::size_t FindNames(std::string_view text, std::size_t from) {
  constexpr std::string_view kBefore = "|\r\n";
  for (auto tag = text.find(kNames, from); tag != std::string_view::npos;
       tag = text.find(kNames, tag + 1)) {
    if (tag == 0 || kBefore.find(text[tag - 1]) != std::string_view::npos) return tag;
  }
  return std::string_view::npos;
}

/// Cuts each of the first four names of the first "pn" field off at its "#".
void CleanNames(std::string& text) {
  const std::size_t tag = FindNames(text, 0);
  if (tag == std::string::npos) return;
  const std::size_t begin = tag + kNames.size();
  for (int name = 0; name < kSeats; ++name) {
    const std::string_view names =
        std::string_view(text).substr(begin, text.find('|', begin) - begin);
    const auto mark = names.find('#');
    if (mark == std::string_view::npos) return;
    text.erase(begin + mark, std::min(names.find(',', mark), names.size()) - mark);
  }
}

/// Takes what stands before the next bar, and the bar itself.
std::string_view TakeToBar(std::string_view& rest) {
  const auto bar = rest.find('|');
  const std::string_view taken = rest.substr(0, bar);
  rest = bar == std::string_view::npos ? std::string_view() : rest.substr(bar + 1);
  return TrimLines(taken);
}

bool IsTag(std::string_view text) {
  constexpr std::string_view kOwn = "qen";
  const bool length = text.size() == 2 || (text.starts_with(kOwn) && text.size() > kOwn.size() &&
                                           text.size() <= kOwn.size() + 2);
  return length &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

}  // namespace

std::string ReadLinData(std::string_view text, std::size_t room) {
  DecodedText decoded = DecodePercent(text, room);
  if (decoded.broken) throw Fault(FaultNumber::TypeMismatch, "A percent escape is not complete");
  CleanNames(decoded.text);
  return std::move(decoded.text);
}

std::string DecodeLinRecords(std::string_view text) {
  const std::string decoded = DecodePercent(text).text;
  std::string cleaned;
  cleaned.reserve(decoded.size());
  // In pieces of one "pn" field each, so that cutting a name moves no more than its piece.
  for (std::size_t begin = 0; begin < decoded.size();) {
    const std::size_t next = std::min(FindNames(decoded, begin + 1), decoded.size());
    std::string piece = decoded.substr(begin, next - begin);
    CleanNames(piece);
    cleaned += piece;
    begin = next;
  }
  return cleaned;
}

bool NextLinField(std::string_view& rest, LinField& field) {
  while (!rest.empty()) {
    field.tag = TakeToBar(rest);
    if (!IsTag(field.tag)) continue;
    field.value = TakeToBar(rest);
    return true;
  }
  return false;
}

}  // namespace tricklet
