#include "conditions/cccc.h"

namespace tricklet {
namespace {

int Ones(bool a, bool b = false, bool c = false, bool d = false) {
  return int{a} + int{b} + int{c} + int{d};
}

/// What a long suit gains, in points, for the honours that its length makes up for.
int MissingHonours(int length, bool queen, bool jack) {
  if (length == 7) return queen && jack ? 0 : 1;
  if (length == 8) return queen ? Ones(!jack) : 2;
  return 2 * Ones(!queen) + Ones(!jack);
}

/// Twice what the ten and the nine of a suit of at most six cards count for.
int SpotCards(Holding holding, int higher) {
  const bool ten = holding.Has(Rank::Ten);
  int halves = 0;
  if (ten) halves += higher >= 2 || holding.Has(Rank::Jack) ? 2 : 1;
  const bool backed = higher == 2 || ten || holding.Has(Rank::Eight);
  if (holding.Has(Rank::Nine) && backed) halves += 1;
  return halves;
}

}  // namespace

int SuitQuality(Holding holding) {
  constexpr int kLongest = 6;  // of the suits whose spot cards count
  const bool ace = holding.Has(Rank::Ace);
  const bool king = holding.Has(Rank::King);
  const bool queen = holding.Has(Rank::Queen);
  const bool jack = holding.Has(Rank::Jack);
  const int length = holding.Count();
  int halves = 8 * Ones(ace) + 6 * Ones(king) + 4 * Ones(queen) + 2 * Ones(jack);
  halves += length <= kLongest ? SpotCards(holding, Ones(ace, king, queen, jack))
                               : 2 * MissingHonours(length, queen, jack);
  return halves * length * 5;  // a tenth of points times length
}

int HonourStrength(Holding holding) {
  const int length = holding.Count();
  int higher = 0;
  int strength = 0;
  if (holding.Has(Rank::Ace)) {
    strength += 300;
    ++higher;
  }
  if (holding.Has(Rank::King)) {
    strength += length > 1 ? 200 : 50;
    ++higher;
  }
  if (holding.Has(Rank::Queen)) {
    if (length > 2) strength += higher > 0 ? 100 : 75;
    if (length == 2) strength += higher > 0 ? 75 : 50;
    ++higher;
  }
  if (holding.Has(Rank::Jack)) {
    if (higher == 1 || higher == 2) strength += 25 * higher;
    ++higher;
  }
  const bool backed = higher == 2 || (higher == 1 && holding.Has(Rank::Nine));
  if (holding.Has(Rank::Ten) && backed) strength += 25;
  return strength;
}

int ShapeStrength(const PerSuit<int>& lengths) {
  int strength = 0;
  for (const int length : lengths) strength += length < 3 ? 100 * (3 - length) : 0;
  return strength == 0 ? -50 : strength - 100;  // the first doubleton is worth nothing
}

int HandStrength(const PerSuit<Holding>& hand) {
  PerSuit<int> lengths{};
  int strength = 0;
  for (const Suit suit : kAllSuits) {
    lengths[suit] = hand[suit].Count();
    strength += SuitQuality(hand[suit]) + HonourStrength(hand[suit]);
  }
  return strength + ShapeStrength(lengths);
}

}  // namespace tricklet
