// Statements: limits, counts, definitions and conditions.
#include <algorithm>
#include <limits>
#include <utility>

#include "conditions/count_tables.h"
#include "conditions/script_reader.h"

namespace tricklet {

namespace {
constexpr std::size_t kMostFaults = 20;
}  // namespace

ScriptReader::ScriptReader(std::string_view text) : cursor_(text) {
  content_.counts = DefaultCounts();
}

ReadOutcome ScriptReader::Read() {
  ReadOutcome outcome;
  while (!cursor_.AtEnd() && outcome.faults.size() < kMostFaults) {
    const std::size_t start = cursor_.Place();
    try {
      ReadStatement();
    } catch (const SyntaxFault& fault) {
      outcome.faults.push_back(cursor_.Placed(fault));
      cursor_.SkipStatement(start);
    }
  }
  if (outcome.faults.empty()) {
    try {
      CheckPredealt();
    } catch (const SyntaxFault& fault) {
      outcome.faults.push_back(cursor_.Placed(fault));
    }
  }
  if (outcome.faults.empty()) {
    outcome.script = std::make_shared<const Script>(std::move(content_));
  }
  return outcome;
}

void ScriptReader::ReadStatement() {
  const bool nameFirst = cursor_.KindIs(TokenKind::Name) || cursor_.Text() == "seed";
  if (nameFirst && cursor_.SignIs("=", 1)) return ReadDefinition();
  const Word* const word = cursor_.WordHere();
  const bool seedName = cursor_.Text() == "seed" && !cursor_.KindIs(TokenKind::Number, 1);
  if (word != nullptr && word->kind == WordKind::Statement && !seedName) {
    return ReadKeywordStatement(*word);
  }
  if (word != nullptr && word->kind == WordKind::Action) {
    cursor_.Fail(cursor_.Quoted() + " has to follow \"action\", or another action and a comma");
  }
  if (cursor_.SignIs("=", 1)) cursor_.Fail(cursor_.Quoted() + " cannot be the name of a variable");
  content_.condition = ReadExpression();
}

std::int64_t ScriptReader::ReadLimit() {
  return std::max<std::int64_t>(0, cursor_.ExpectNumber());
}

void ScriptReader::ReadKeywordStatement(const Word& word) {
  cursor_.Skip();
  switch (word.code) {
    case WordCode::Produce:
      content_.produce = ReadLimit();
      return;
    case WordCode::Generate:
      content_.generate = ReadLimit();
      return;
    case WordCode::Seed:
      content_.seed = static_cast<std::uint64_t>(cursor_.ExpectNumber());
      return;
    case WordCode::Dealer:
      content_.dealer = ReadSeat();
      return;
    case WordCode::Vulnerable:
      content_.vulnerable = static_cast<Vulnerability>(
          cursor_.ExpectValue(WordCode::VulnerableSides, "vulnerability"));
      return;
    case WordCode::Predeal:
      return ReadPredeal();
    case WordCode::PointCount:
      return ReadPoints(CountKind::Hcp);
    case WordCode::AltCount:
      return ReadAltCount();
    case WordCode::Condition:
      content_.condition = ReadExpression();
      return;
    default:
      return ReadActions();
  }
}

void ScriptReader::ReadDefinition() {
  const std::string_view name = cursor_.Text();
  const auto [at, added] = variables_.try_emplace(name, kNoExpression);
  if (!added) cursor_.Fail(cursor_.Quoted() + " is defined already");
  variables_.erase(at);  // it does not stand for anything within its own definition
  cursor_.Skip();
  cursor_.Skip();
  try {
    const ExpressionId id = ReadExpression();
    variables_.emplace(name, id);
  } catch (const SyntaxFault&) {
    variables_.emplace(name, builder_.Number(0));  // so that what uses it is no further fault
    throw;
  }
}

void ScriptReader::ReadPoints(CountKind kind) {
  std::vector<std::int32_t> points;
  while (cursor_.KindIs(TokenKind::Number, cursor_.SignIs("-") ? 1 : 0)) {
    if (points.size() == kRanks) cursor_.Fail("points for more than 13 ranks");
    points.push_back(static_cast<std::int32_t>(cursor_.ExpectNumber()));
  }
  content_.counts[static_cast<std::size_t>(kind)] = PointsTable(points);
}

// As the manual of dealer has it. Debian's program (20211121) counts from 2 here: its "altcount 5"
// is what "pt3" asks for.
void ScriptReader::ReadAltCount() {
  const Token where = cursor_.Here();
  const std::int64_t number = cursor_.ExpectNumber();
  if (number < 0 || number >= kAltCounts) ScriptCursor::Fail(where, "expected a count from 0 to 9");
  ReadPoints(static_cast<CountKind>(number));
}

ReadOutcome ReadScript(std::string_view text) {
  if (text.size() > kLongestScript) {
    return {.script = nullptr, .faults = {{.text = "the script is longer than 1 MB"}}};
  }
  return ScriptReader(text).Read();
}

}  // namespace tricklet
