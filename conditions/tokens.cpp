#include "conditions/tokens.h"

#include <algorithm>
#include <array>

#include "conditions/vocabulary.h"
#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::string_view kRanksDown = "AKQJT98765432";
constexpr std::string_view kSuitLetters = "SHDC";

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool InWord(char c) {
  return IsLetter(c) || IsDigit(c) || c == '_';
}

std::size_t WordLength(std::string_view rest) {
  const auto end = std::ranges::find_if_not(rest, InWord);
  return static_cast<std::size_t>(end - rest.begin());
}

/// A word that begins with a digit: as much of it as belongs together.
Token DigitToken(std::string_view rest) {
  if (IsCard(rest.substr(0, 2)) && WordLength(rest) == 2) return {0, 2, TokenKind::Pattern};
  const auto end = std::ranges::find_if_not(rest, IsDigit);
  const auto digits = static_cast<std::size_t>(end - rest.begin());
  if (digits < 4 && IsShapePattern(rest.substr(0, 4))) return {0, 4, TokenKind::Pattern};
  return {0, digits, TokenKind::Number};
}

Token WordToken(std::string_view rest) {
  const std::string_view word = rest.substr(0, WordLength(rest));
  if (FindWord(word) != nullptr) return {0, word.size(), TokenKind::Keyword};
  const bool pattern = IsShapePattern(word) || IsCard(word) || IsHolding(word) || IsContract(word);
  return {0, word.size(), pattern ? TokenKind::Pattern : TokenKind::Name};
}

Token BlockComment(std::string_view rest) {
  const std::size_t end = rest.find("*/", 2);
  if (end == std::string_view::npos) return {0, rest.size(), TokenKind::Fault};
  return {0, end + 2, TokenKind::Comment};
}

Token SignToken(std::string_view rest) {
  constexpr std::array kSigns{"&&", "||", "==", "!=", "<=", ">=", "\\n", "!", "<", ">", "+",
                              "-",  "*",  "/",  "%",  "(",  ")",  ",",   "?", ":", "="};
  for (const std::string_view sign : kSigns) {
    if (rest.starts_with(sign)) return {0, sign.size(), TokenKind::Operator};
  }
  // A stray character of several bytes is one fault.
  std::size_t length = 1;
  while (length < rest.size() && (static_cast<unsigned char>(rest[length]) & 0xC0U) == 0x80U) {
    ++length;
  }
  return {0, length, TokenKind::Fault};
}

/// The token at the beginning of `rest`, with offset 0; `rest` begins with no blank.
Token FirstToken(std::string_view rest) {
  const char first = rest.front();
  if (first == '#' || rest.starts_with("//")) {
    return {0, std::min(rest.find_first_of("\r\n"), rest.size()), TokenKind::Comment};
  }
  if (rest.starts_with("/*")) return BlockComment(rest);
  if (first == '"') {
    const std::size_t end = rest.find('"', 1);
    if (end == std::string_view::npos) return {0, rest.size(), TokenKind::Fault};
    return {0, end + 1, TokenKind::Text};
  }
  if (IsDigit(first)) return DigitToken(rest);
  if (IsLetter(first)) return WordToken(rest);
  return SignToken(rest);
}

/// How many bytes of blank `rest` begins with; a mark of UTF-8 and a no-break space are blank too.
std::size_t BlankLength(std::string_view rest) {
  constexpr std::string_view kBlanks = " \t\r\n\v\f";
  if (kBlanks.find(rest.front()) != std::string_view::npos) return 1;
  if (rest.starts_with(kUtf8Mark)) return kUtf8Mark.size();
  return rest.starts_with("\xC2\xA0") ? 2 : 0;
}

}  // namespace

bool IsShapePattern(std::string_view word) {
  return word.size() == 4 &&
         std::ranges::all_of(word, [](char c) { return IsDigit(c) || c == 'x'; });
}

bool IsCard(std::string_view word) {
  return word.size() == 2 && kRanksDown.find(word[0]) != std::string_view::npos &&
         kSuitLetters.find(word[1]) != std::string_view::npos;
}

bool IsHolding(std::string_view word) {
  if (word.empty() || kSuitLetters.find(word[0]) == std::string_view::npos) return false;
  std::size_t next = 0;
  for (const char rank : word.substr(1)) {
    const std::size_t at = kRanksDown.find(rank, next);
    if (at == std::string_view::npos) return false;
    next = at + 1;
  }
  return true;
}

bool IsContract(std::string_view word) {
  return word.size() == 3 && word[0] == 'x' && word[1] >= '1' && word[1] <= '7' &&
         std::string_view("CDHSN").find(word[2]) != std::string_view::npos;
}

std::vector<Token> Tokens(std::string_view text) {
  std::vector<Token> tokens;
  for (std::size_t at = 0; at < text.size();) {
    const std::string_view rest = text.substr(at);
    if (const std::size_t blank = BlankLength(rest); blank > 0) {
      at += blank;
      continue;
    }
    Token token = FirstToken(rest);
    token.offset = at;
    at += token.length;
    tokens.push_back(token);
  }
  return tokens;
}

}  // namespace tricklet
