// The words and signs that a text in the language of deal conditions consists of.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tricklet {

enum class TokenKind : std::uint8_t {
  Keyword,   ///< a word of the vocabulary
  Name,      ///< any other word: a variable
  Number,    ///< decimal digits
  Pattern,   ///< a suit pattern such as "54xx", cards such as "AS" or "SAQ5", a contract "x3N"
  Text,      ///< in double quotes, which are part of it; may run over several lines
  Operator,  ///< signs, brackets, commas, and the "\n" of `printes`
  Comment,   ///< up to and without the end of the line, or with its "*/"
  Fault      ///< what cannot begin anything: a stray sign, a text or comment without an end
};

struct Token {
  std::size_t offset = 0;  ///< in bytes
  std::size_t length = 0;  ///< in bytes, at least 1
  TokenKind kind = TokenKind::Fault;
};

/// The tokens of `text` in their order, without the blanks between them. They do not overlap. Any
/// bytes are taken. Four digits are a number here, also where they are a suit pattern.
std::vector<Token> Tokens(std::string_view text);

/// The kinds of word that look like a name and are none.
bool IsShapePattern(std::string_view word);  ///< four digits or "x": "5431", "55xx"
bool IsCard(std::string_view word);          ///< rank and suit: "AS", "TC"
bool IsHolding(std::string_view word);       ///< suit and ranks from the ace down: "SAQ52", "H"
bool IsContract(std::string_view word);      ///< "x", level and strain: "x3N"

}  // namespace tricklet
