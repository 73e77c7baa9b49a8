#include "conditions/script_cursor.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <map>
#include <numeric>
#include <utility>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::size_t kShownLetters = 40;

/// How many letters have to be put in, left out, replaced, or exchanged with their neighbour.
std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> before(b.size() + 1);
  std::vector<std::size_t> row(b.size() + 1);
  std::vector<std::size_t> next(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    next[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t replaced = row[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      next[j] = std::min({replaced, row[j] + 1, next[j - 1] + 1});
      const bool crossed = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (crossed) next[j] = std::min(next[j], before[j - 2] + 1);
    }
    std::swap(before, row);
    std::swap(row, next);
  }
  return row.back();
}

std::string Lower(std::string_view word) {
  std::string lower(word);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

/// Characters of UTF-8 text: the bytes that begin one.
int Characters(std::string_view text) {
  return static_cast<int>(std::ranges::count_if(
      text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

}  // namespace

std::string Nearest(std::string_view word, const std::vector<std::string_view>& names) {
  if (word.size() > kShownLetters) return {};
  const std::string lower = Lower(word);
  std::string_view best;
  std::size_t bestDistance = std::max<std::size_t>(1, word.size() / 3) + 1;
  for (const std::string_view name : names) {
    const std::size_t longer = std::max(name.size(), word.size());
    if (longer - std::min(name.size(), word.size()) >= bestDistance) continue;
    const std::size_t distance = Distance(lower, Lower(name));
    if (distance >= bestDistance) continue;
    bestDistance = distance;
    best = name;
  }
  return std::string(best);
}

std::int64_t NumberOf(std::string_view digits) {
  std::int64_t number = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return read.ec == std::errc() ? number : std::numeric_limits<std::int64_t>::max();
}

ScriptCursor::ScriptCursor(std::string_view text) : text_(text), tokens_(Tokens(text)) {
  std::erase_if(tokens_, [](const Token& token) { return token.kind == TokenKind::Comment; });
}

Token ScriptCursor::Here(std::size_t ahead) const {
  if (at_ + ahead < tokens_.size()) return tokens_[at_ + ahead];
  return {text_.size(), 0, TokenKind::Fault};
}

const Word* ScriptCursor::WordHere(std::size_t ahead) const {
  return KindIs(TokenKind::Keyword, ahead) ? FindWord(Text(ahead)) : nullptr;
}

bool ScriptCursor::WordIs(WordCode code, std::size_t ahead) const {
  const Word* const word = WordHere(ahead);
  return word != nullptr && word->code == code;
}

bool ScriptCursor::SignIs(std::string_view sign, std::size_t ahead) const {
  return KindIs(TokenKind::Operator, ahead) && Text(ahead) == sign;
}

bool ScriptCursor::TakeSign(std::string_view sign) {
  if (!SignIs(sign)) return false;
  Skip();
  return true;
}

void ScriptCursor::Expect(std::string_view sign) {
  if (!TakeSign(sign)) FailExpected("\"" + std::string(sign) + "\"");
}

std::int64_t ScriptCursor::ExpectNumber() {
  const bool negative = SignIs("-");
  if (!KindIs(TokenKind::Number, negative ? 1 : 0)) FailExpected("a number");
  if (negative) Skip();
  const std::int64_t number = NumberOf(Text());
  Skip();
  return negative ? -number : number;
}

int ScriptCursor::ExpectValue(WordCode code, std::string_view what) {
  if (WordIs(code)) {
    const int value = WordHere()->value;
    Skip();
    return value;
  }
  if (!KindIs(TokenKind::Name) && WordHere() == nullptr) FailExpected("a " + std::string(what));
  FailNoValue(code, what);
}

void ScriptCursor::FailNoValue(WordCode code, std::string_view what) const {
  std::vector<std::string_view> names;
  std::map<int, std::string_view> spellings;  // the first of each value
  for (const Word& word : Vocabulary()) {
    if (word.code != code) continue;
    names.push_back(word.text);
    spellings.emplace(word.value, word.text);
  }
  const std::string no = Quoted() + " is no " + std::string(what);
  const std::string nearest = Nearest(Text(), names);
  if (!nearest.empty()) Fail(no + ": " + nearest + "?");
  std::string all;
  for (const auto& [value, text] : spellings) all += (all.empty() ? "" : ", ") + std::string(text);
  Fail(no + " (" + all + ")");
}

void ScriptCursor::Fail(const Token& where, std::string text) {
  throw SyntaxFault{where, std::move(text)};
}

std::string ScriptCursor::Quoted(std::size_t ahead) const {
  if (Here(ahead).length == 0) return "the end of the text";
  return "\"" + Showable(Text(ahead), kShownLetters) + "\"";
}

void ScriptCursor::FailExpected(std::string_view what) const {
  if (KindIs(TokenKind::Fault)) {
    if (Text().starts_with("/*")) Fail("the comment has no end: \"*/\" is missing");
    if (Text().starts_with('"')) Fail("the text has no end: a quotation mark is missing");
    if (Text() == "&") Fail("\"&\" is no operator: &&?");
    if (Text() == "|") Fail("\"|\" is no operator: ||?");
  }
  if (SignIs("=")) Fail("expected " + std::string(what) + ", not \"=\": ==?");
  Fail("expected " + std::string(what) + ", not " + Quoted());
}

bool ScriptCursor::BeginsLine(std::size_t index) const {
  if (index == 0) return true;
  const Token& before = tokens_[index - 1];
  const std::size_t end = before.offset + before.length;
  return text_.substr(end, tokens_[index].offset - end).find_first_of("\r\n") !=
         std::string_view::npos;
}

void ScriptCursor::SkipStatement(std::size_t start) {
  if (at_ == start) Skip();
  for (; !AtEnd(); Skip()) {
    if (!BeginsLine(at_)) continue;
    const Word* const word = WordHere();
    if (word != nullptr && word->kind == WordKind::Statement) return;
    if (KindIs(TokenKind::Name) && SignIs("=", 1)) return;
  }
}

ScriptFault ScriptCursor::Placed(const SyntaxFault& fault) const {
  const std::string_view before = text_.substr(0, fault.where.offset);
  const std::size_t lineEnd = before.rfind('\n');
  const std::size_t lineStart = lineEnd == std::string_view::npos ? 0 : lineEnd + 1;
  // A fault that runs on, such as a text without an end, is marked up to the end of its line.
  std::string_view marked = TextOf(fault.where);
  marked = marked.substr(0, marked.find_first_of("\r\n"));
  return {.line = static_cast<int>(std::ranges::count(before, '\n')) + 1,
          .column = Characters(before.substr(lineStart)) + 1,
          .length = std::max(1, Characters(marked)),
          .text = fault.text};
}

}  // namespace tricklet
