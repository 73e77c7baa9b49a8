// A play as the solver library takes it.
#pragma once

#include "analysis/dds_types.h"
#include "core/recorded_play.h"

namespace tricklet::bench {

struct BarePlay {
  dds::BinaryDeal deal{};
  dds::PlayedCards cards{};
};

inline BarePlay ToBare(const RecordedPlay& record) {
  constexpr int kAce = 14;
  BarePlay bare;
  bare.deal.trump = IndexOf(record.board.trumps);
  bare.deal.first = IndexOf(SeatAfter(record.board.declarer));
  for (const Seat seat : kAllSeats) {
    for (int index = 0; index < kCardsInPack; ++index) {
      const Card card = Card::FromIndex(index);
      if (!record.board.hands[seat][card.suit].Has(card.rank)) continue;
      bare.deal.cardsLeft.at(static_cast<std::size_t>(seat))
          .at(static_cast<std::size_t>(card.suit)) |=
          1U << static_cast<unsigned>(kAce - IndexOf(card.rank));
    }
  }
  for (const Card card : record.cards) {
    const auto at = static_cast<std::size_t>(bare.cards.count++);
    bare.cards.suit.at(at) = IndexOf(card.suit);
    bare.cards.rank.at(at) = kAce - IndexOf(card.rank);
  }
  return bare;
}

}  // namespace tricklet::bench
