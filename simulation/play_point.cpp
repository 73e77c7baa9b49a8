#include "simulation/play_point.h"

#include "core/trick.h"

namespace tricklet {
namespace {

/// Goes card by card.
class Follower {
 public:
  explicit Follower(const Board& board) : left_(board.hands) {
    point_.trumps = board.trumps;
    point_.declarer = board.declarer;
    point_.leader = point_.onPlay = SeatAfter(board.declarer);
  }

  /// False, and nothing done, when `card` is not legal.
  bool Play(Card card) {
    const Seat seat = point_.onPlay;
    if (!trick_.LegalCards(left_[seat])[card.suit].Has(card.rank)) return false;
    if (trick_.cardsInTrick > 0 && card.suit != trick_.ledSuit) {
      point_.shownOut[seat][trick_.ledSuit] = true;
    }
    left_[seat][card.suit].Remove(card.rank);
    AddCard(point_.cardsPlayed, card, seat);
    ++point_.played;
    point_.trick.push_back(card);
    trick_.Add(card, seat, point_.trumps);
    point_.onPlay = SeatAfter(seat);
    if (trick_.cardsInTrick == kSeats) EndTrick();
    return true;
  }

  PlayPoint Point() {
    point_.legal = trick_.LegalCards(left_[point_.onPlay]);
    return point_;
  }
  Seat OnPlay() const { return point_.onPlay; }

 private:
  void EndTrick() {
    point_.leader = point_.onPlay = trick_.trickWinner;
    ++point_.tricksWon[SideOf(trick_.trickWinner)];
    point_.trick.clear();
    trick_.cardsInTrick = 0;
  }

  HandTable left_;
  Trick trick_;
  PlayPoint point_;
};

}  // namespace

SolverPosition PlayPoint::PositionIn(const HandTable& deal) const {
  SolverPosition position{trumps, leader, trick, deal};
  for (const Seat seat : kAllSeats) {
    for (const Suit suit : kAllSuits) {
      Holding& holding = position.cardsLeft[seat][suit];
      holding = holding - cardsPlayed[seat][suit];
    }
  }
  return position;
}

std::optional<PlayPoint> FollowTo(const Board& board, std::span<const Card> cards,
                                  std::string& why) {
  Follower follower(board);
  for (const Card card : cards) {
    const std::string by(SeatName[follower.OnPlay()]);
    if (follower.Play(card)) continue;
    why = CardText(card) + " cannot be played by " + by + " now";
    return std::nullopt;
  }
  PlayPoint point = follower.Point();
  const std::string onPlay(SeatName[point.onPlay]);
  if (CardsIn(board.hands[point.onPlay]) != kCardsInHand) {
    why = onPlay + " is on play: all 13 cards of that hand must be known";
  } else if (!HasCards(point.legal)) {
    why = onPlay + " has no card left to play";
  } else {
    return point;
  }
  return std::nullopt;
}

Predealt KnownAt(const PlayPoint& point, const HandTable& hands, const PerSeat<bool>& seen) {
  Predealt known{point.cardsPlayed, {}};
  for (const Seat seat : kAllSeats) {
    if (seen[seat]) known.cards[seat] = hands[seat];
    for (const Suit suit : kAllSuits) {
      if (!point.shownOut[seat][suit]) continue;
      known.lengths[seat][suit] = static_cast<std::uint8_t>(known.cards[seat][suit].Count());
    }
  }
  return known;
}

PerSeat<bool> SeenOnPlay(const PlayPoint& point) {
  const Seat dummy = PartnerOf(point.declarer);
  PerSeat<bool> seen;
  seen[point.onPlay] = true;
  if (point.played == 0) return seen;
  seen[dummy] = true;
  if (point.onPlay == dummy) seen[point.declarer] = true;
  return seen;
}

}  // namespace tricklet
