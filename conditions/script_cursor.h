// A place in the text of a script, and what is said when something else should stand there.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "conditions/script.h"
#include "conditions/tokens.h"
#include "conditions/vocabulary.h"

namespace tricklet {

/// A fault on its way to the statement loop, which notes it and goes on after the statement.
struct SyntaxFault {
  Token where;  ///< of length 0 at the end of the text
  std::string text;
};

class ScriptCursor {
 public:
  explicit ScriptCursor(std::string_view text);

  bool AtEnd() const { return at_ == tokens_.size(); }
  /// The token at the place, or the one after it; of length 0 at the end.
  Token Here(std::size_t ahead = 0) const;
  std::string_view Text(std::size_t ahead = 0) const { return TextOf(Here(ahead)); }
  std::string_view TextOf(const Token& token) const {
    return text_.substr(token.offset, token.length);
  }
  /// The word of the vocabulary at the place; null when there is none.
  const Word* WordHere(std::size_t ahead = 0) const;
  bool WordIs(WordCode code, std::size_t ahead = 0) const;
  bool KindIs(TokenKind kind, std::size_t ahead = 0) const {
    return Here(ahead).length > 0 && Here(ahead).kind == kind;
  }
  bool SignIs(std::string_view sign, std::size_t ahead = 0) const;

  void Skip() { at_ += AtEnd() ? 0 : 1; }
  bool TakeSign(std::string_view sign);
  /// The sign, or a fault.
  void Expect(std::string_view sign);
  /// The number at the place, maybe with a minus before it; a fault when there is none. Numbers
  /// beyond 64 bits are the greatest.
  std::int64_t ExpectNumber();
  /// The word at the place when it is one of a kind ("north" of seats); otherwise a fault that says
  /// it is no `what` ("seat"), with the nearest, or all that there are.
  int ExpectValue(WordCode code, std::string_view what);

  /// The name at the place is no `what`; the nearest of them, or all.
  [[noreturn]] void FailNoValue(WordCode code, std::string_view what) const;
  [[noreturn]] void Fail(std::string text) const { Fail(Here(), std::move(text)); }
  [[noreturn]] static void Fail(const Token& where, std::string text);
  /// "expected WHAT, not \"hcpp\"".
  [[noreturn]] void FailExpected(std::string_view what) const;
  /// "\"nort\"", "the end of the text".
  std::string Quoted(std::size_t ahead = 0) const;

  /// The number of tokens before the place.
  std::size_t Place() const { return at_; }
  /// Goes on, behind place `start`, to what begins a line and looks like the beginning of a
  /// statement.
  void SkipStatement(std::size_t start);
  ScriptFault Placed(const SyntaxFault& fault) const;

 private:
  bool BeginsLine(std::size_t index) const;

  std::string_view text_;
  std::vector<Token> tokens_;
  std::size_t at_ = 0;
};

/// The name of `names` that `word` was probably meant to be: the one that fewest typing errors
/// lead to, at most a third of its letters. Empty when there is none.
std::string Nearest(std::string_view word, const std::vector<std::string_view>& names);

/// The number that digits stand for, the greatest of 64 bits when it is beyond.
std::int64_t NumberOf(std::string_view digits);

}  // namespace tricklet
