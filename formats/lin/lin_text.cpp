#include "formats/lin/lin_text.h"

#include <algorithm>
#include <optional>

#include "core/fault.h"
#include "core/notation.h"
#include "core/text.h"

namespace tricklet {
namespace {

std::optional<unsigned> HexDigit(char c) {
  constexpr unsigned kTen = 10;
  if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
  if (c >= 'A' && c <= 'F') return kTen + static_cast<unsigned>(c - 'A');
  if (c >= 'a' && c <= 'f') return kTen + static_cast<unsigned>(c - 'a');
  return std::nullopt;
}

/// One pass: what an escape stood for is never taken for the beginning of another.
std::string DecodePercent(std::string_view text, std::size_t room) {
  std::string decoded;
  decoded.reserve(text.size() + room);
  while (!text.empty()) {
    const std::string_view plain = text.substr(0, text.find('%'));
    decoded += plain;
    text.remove_prefix(plain.size());
    if (text.empty()) break;
    const std::string_view digits = text.substr(1, 2);
    const auto high = digits.size() == 2 ? HexDigit(digits[0]) : std::nullopt;
    const auto low = digits.size() == 2 ? HexDigit(digits[1]) : std::nullopt;
    if (!high || !low) throw Fault(FaultNumber::TypeMismatch, "A percent escape is not complete");
    decoded += static_cast<char>((*high << 4U) | *low);
    text.remove_prefix(1 + digits.size());
  }
  return decoded;
}

/// What stands before the next bar, which is taken too.
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
  std::string decoded = DecodePercent(text, room);
  CleanLinNames(decoded);
  return decoded;
}

void CleanLinNames(std::string& text) {
  constexpr std::string_view kTag = "|pn|";
  const auto tag = text.find(kTag.substr(0, kTag.size() - 1));
  if (tag == std::string::npos) return;
  const std::size_t begin = std::min(tag + kTag.size(), text.size());
  for (int name = 0; name < kSeats; ++name) {
    const std::string_view names =
        std::string_view(text).substr(begin, text.find('|', begin) - begin);
    const auto mark = names.find('#');
    if (mark == std::string_view::npos) return;
    text.erase(begin + mark, std::min(names.find(',', mark), names.size()) - mark);
  }
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
