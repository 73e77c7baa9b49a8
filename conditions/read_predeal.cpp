// Cards and suit lengths that are dealt before.
#include <algorithm>

#include "conditions/length_draw.h"
#include "conditions/script_reader.h"

namespace tricklet {
namespace {

/// A suit letter and ranks in any order, none of them twice.
bool IsLooseHolding(std::string_view word) {
  if (word.empty() || !IsHolding(word.substr(0, 1))) return false;
  std::string ranks(word.substr(1));
  std::ranges::sort(ranks);
  const bool twice = std::ranges::adjacent_find(ranks) != ranks.end();
  return !twice && ranks.find_first_not_of("AKQJT98765432") == std::string::npos;
}

std::string NameOf(Suit suit) {
  return std::string(WordFor(suit));
}

}  // namespace

void ScriptReader::ReadPredeal() {
  if (!cursor_.WordIs(WordCode::Suit) && !cursor_.WordIs(WordCode::Seat)) {
    (void)ReadSeat();  // is none: the fault names the nearest
  }
  while (true) {
    lastPredeal_ = cursor_.Here();
    if (cursor_.WordIs(WordCode::Seat)) {
      ReadPredealtCards();
    } else if (cursor_.WordIs(WordCode::Suit)) {
      ReadPredealtLength();
    } else {
      return;
    }
  }
}

void ScriptReader::ReadPredealtCards() {
  const Seat seat = ReadSeat();
  cursor_.TakeSign(",");  // may stand there
  HandTable& cards = content_.predealt.cards;
  do {
    const std::string_view word = cursor_.Text();
    if (IsCard(word) && !IsLooseHolding(word)) {
      cursor_.Fail("the suit comes first here: " + std::string{word[1], word[0]} + "?");
    }
    if (!IsLooseHolding(word)) cursor_.FailExpected("cards such as SAQ52 or HK");
    const auto suit = static_cast<Suit>(std::string_view("SHDC").find(word[0]));
    for (const char rank : word.substr(1)) {
      const Card card{suit, static_cast<Rank>(std::string_view("AKQJT98765432").find(rank))};
      if (SeatHolding(cards, card) >= 0) {
        cursor_.Fail(std::string{rank, word[0]} + " is predealt twice");
      }
      cards[seat][suit].Add(card.rank);
    }
    if (CardsIn(cards[seat]) > kCardsInHand) {
      cursor_.Fail("more than 13 cards for " + std::string(SeatName[seat]));
    }
    cursor_.Skip();
  } while (cursor_.TakeSign(","));
}

void ScriptReader::ReadPredealtLength() {
  const Token where = cursor_.Here();
  const auto suit = static_cast<Suit>(cursor_.ExpectValue(WordCode::Suit, "suit"));
  cursor_.Expect("(");
  const Seat seat = ReadSeat();
  cursor_.Expect(")");
  cursor_.Expect("==");
  const std::int64_t length = cursor_.ExpectNumber();
  auto& known = content_.predealt.lengths[seat][suit];
  if (known) {
    ScriptCursor::Fail(
        where, std::string(SeatName[seat]) + "'s " + NameOf(suit) + " have their length already");
  }
  if (length < 0 || length > kCardsInHand)
    ScriptCursor::Fail(where, "expected a length from 0 to 13");
  known = static_cast<std::uint8_t>(length);
  CheckLengths(where, seat, suit);
}

void ScriptReader::CheckLengths(const Token& where, Seat seat, Suit suit) const {
  const auto& lengths = content_.predealt.lengths;
  const auto check = [&where](int sum, int known, const std::string& what) {
    if (sum > kCardsInHand) ScriptCursor::Fail(where, "the lengths are too many for " + what);
    if (known == 4 && sum < kCardsInHand) {
      ScriptCursor::Fail(where, "the lengths are too few for " + what);
    }
  };
  int inHand = 0;
  int knownInHand = 0;
  for (const auto& length : lengths[seat]) {
    inHand += length.value_or(0);
    knownInHand += length ? 1 : 0;
  }
  check(inHand, knownInHand, std::string(SeatName[seat]));
  int inSuit = 0;
  int knownInSuit = 0;
  for (const auto& hand : lengths) {
    inSuit += hand[suit].value_or(0);
    knownInSuit += hand[suit] ? 1 : 0;
  }
  check(inSuit, knownInSuit, "the " + NameOf(suit));
}

void ScriptReader::CheckPredealt() {
  const Predealt& predealt = content_.predealt;
  if (!predealt.AnyLength()) return;
  for (const Seat seat : kAllSeats) {
    for (const Suit suit : kAllSuits) {
      const auto& length = predealt.lengths[seat][suit];
      if (length && *length < predealt.cards[seat][suit].Count()) {
        ScriptCursor::Fail(lastPredeal_, std::string(SeatName[seat]) + " is given more " +
                                             NameOf(suit) + " than the length says");
      }
    }
  }
  if (!LengthDraw(predealt).Possible()) {
    ScriptCursor::Fail(lastPredeal_, "there is no deal with these cards and lengths");
  }
}

}  // namespace tricklet
