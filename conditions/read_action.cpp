// The list of actions.
#include <algorithm>
#include <utility>

#include "conditions/script_reader.h"

namespace tricklet {
namespace {

ActionKind KindOf(WordCode code) {
  switch (code) {
    case WordCode::Print:
      return ActionKind::Print;
    case WordCode::PrintEW:
      return ActionKind::PrintEW;
    case WordCode::PrintPBN:
      return ActionKind::PrintPBN;
    case WordCode::PrintCompact:
      return ActionKind::PrintCompact;
    case WordCode::PrintOneLine:
      return ActionKind::PrintOneLine;
    case WordCode::PrintEs:
      return ActionKind::PrintEs;
    case WordCode::Average:
      return ActionKind::Average;
    case WordCode::Frequency:
      return ActionKind::Frequency;
    default:
      return ActionKind::PrintAll;
  }
}

bool IsAction(const ScriptCursor& cursor, std::size_t ahead = 0) {
  const Word* const word = cursor.WordHere(ahead);
  return word != nullptr && word->kind == WordKind::Action;
}

}  // namespace

void ScriptReader::ReadActions() {
  // A second list takes the place of the first; a comma may stand at the end of one.
  content_.actions.clear();
  content_.hasActions = true;
  while (IsAction(cursor_)) {
    const Word word = *cursor_.WordHere();
    cursor_.Skip();
    content_.actions.push_back(ReadAction(word));
    if (!cursor_.TakeSign(",")) return;
  }
  if (!cursor_.KindIs(TokenKind::Name) || cursor_.SignIs("=", 1)) return;
  if (variables_.contains(cursor_.Text())) return;
  std::vector<std::string_view> names;
  for (const Word& word : Vocabulary()) {
    if (word.kind == WordKind::Action) names.push_back(word.text);
  }
  const std::string nearest = Nearest(cursor_.Text(), names);
  cursor_.Fail(cursor_.Quoted() + " is no action" + (nearest.empty() ? "" : ": " + nearest + "?"));
}

std::string ScriptReader::ReadTitle() {
  if (!cursor_.KindIs(TokenKind::Text)) return {};
  const std::string_view text = cursor_.Text();
  cursor_.Skip();
  return std::string(text.substr(1, text.size() - 2));
}

ScriptAction ScriptReader::ReadAction(const Word& word) {
  ScriptAction action{.kind = KindOf(word.code)};
  switch (action.kind) {
    case ActionKind::Print:
      cursor_.Expect("(");
      do {
        action.seats.push_back(ReadSeat());
      } while (cursor_.TakeSign(","));
      cursor_.Expect(")");
      // A page for each of them, clockwise from North, in whatever order they are named.
      std::ranges::sort(action.seats);
      action.seats.erase(std::ranges::unique(action.seats).begin(), action.seats.end());
      break;
    case ActionKind::PrintCompact:
    case ActionKind::PrintOneLine:
      if (!cursor_.SignIs("(")) break;
      cursor_.Skip();
      action.expression = ReadExpression();
      cursor_.Expect(")");
      break;
    case ActionKind::PrintEs:
      ReadPieces(action);
      break;
    case ActionKind::Average:
      action.title = ReadTitle();
      action.expression = ReadExpression();
      break;
    case ActionKind::Frequency:
      ReadFrequency(action);
      break;
    default:
      break;
  }
  return action;
}

void ScriptReader::ReadPieces(ScriptAction& action) {
  // The brackets may be missing: then another action, or the end, ends the list.
  const bool bracketed = cursor_.TakeSign("(");
  const auto goesOn = [&] {
    if (!bracketed && (IsAction(cursor_, 1) || cursor_.Here(1).length == 0)) return false;
    return cursor_.TakeSign(",");
  };
  do {
    if (cursor_.KindIs(TokenKind::Text)) {
      action.pieces.push_back({.text = ReadTitle()});
    } else if (cursor_.TakeSign("\\n")) {
      action.pieces.push_back({.text = "\n"});
    } else {
      action.pieces.push_back({.expression = ReadExpression(), .text = {}});
    }
  } while (goesOn());
  if (bracketed) cursor_.Expect(")");
}

void ScriptReader::ReadFrequency(ScriptAction& action) {
  // What is counted is kept for each value, and for each pair of two.
  constexpr std::int64_t kMostValues = 1000000;
  action.title = ReadTitle();
  cursor_.Expect("(");
  std::int64_t values = 1;
  do {
    const ExpressionId expression = ReadExpression();
    cursor_.Expect(",");
    const Token where = cursor_.Here();
    const auto low = static_cast<std::int32_t>(cursor_.ExpectNumber());
    cursor_.Expect(",");
    const auto high = static_cast<std::int32_t>(cursor_.ExpectNumber());
    values *= std::max<std::int64_t>(0, std::int64_t{high} - low + 1) + 2;
    if (values > kMostValues) ScriptCursor::Fail(where, "more than a million values to count");
    action.ranges.push_back({.expression = expression, .low = low, .high = high});
  } while (action.ranges.size() < 2 && cursor_.TakeSign(","));
  cursor_.Expect(")");
}

}  // namespace tricklet
