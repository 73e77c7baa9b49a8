// JSON (RFC 8259) to stand inside a page.
#pragma once

#include <string>
#include <string_view>

namespace tricklet {

/// Writes one value after another. What separates them is added here; that objects and arrays are
/// closed, and keys stand before values, is the caller's business.
class JsonWriter {
 public:
  JsonWriter& BeginObject() { return Open('{'); }
  JsonWriter& EndObject() { return Close('}'); }
  JsonWriter& BeginArray() { return Open('['); }
  JsonWriter& EndArray() { return Close(']'); }
  JsonWriter& Key(std::string_view name);
  /// UTF-8; bytes that belong to no well-formed sequence are taken as Latin-1.
  JsonWriter& String(std::string_view text);
  JsonWriter& Number(int number);
  /// Finite, to two places after the point.
  JsonWriter& Number(double number);
  JsonWriter& Null();

  const std::string& Text() const { return text_; }

 private:
  void BeginValue();
  JsonWriter& Open(char bracket);
  JsonWriter& Close(char bracket);

  std::string text_;
  bool needsComma_ = false;
};

/// `text` with its quotes. Nothing in it can end or begin an element or a comment of the page, or a
/// line of a script: "<", ">", "&", control characters, U+2028 and U+2029 are escaped.
std::string JsonString(std::string_view text);

}  // namespace tricklet
