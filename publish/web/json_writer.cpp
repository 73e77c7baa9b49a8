#include "publish/web/json_writer.h"

#include <array>
#include <charconv>
#include <cmath>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::string_view kLineSeparators = "\xE2\x80\xA8\xE2\x80\xA9";  // U+2028, U+2029
constexpr std::size_t kSeparatorBytes = 3;

void AppendEscape(std::string& text, unsigned char c) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  text += "\\u00";
  text += kDigits[c >> 4U];
  text += kDigits[c & 0xFU];
}

bool NeedsEscape(unsigned char c) {
  return c < 0x20 || c == 0x7F || c == '<' || c == '>' || c == '&';
}

void AppendEscaped(std::string& text, std::string_view valid) {
  for (std::size_t i = 0; i < valid.size(); ++i) {
    const auto c = static_cast<unsigned char>(valid[i]);
    const std::string_view three = valid.substr(i, kSeparatorBytes);
    if (three == kLineSeparators.substr(0, kSeparatorBytes) ||
        three == kLineSeparators.substr(kSeparatorBytes)) {
      text += three.back() == '\xA8' ? "\\u2028" : "\\u2029";
      i += kSeparatorBytes - 1;
    } else if (c == '"' || c == '\\') {
      text += '\\';
      text += valid[i];
    } else if (NeedsEscape(c)) {
      AppendEscape(text, c);
    } else {
      text += valid[i];
    }
  }
}

}  // namespace

std::string JsonString(std::string_view text) {
  std::string json = "\"";
  json.reserve(text.size() + 2);
  if (IsValidUtf8(text)) {
    AppendEscaped(json, text);
  } else {
    AppendEscaped(json, MendUtf8(std::string(text)));
  }
  json += '"';
  return json;
}

void JsonWriter::BeginValue() {
  if (needsComma_) text_ += ',';
  needsComma_ = true;
}

JsonWriter& JsonWriter::Open(char bracket) {
  BeginValue();
  text_ += bracket;
  needsComma_ = false;
  return *this;
}

JsonWriter& JsonWriter::Close(char bracket) {
  text_ += bracket;
  needsComma_ = true;
  return *this;
}

JsonWriter& JsonWriter::Key(std::string_view name) {
  String(name);
  text_ += ':';
  needsComma_ = false;
  return *this;
}

JsonWriter& JsonWriter::String(std::string_view text) {
  BeginValue();
  text_ += JsonString(text);
  return *this;
}

JsonWriter& JsonWriter::Number(int number) {
  BeginValue();
  text_ += std::to_string(number);
  return *this;
}

JsonWriter& JsonWriter::Number(double number) {
  constexpr double kPlaces = 100;
  BeginValue();
  const double rounded = std::round(number * kPlaces) / kPlaces;
  std::array<char, 32> digits{};  // of any finite number in the shortest form
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                 rounded == 0 ? 0 : rounded);  // never "-0"
  text_.append(digits.data(), end.ptr);
  return *this;
}

JsonWriter& JsonWriter::Null() {
  BeginValue();
  text_ += "null";
  return *this;
}

}  // namespace tricklet
