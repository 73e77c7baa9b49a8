// Reads the statements of a script.
#pragma once

#include <string>
#include <unordered_map>

#include "conditions/expression_builder.h"
#include "conditions/script_cursor.h"

namespace tricklet {

class ScriptReader {
 public:
  explicit ScriptReader(std::string_view text);

  ReadOutcome Read();

 private:
  // read_statement.cpp
  void ReadStatement();
  void ReadKeywordStatement(const Word& word);
  void ReadDefinition();
  void ReadPoints(CountKind kind);
  void ReadAltCount();
  std::int64_t ReadLimit();

  // read_predeal.cpp
  void ReadPredeal();
  void ReadPredealtCards();
  void ReadPredealtLength();
  void CheckLengths(const Token& where, Seat seat, Suit suit) const;
  void CheckPredealt();

  // read_action.cpp
  void ReadActions();
  ScriptAction ReadAction(const Word& word);
  void ReadPieces(ScriptAction& action);
  void ReadFrequency(ScriptAction& action);
  std::string ReadTitle();

  // read_expression.cpp
  /// An expression as far as it goes; a fault when there is none.
  ExpressionId ReadExpression();
  struct Pending;
  class OperatorStack;

  // read_operand.cpp
  /// A number, a variable or a function of hands.
  ExpressionId ReadOperand();
  ExpressionId ReadFunction(const Word& word);
  ExpressionId ReadCount(CountKind kind);
  ExpressionId ReadShape();
  void ReadPattern(ShapeSet& set, bool add);
  ExpressionId ReadHasCard();
  ExpressionId ReadTricks();
  /// What stands before the number of tricks.
  Node ReadContract();
  Seat ReadSeat() { return static_cast<Seat>(cursor_.ExpectValue(WordCode::Seat, "seat")); }
  [[noreturn]] void FailUnknown() const;

  ScriptCursor cursor_;
  ScriptContent content_;
  ExpressionBuilder builder_{content_};
  std::unordered_map<std::string_view, ExpressionId> variables_;
  Token lastPredeal_;
};

}  // namespace tricklet
