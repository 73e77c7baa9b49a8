#include "simulation/known_deal.h"

#include <algorithm>
#include <utility>

#include "conditions/length_draw.h"

namespace tricklet {
namespace {

/// False, and why, where another seat is known to hold one of the cards.
bool JoinCards(const HandTable& predealt, HandTable& known, std::string& why) {
  for (int index = 0; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index);
    const int wanted = SeatHolding(predealt, card);
    if (wanted < 0) continue;
    const int holder = SeatHolding(known, card);
    if (holder >= 0 && holder != wanted) {
      why = "The " + CardText(card) + " is known to be with " +
            std::string(SeatName[static_cast<Seat>(holder)]);
      return false;
    }
    AddCard(known, card, static_cast<Seat>(wanted));
  }
  return true;
}

/// False where a length is known to be another.
bool JoinLengths(const Predealt& predealt, Predealt& known) {
  for (const Seat seat : kAllSeats) {
    for (const Suit suit : kAllSuits) {
      const auto& wanted = predealt.lengths[seat][suit];
      auto& length = known.lengths[seat][suit];
      if (wanted && length && *wanted != *length) return false;
      if (wanted) length = wanted;
    }
  }
  return true;
}

/// Some deal holds all of it.
bool IsPossible(const Predealt& known) {
  const bool room = std::all_of(kAllSeats.begin(), kAllSeats.end(), [&known](Seat seat) {
    return CardsIn(known.cards[seat]) <= kCardsInHand;
  });
  return room && (!known.AnyLength() || LengthDraw(known).Possible());
}

}  // namespace

std::shared_ptr<const Script> ScriptOfDeals(const Predealt& known, std::string_view condition,
                                            std::string& why) {
  ScriptContent content;
  if (!condition.empty()) {
    const ReadOutcome read = ReadScript(condition);
    if (!read.script) {
      why = FaultText(read.faults.front());
      return nullptr;
    }
    content = read.script->Content();
  }
  Predealt joined = known;
  if (!JoinCards(content.predealt.cards, joined.cards, why)) return nullptr;
  if (!JoinLengths(content.predealt, joined) || !IsPossible(joined)) {
    why = "No deal agrees with the cards that are known";
    return nullptr;
  }
  content.predealt = joined;
  return std::make_shared<const Script>(std::move(content));
}

}  // namespace tricklet
