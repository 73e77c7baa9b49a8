#include "formats/pbn/pbn_scanner.h"

#include <algorithm>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr auto kEnd = std::string_view::npos;

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\v' || c == '\f';
}

bool IsBlankOrEnd(char c) {
  return IsBlank(c) || c == '\r' || c == '\n';
}

bool IsNameLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

std::string_view WithoutBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  return text;
}

std::string_view WithoutBlankLines(std::string_view text) {
  while (!text.empty() && IsBlankOrEnd(text.front())) text.remove_prefix(1);
  return text;
}

/// The name that `text` begins with; empty when it begins with none.
std::string_view NameAt(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size() && IsNameLetter(text[length])) ++length;
  return text.substr(0, length);
}

/// The line opens with a tag that is read, which in a comment means that its end is missing.
bool OpensWithTag(std::string_view line) {
  line = WithoutBlanks(line);
  if (!line.starts_with('[')) return false;
  const std::string_view name = NameAt(line.substr(1));
  return WithoutBlanks(line.substr(1 + name.size())).starts_with('"') && PbnTagOf(name);
}

/// Where the value that begins after a quote ends; `kEnd` when no quote ends it.
std::size_t EndOfValue(std::string_view text) {
  std::size_t quote = 0;
  for (; quote < text.size() && text[quote] != '"'; ++quote) {
    if (text[quote] == '\\') ++quote;
  }
  if (quote >= text.size()) return kEnd;
  // A quote inside the value ("The "Big" One") is not followed by what can follow a value. PBN
  // standard 2.1: no line has more than 255 characters.
  constexpr std::size_t kLongestLine = 255;
  const std::string_view after = WithoutBlanks(text.substr(quote + 1));
  if (after.empty() || std::string_view("][{;").find(after.front()) != kEnd) return quote;
  const auto end = text.substr(0, kLongestLine).find("\"]", quote);
  return end == kEnd ? quote : end;
}

}  // namespace

PbnScanner::Item PbnScanner::Next() {
  for (;;) {
    PassOverBlanks();
    if (left_.empty()) {
      if (rest_.empty()) return Item::End;
      NextLine();
      if (WithoutBlanks(line_).empty()) return Item::EmptyLine;
    } else if (AtTag()) {
      ReadTag();
      return Item::Tag;
    } else if (left_.front() == '{' || left_.front() == ';') {
      ReadComment();
      return Item::Comment;
    } else {
      ReadText();
      return Item::Text;
    }
  }
}

void PbnScanner::NextLine() {
  line_ = TakeLine(rest_);
  left_ = WithoutBlanks(line_);
  opening_ = left_.data();
  ++number_;
  if (!left_.starts_with('%')) return;
  NoteVersion(left_);
  left_ = {};
}

void PbnScanner::PassOverBlanks() {
  left_ = WithoutBlanks(left_);
}

/// Moves to the next text, of which there must be some.
void PbnScanner::PassOverLines() {
  PassOverBlanks();
  while (left_.empty() && !rest_.empty()) NextLine();
}

/// "% PBN 2.1".
void PbnScanner::NoteVersion(std::string_view line) {
  constexpr std::string_view kName = "PBN";
  constexpr std::size_t kLongest = 4;
  line = WithoutBlanks(line.substr(1));
  if (!EqualNoCase(line.substr(0, kName.size()), kName)) return;
  const std::string_view version = Trim(line.substr(kName.size()));
  const bool isVersion = !version.empty() && version.size() <= kLongest &&
                         version.find_first_not_of("0123456789.") == kEnd;
  if (isVersion && version_.empty()) version_ = version;
}

/// Name and value may stand on lines of their own, as long as the value is in quotes. One without
/// quotes is taken only at the beginning of a line and of a tag that is read.
bool PbnScanner::AtTag() const {
  if (!left_.starts_with('[')) return false;
  std::string_view text = WithoutBlanks(left_.substr(1));
  const bool nextLine = text.empty();
  if (nextLine) text = WithoutBlankLines(rest_);
  const std::string_view name = NameAt(text);
  if (name.empty()) return false;
  text = WithoutBlanks(text.substr(name.size()));
  const bool first = left_.data() == opening_;
  if (!nextLine && first && !text.empty() && text.front() != '"' && PbnTagOf(name)) return true;
  if (text.empty()) text = rest_;
  return WithoutBlankLines(text).starts_with('"');
}

void PbnScanner::ReadTag() {
  tag_.line = number_;
  tag_.source = line_;
  left_.remove_prefix(1);
  PassOverLines();
  tag_.name = NameAt(left_);
  tag_.known = PbnTagOf(tag_.name);
  left_.remove_prefix(tag_.name.size());
  PassOverLines();
  tag_.value = ReadValue();
  PassOverBlanks();
  if (left_.empty() && WithoutBlankLines(rest_).starts_with(']')) PassOverLines();
  if (left_.starts_with(']')) left_.remove_prefix(1);
}

/// Leaves `left_` after the value and its quote. Where the second quote is missing the value
/// reaches to the bracket that ends the line, where there are none at all to the first bracket.
std::string_view PbnScanner::ReadValue() {
  std::string_view value = left_;
  if (!left_.starts_with('"')) {
    value = left_.substr(0, left_.find(']'));
    left_.remove_prefix(value.size());
    return Trim(value);
  }
  value.remove_prefix(1);
  if (const auto end = EndOfValue(value); end != kEnd) {
    left_ = value.substr(end + 1);
    return value.substr(0, end);
  }
  left_ = {};
  value = Trim(value);
  if (value.ends_with(']')) value.remove_suffix(1);
  if (value.ends_with('"')) value.remove_suffix(1);
  return value;
}

void PbnScanner::ReadComment() {
  const bool restOfLine = left_.front() == ';';
  left_.remove_prefix(1);
  text_ = left_;
  auto brace = restOfLine ? kEnd : left_.find('}');
  while (!restOfLine && brace == kEnd && !rest_.empty()) {
    std::string_view next = rest_;
    const std::string_view line = TakeLine(next);
    brace = line.find('}');
    if (brace == kEnd && OpensWithTag(line)) break;
    rest_ = next;
    ++number_;
    line_ = left_ = line;
    opening_ = nullptr;
  }
  const auto end = std::min(brace, left_.size());
  text_ = {text_.data(), static_cast<std::size_t>(left_.data() + end - text_.data())};
  left_.remove_prefix(brace == kEnd ? end : end + 1);
}

/// Takes the text up to what else the line holds.
void PbnScanner::ReadText() {
  const std::string_view whole = left_;
  std::size_t end = 0;
  while (end < whole.size()) {
    const char c = whole[end];
    left_ = whole.substr(end);
    if (c == '{' || c == ';' || AtTag()) break;
    const auto quote = quotes_ && c == '"' ? whole.find('"', end + 1) : end;
    end = quote == kEnd ? whole.size() : quote + 1;
  }
  text_ = Trim(whole.substr(0, end));
  left_ = whole.substr(end);
}

}  // namespace tricklet
