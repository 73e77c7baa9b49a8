#include "play/best_line.h"

#include <algorithm>
#include <tuple>

#include "play/best_cards.h"

namespace tricklet {
namespace {

/// Lower ones have the larger index.
int LownessOf(Card card) {
  return IndexOf(card.rank);
}

/// The card at the top of the touching honours of `holding` that `card` belongs to; of `K Q J 3`
/// the king for the queen, and the three for the three.
Card TopOfSequence(Card card, Holding holding) {
  if (card.rank > Rank::Ten) return card;
  while (card.rank != Rank::Ace) {
    const auto higher = static_cast<Rank>(IndexOf(card.rank) - 1);
    if (!holding.Has(higher)) break;
    card.rank = higher;
  }
  return card;
}

std::vector<Card> BestOf(std::span<const CardScore> scores) {
  int most = 0;
  for (const CardScore& score : scores) most = std::max(most, score.tricks);
  std::vector<Card> best;
  for (const CardScore& score : scores) {
    if (score.tricks == most) best.push_back(score.card);
  }
  std::ranges::sort(best, [](Card a, Card b) { return a.Index() < b.Index(); });
  return best;
}

bool IsBest(const std::vector<Card>& best, Card card) {
  return std::ranges::find(best, card) != best.end();
}

/// Of the longest suit; of a sequence of honours the top, if that is as good.
Card LeadFrom(const std::vector<Card>& best, const PerSuit<Holding>& hand) {
  const Card low = *std::ranges::max_element(best, {}, [&](Card card) {
    return std::tuple(hand[card.suit].Count(), -IndexOf(card.suit), LownessOf(card));
  });
  const Card top = TopOfSequence(low, hand[low.suit]);
  return IsBest(best, top) ? top : low;
}

/// The lowest, and rather not a trump; of the longer suit where that is equal.
Card CheapestOf(const std::vector<Card>& best, const PerSuit<Holding>& hand, Strain trumps) {
  return *std::ranges::max_element(best, {}, [&](Card card) {
    return std::tuple(ToStrain(card.suit) != trumps, LownessOf(card), hand[card.suit].Count(),
                      -IndexOf(card.suit));
  });
}

}  // namespace

bool ProgramTurn::SameAs(const ProgramTurn& other) const {
  return toEnd == other.toEnd && PositionOf(state, trumps) == PositionOf(other.state, other.trumps);
}

std::optional<Card> SensibleCard(const PlayState& state, Strain trumps,
                                 std::span<const CardScore> scores) {
  const std::vector<Card> best = BestOf(scores);
  if (best.empty() || !state.onPlay) return std::nullopt;
  const PerSuit<Holding>& hand = state.cardsLeft[*state.onPlay];
  return state.cardsInTrick == 0 ? LeadFrom(best, hand) : CheapestOf(best, hand, trumps);
}

std::optional<Card> ProgramCard(Solver& solver, const PlayState& state, Strain trumps) {
  const auto position = PositionOf(state, trumps);
  if (!position || !state.onPlay) return std::nullopt;
  const auto only = OnlyCardOf(state.LegalCards(state.cardsLeft[*state.onPlay]));
  return only ? only : SensibleCard(state, trumps, solver.SolveCards(*position));
}

std::vector<Card> BestLine(Solver& solver, PlayState state, Strain trumps,
                           const std::function<bool()>& goOn) {
  std::vector<Card> line;
  while (state.onPlay && goOn()) {
    const auto card = ProgramCard(solver, state, trumps);
    if (!card) break;
    line.push_back(*card);
    if (state.cardsInTrick == 0) state.Gather();
    state.PlayToTrick(*card, trumps);
  }
  return line;
}

std::vector<Card> CardsForTurn(Solver& solver, const ProgramTurn& turn,
                               const std::function<bool()>& goOn) {
  if (turn.toEnd) return BestLine(solver, turn.state, turn.trumps, goOn);
  const auto card = ProgramCard(solver, turn.state, turn.trumps);
  return card ? std::vector<Card>{*card} : std::vector<Card>{};
}

}  // namespace tricklet
