// Numbers, variables and functions of hands.
#include <algorithm>
#include <array>

#include "conditions/script_reader.h"

namespace tricklet {
namespace {

Suit SuitOfLetter(char letter) {
  return static_cast<Suit>(std::string_view("SHDC").find(letter));
}
Rank RankOfLetter(char letter) {
  return static_cast<Rank>(std::string_view("AKQJT98765432").find(letter));
}

/// Puts all lengths that a pattern stands for into the set, or takes them out of it.
void Change(ShapeSet& set, std::string_view pattern, bool add) {
  const auto fits = [&](std::size_t at, int length) {
    return pattern[at] == 'x' || pattern[at] - '0' == length;
  };
  for (int spades = 0; spades <= kCardsInHand; ++spades) {
    if (!fits(0, spades)) continue;
    for (int hearts = 0; hearts <= kCardsInHand - spades; ++hearts) {
      if (!fits(1, hearts)) continue;
      for (int diamonds = 0; diamonds <= kCardsInHand - spades - hearts; ++diamonds) {
        const int clubs = kCardsInHand - spades - hearts - diamonds;
        if (fits(2, diamonds) && fits(3, clubs)) set[ShapeIndex(spades, hearts, diamonds)] = add;
      }
    }
  }
}

/// Whether any hand has the lengths of a pattern.
bool IsPossible(std::string_view pattern) {
  int sum = 0;
  for (const char c : pattern) sum += c == 'x' ? 0 : c - '0';
  const bool open = pattern.find('x') != std::string_view::npos;
  return sum == kCardsInHand || (open && sum < kCardsInHand);
}

}  // namespace

ExpressionId ScriptReader::ReadOperand() {
  if (cursor_.KindIs(TokenKind::Number)) {
    // A number that is too great wraps around to 32 bits.
    const auto value = static_cast<std::int32_t>(NumberOf(cursor_.Text()));
    cursor_.Skip();
    return builder_.Number(value);
  }
  if (const auto known = variables_.find(cursor_.Text()); known != variables_.end()) {
    cursor_.Skip();
    return known->second;
  }
  const Word* const word = cursor_.WordHere();
  if (word != nullptr) return ReadFunction(*word);
  if (cursor_.KindIs(TokenKind::Name)) FailUnknown();
  cursor_.FailExpected("a value");
}

void ScriptReader::FailUnknown() const {
  std::vector<std::string_view> names;
  for (const Word& word : Vocabulary()) {
    if (word.kind == WordKind::Function || word.kind == WordKind::Suit) names.push_back(word.text);
  }
  for (const auto& [name, id] : variables_) names.push_back(name);
  std::ranges::sort(names);
  const std::string nearest = Nearest(cursor_.Text(), names);
  const std::string_view kind = cursor_.SignIs("(", 1) ? " is no function" : " is not known";
  cursor_.Fail(cursor_.Quoted() + std::string(kind) +
               (nearest.empty() ? "" : ": " + nearest + "?"));
}

ExpressionId ScriptReader::ReadFunction(const Word& word) {
  const bool function = word.kind == WordKind::Function || word.code == WordCode::Suit;
  if (!function) cursor_.FailExpected("a value");
  cursor_.Skip();
  cursor_.Expect("(");
  ExpressionId id = kNoExpression;
  switch (word.code) {
    case WordCode::Count:
      id = ReadCount(static_cast<CountKind>(word.value));
      break;
    case WordCode::Suit:
      id = builder_.Add(
          {.op = Op::Length, .seat = ReadSeat(), .suit = static_cast<Suit>(word.value)});
      break;
    case WordCode::Cccc:
      id = builder_.Add({.op = Op::Cccc, .seat = ReadSeat()});
      break;
    case WordCode::Shape:
      id = ReadShape();
      break;
    case WordCode::HasCard:
      id = ReadHasCard();
      break;
    default:
      id = ReadTricks();
      break;
  }
  cursor_.Expect(")");
  return id;
}

ExpressionId ScriptReader::ReadCount(CountKind kind) {
  Node node{.op = Op::Count, .seat = ReadSeat(), .value = static_cast<std::int32_t>(kind)};
  if (kind == CountKind::Quality || cursor_.SignIs(",")) {
    cursor_.Expect(",");
    node.op = Op::SuitCount;
    node.suit = static_cast<Suit>(cursor_.ExpectValue(WordCode::Suit, "suit"));
  }
  return builder_.Add(node);
}

void ScriptReader::ReadPattern(ShapeSet& set, bool add) {
  const bool any = cursor_.WordIs(WordCode::Any);
  if (any) cursor_.Skip();
  std::string pattern(cursor_.Text());
  if (!IsShapePattern(pattern)) {
    cursor_.FailExpected("a shape such as 5431 or 54xx");
  }
  if (!IsPossible(pattern)) cursor_.Fail("no hand has the suit lengths " + cursor_.Quoted());
  cursor_.Skip();
  if (!any) return Change(set, pattern, add);
  std::ranges::sort(pattern);
  do {
    Change(set, pattern, add);
  } while (std::ranges::next_permutation(pattern).found);
}

ExpressionId ScriptReader::ReadShape() {
  const Seat seat = ReadSeat();
  cursor_.Expect(",");
  ShapeSet set;
  do {
    const bool add = !cursor_.TakeSign("-");
    if (add) cursor_.TakeSign("+");
    ReadPattern(set, add);
    // "+", a comma and nothing at all mean the same.
    cursor_.TakeSign(",");
  } while (!cursor_.SignIs(")"));
  return builder_.Add({.op = Op::Shape, .seat = seat, .value = builder_.AddShape(set)});
}

ExpressionId ScriptReader::ReadHasCard() {
  Node node{.op = Op::HasCard, .seat = ReadSeat()};
  cursor_.Expect(",");
  const std::string_view card = cursor_.Text();
  if (IsHolding(card) && card.size() == 2) {
    cursor_.Fail("the rank of a card comes first here: " + std::string{card[1], card[0]} + "?");
  }
  if (!IsCard(card)) cursor_.FailExpected("a card such as AS or TC");
  node.value = IndexOf(RankOfLetter(card[0]));
  node.suit = SuitOfLetter(card[1]);
  cursor_.Skip();
  return builder_.Add(node);
}

ExpressionId ScriptReader::ReadTricks() {
  Node node{.op = Op::Tricks, .seat = ReadSeat()};
  cursor_.Expect(",");
  if (cursor_.WordIs(WordCode::NoTrump)) {
    node.value = IndexOf(Strain::NoTrump);
    cursor_.Skip();
  } else {
    node.value = cursor_.ExpectValue(WordCode::Suit, "suit or notrump");
  }
  return builder_.Add(node);
}

Node ScriptReader::ReadContract() {
  const bool vulnerable = cursor_.WordIs(WordCode::Vul);
  if (!vulnerable && !cursor_.WordIs(WordCode::NonVul)) cursor_.FailExpected("vul or nv");
  cursor_.Skip();
  cursor_.Expect(",");
  const std::string_view contract = cursor_.Text();
  if (!IsContract(contract)) cursor_.FailExpected("a contract such as x3N or x4S");
  const auto strain = static_cast<BidStrain>(std::string_view("CDHSN").find(contract[2]));
  cursor_.Skip();
  cursor_.Expect(",");
  return {.op = Op::Score,
          .value = ContractNumber(contract[1] - '0', ToStrain(strain), vulnerable)};
}

}  // namespace tricklet
