#include "generate/deal.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/statistics.h"
#include "generate/hand_type.h"
#include "tests/generate/chi_square.h"

namespace tricklet {
namespace {

using test::ChiSquareDeviation;

constexpr GenHand kOne = GenHand::First;
constexpr GenHand kTwo = GenHand::Second;

/// Percent of all hands that hold 0..9 cards of a named suit, and 0..25 points; and the commonest
/// patterns of a hand: the figures that the Encyclopedia of Bridge prints.
const std::vector<double> kSuitLengthOdds{1.279,  8.006, 20.587, 28.633, 23.861,
                                          12.469, 4.156, 0.882,  0.117,  0.009};
const std::vector<double> kPointOdds{0.36, 0.79, 1.36, 2.46, 3.85, 5.19, 6.55, 8.03, 8.89,
                                     9.36, 9.41, 8.94, 8.03, 6.91, 5.69, 4.42, 3.31, 2.36,
                                     1.61, 1.04, 0.64, 0.38, 0.21, 0.11, 0.06, 0.03};
const std::map<std::string, double> kPatternOdds{
    {"4432", 21.5512}, {"5332", 15.5168}, {"5431", 12.9307}, {"5422", 10.5797}, {"4333", 10.5361},
    {"6322", 5.6425},  {"6421", 4.7021},  {"6331", 3.4482},  {"5521", 3.1739},  {"4441", 2.9932},
    {"7321", 1.8808},  {"6430", 1.3262},  {"5440", 1.2433},  {"5530", 0.8952},  {"6511", 0.7053}};

std::string PatternOf(const PerSuit<int>& lengths) {
  std::string pattern;
  for (const int length : lengths) pattern += std::to_string(length);
  std::sort(pattern.rbegin(), pattern.rend());
  return pattern;
}

/// All four seats hold 13 cards and none is missing, so that none is held twice either.
bool IsWholeDeal(const Statistics& statistics) {
  bool whole = statistics.allHandsComplete;
  for (const Holding missing : statistics.missingCards) whole = whole && missing.Empty();
  return whole;
}

template <class Counts>
void Count(Counts& counts, int value) {
  if (value < static_cast<int>(counts.size())) ++counts.at(static_cast<std::size_t>(value));
}

/// A reader of hands: what was counted of one hand of each deal.
struct Census {
  std::vector<long> points = std::vector<long>(26);
  std::vector<long> length = std::vector<long>(10);  // of one suit, another each time
  std::map<std::string, long> patterns;
  int deals = 0;

  void Add(const Statistics& statistics, Seat seat) {
    const auto suit = static_cast<Suit>(deals++ % kSuits);
    Count(points, statistics.seatHcp[seat]);
    Count(length, statistics.suitLength[seat][suit]);
    ++patterns[PatternOf(statistics.suitLength[seat])];
  }

  void ExpectShapesByChance() const {
    EXPECT_LT(ChiSquareDeviation(length, kSuitLengthOdds), 4);
    std::vector<long> counts;
    std::vector<double> odds;
    for (const auto& [pattern, percent] : kPatternOdds) {
      counts.push_back(patterns.at(pattern));
      odds.push_back(percent);
    }
    EXPECT_LT(ChiSquareDeviation(counts, odds), 4);
  }
};

TEST(Random, DealsByTheKnownOdds) {
  RandomSource random(3);
  Census census;
  for (int i = 0; i < 200000; ++i) {
    HandTable hands;
    ASSERT_TRUE(Random(hands, random));
    const Statistics statistics = GetStats(hands);
    ASSERT_TRUE(IsWholeDeal(statistics));
    census.Add(statistics, static_cast<Seat>(i / 4 % 4));
  }
  census.ExpectShapesByChance();
  EXPECT_LT(ChiSquareDeviation(census.points, kPointOdds), 4);
}

TEST(Random, GivesEveryFreeCardToEveryFreePlaceAlike) {
  // North has all spades, East the top hearts, South everything but one card.
  HandTable start;
  start[Seat::North][Suit::Spades] = Holding::FromBits(Holding::kAllBits);
  start[Seat::East][Suit::Hearts] = Holding::FromBits(0x1F);
  start[Seat::South][Suit::Clubs] = Holding::FromBits(0xFFF);
  std::array<PerSeat<long>, kCardsInPack> counts{};
  RandomSource random(4);
  for (int i = 0; i < 40000; ++i) {
    HandTable hands = start;
    ASSERT_TRUE(Random(hands, random));
    for (int card = 0; card < kCardsInPack; ++card) {
      const int before = SeatHolding(start, Card::FromIndex(card));
      const int seat = SeatHolding(hands, Card::FromIndex(card));
      ASSERT_TRUE(seat >= 0 && (before < 0 || seat == before)) << card;
      ++counts.at(static_cast<std::size_t>(card))[static_cast<Seat>(seat)];
    }
  }
  int cards = 0;
  for (int index = 0; index < kCardsInPack; ++index) {
    if (SeatHolding(start, Card::FromIndex(index)) >= 0) continue;
    ++cards;
    const auto& count = counts.at(static_cast<std::size_t>(index));
    EXPECT_LT(
        ChiSquareDeviation({count[Seat::East], count[Seat::South], count[Seat::West]}, {8, 1, 13}),
        4)
        << index;
  }
  EXPECT_EQ(cards, 22);
}

TEST(Random, LeavesAFullDealAndRefusesAnImpossibleOne) {
  RandomSource random(5);
  HandTable full;
  ASSERT_TRUE(Random(full, random));
  HandTable hands = full;
  EXPECT_TRUE(Random(hands, random));
  EXPECT_EQ(hands, full);

  HandTable twice;  // the ace of spades in two hands: 51 free cards for 50 places
  AddCard(twice, {}, Seat::North);
  AddCard(twice, {}, Seat::South);
  HandTable fourteen;
  fourteen[Seat::West][Suit::Hearts] = Holding::FromBits(Holding::kAllBits);
  AddCard(fourteen, {}, Seat::West);
  for (const HandTable& impossible : {twice, fourteen}) {
    hands = impossible;
    EXPECT_FALSE(Random(hands, random));
    EXPECT_EQ(hands, impossible);
  }
}

TEST(GenerateDeal, AHandWithoutLimitsIsLikeAnyOther) {
  Constraints constraints;
  constraints.numGenHands = 1;
  RandomSource random(6);
  Census census;
  for (int i = 0; i < 200000; ++i) {
    const Statistics statistics = GetStats(GenerateDeal(constraints, Seat::North, random));
    ASSERT_TRUE(IsWholeDeal(statistics));
    census.Add(statistics, Seat::North);
  }
  census.ExpectShapesByChance();
  // The points aimed at are missed from below when the honours drawn first leave a rest that no
  // honour fits. That is seldom with up to 16 points (the rest of this comparison) and takes away
  // one hand in twenty of 20 points, more of stronger ones.
  census.points.resize(17);
  const std::vector<double> odds(HcpOdds.begin(), HcpOdds.begin() + 17);
  EXPECT_LT(ChiSquareDeviation(census.points, odds), 4);
  const auto sum = std::accumulate(census.points.begin(), census.points.end(), 0L);
  EXPECT_NEAR(static_cast<double>(sum) / census.deals, 0.9355, 0.005) << "at most 16 points";
}

TEST(GenerateDeal, LengthsAboveAMinimumAreThoseOfChance) {
  Constraints constraints;
  constraints.numGenHands = 1;
  constraints.suitLimits[kOne][Suit::Spades].minimum = 5;
  RandomSource random(13);
  std::vector<long> counts(6);  // from five spades on
  for (int i = 0; i < 50000; ++i) {
    const HandTable hands = GenerateDeal(constraints, Seat::North, random);
    Count(counts, hands[Seat::North][Suit::Spades].Count() - 5);
  }
  // Eight more cards out of 8 spades and 39 others: C(8,n) C(39,8-n), in millions.
  EXPECT_LT(
      ChiSquareDeviation(counts, {61.523748, 123.047496, 91.353444, 32.242392, 5.757570, 0.511784}),
      4);
}

struct Request {
  const char* name;
  Constraints constraints;
  double leastShare;  // of the deals that meet it
};

Constraints Asking(Limits points1, Limits points2) {
  Constraints constraints;
  constraints.pointLimits.values = {{points1, points2}};
  constraints.handDirection.values = {{2, 1}};  // South and East
  return constraints;
}

Constraints OfType(HandType type, int option = 0) {
  Constraints constraints = Asking({0, 37}, {0, 37});
  constraints.useSuitLengths.fill(false);
  constraints.handTypeIndex.fill(type);
  constraints.handTypeOption[type].fill(option);
  return constraints;
}

Constraints WithSuits(Constraints constraints, GenHand hand, std::array<Limits, 4> suits) {
  constraints.suitLimits[hand].values = suits;
  return constraints;
}

bool Meets(const Constraints& constraints, const Statistics& statistics, Seat dealer) {
  for (const GenHand hand : kGenHands) {
    if (IndexOf(hand) >= constraints.numGenHands) continue;
    const Seat seat = SeatOf(constraints, hand, dealer);
    const auto [lowest, highest] = constraints.pointLimits[hand];
    if (statistics.seatHcp[seat] < lowest || statistics.seatHcp[seat] > highest) return false;
    for (const Suit suit : kAllSuits) {
      const auto [shortest, longest] = constraints.suitLimits[hand][suit];
      const int length = statistics.suitLength[seat][suit];
      if (constraints.useSuitLengths[hand] && (length < shortest || length > longest)) return false;
    }
  }
  return true;
}

TEST(GenerateDeal, MeetsTheConstraintsAndDealsTheRest) {
  const Limits any{0, 13};
  const std::vector<Request> requests{
      {"points", Asking({15, 17}, {0, 5}), 0.999},
      {"exactly", Asking({20, 20}, {20, 20}), 0.5},
      {"lengths", WithSuits(Asking({11, 15}, {8, 10}), kOne, {{{5, 13}, any, any, {0, 2}}}), 0.99},
      {"4-4-4-1", WithSuits(Asking({0, 37}, {0, 37}), kTwo, {{{4, 13}, {4, 13}, {4, 13}, {1, 13}}}),
       0.999},
      {"all maxima", WithSuits(Asking({0, 37}, {0, 37}), kOne, {{{0, 3}, {0, 3}, {0, 3}, {0, 4}}}),
       0.999},
      // the second hand needs every spade that the first leaves, honours too, whatever it aims at
      {"room for the second",
       WithSuits(WithSuits(Asking({0, 37}, {0, 37}), kOne, {{{4, 13}, any, any, any}}), kTwo,
                 {{{9, 13}, any, any, any}}),
       0.7},
      // consistent, and met by no deal or hardly any: the deals must be whole all the same
      {"40 points", Asking({37, 37}, {3, 3}), 0},
      {"37 points, 12 spades",
       WithSuits(Asking({19, 37}, {0, 37}), kOne, {{{12, 13}, any, any, any}}), 0},
      {"no room",
       WithSuits(WithSuits(Asking({0, 0}, {0, 0}), kOne, {{any, {0, 4}, {0, 4}, {0, 4}}}), kTwo,
                 {{{13, 13}, {0, 0}, {0, 0}, {0, 0}}}),
       0},
      {"pointless", WithSuits(Asking({0, 0}, {0, 0}), kOne, {{{10, 13}, any, any, any}}), 0},
      {"upside down", WithSuits(Asking({30, 20}, {0, 37}), kOne, {{{5, 3}, {5, 3}, any, any}}), 0},
      {"two pre-empts", OfType(HandType::Preempt), 0.99},
      {"two three-suiters", OfType(HandType::FourFourFourOne), 0.99},
  };
  RandomSource random(7);
  constexpr int kDeals = 3000;
  for (const Request& request : requests) {
    int met = 0;
    for (int i = 0; i < kDeals; ++i) {
      const auto dealer = static_cast<Seat>(i % kSeats);
      const Statistics statistics = GetStats(GenerateDeal(request.constraints, dealer, random));
      ASSERT_TRUE(IsWholeDeal(statistics)) << request.name;
      met += Meets(request.constraints, statistics, dealer) ? 1 : 0;
    }
    EXPECT_GE(met, request.leastShare * kDeals) << request.name;
  }
}

TEST(GenerateDeal, LengthsOfAHandThatGoesByTypeLeaveTheOtherAlone) {
  Constraints constraints = OfType(HandType::Balanced);
  constraints.useSuitLengths[kOne] = true;
  constraints.suitLimits[kTwo][Suit::Spades].minimum = 8;
  RandomSource random(14);
  int long6 = 0;
  for (int i = 0; i < 1000; ++i) {
    const Statistics statistics = GetStats(GenerateDeal(constraints, Seat::North, random));
    long6 += statistics.suitLength[Seat::South][Suit::Spades] >= 6 ? 1 : 0;
  }
  EXPECT_GT(long6, 20);  // some 5 % by chance
}

TEST(GenerateDeal, DirectionsCountFromNorthOrTheDealer) {
  Constraints constraints = Asking({20, 37}, {0, 4});
  constraints.handDirection.values = {{0, 3}};
  RandomSource random(8);
  for (const bool relative : {false, true}) {
    constraints.relativeToDealer = relative;
    for (const Seat dealer : kAllSeats) {
      for (int i = 0; i < 50; ++i) {
        const Seat base = relative ? dealer : Seat::North;
        const Statistics statistics = GetStats(GenerateDeal(constraints, dealer, random));
        EXPECT_GE(statistics.seatHcp[base], 20);
        EXPECT_LE(statistics.seatHcp[SeatAfter(base, 3)], 4);
      }
    }
  }
}

/// Counts the patterns of the first hand, and in which suit its longest suit was when it had one.
struct Shapes {
  std::map<std::string, long> patterns;
  PerSuit<long> longest;
};

Shapes ShapesOf(const Constraints& constraints, int deals) {
  Shapes shapes;
  RandomSource random(9);
  for (int i = 0; i < deals; ++i) {
    const HandTable hands = GenerateDeal(constraints, Seat::North, random);
    const PerSuit<int> lengths = GetStats(hands).suitLength[SeatOf(constraints, kOne, Seat::North)];
    ++shapes.patterns[PatternOf(lengths)];
    const int top = *std::max_element(lengths.begin(), lengths.end());
    if (std::count(lengths.begin(), lengths.end(), top) > 1) continue;
    for (const Suit suit : kAllSuits) shapes.longest[suit] += lengths[suit] == top ? 1 : 0;
  }
  return shapes;
}

TEST(HandTypes, BalancedHandsAndTheirFiveCardSuit) {
  for (const int option : {0, 1}) {
    const Shapes shapes = ShapesOf(OfType(HandType::Balanced, option), 30000);
    ASSERT_EQ(shapes.patterns.size(), 3U);
    const double five = option == 0 ? 15.517 : 15.517 / 2;
    EXPECT_LT(ChiSquareDeviation({shapes.patterns.at("4432"), shapes.patterns.at("5332"),
                                  shapes.patterns.at("4333")},
                                 {21.552, five, 10.536}),
              4);
    // A 4-3-3-3 has its longest suit in any of the four alike, a 5-3-3-2 with option 1 in a minor.
    const double major = option == 0 ? five + 10.536 : 10.536;
    const double minor = option == 0 ? five + 10.536 : 2 * five + 10.536;
    const auto& longest = shapes.longest;
    EXPECT_LT(ChiSquareDeviation({longest[Suit::Spades], longest[Suit::Hearts],
                                  longest[Suit::Diamonds], longest[Suit::Clubs]},
                                 {major, major, minor, minor}),
              4);
  }
}

TEST(HandTypes, LongSuitsAndShortOnes) {
  RandomSource random(11);
  for (int i = 0; i < 20000; ++i) {
    const auto limits = ChooseHandType(HandType::Balanced, 1, {}, random);
    ASSERT_LT(std::max(limits[Suit::Spades].maximum, limits[Suit::Hearts].maximum), 5);
  }
  const struct {
    HandType type;
    int option;
    std::vector<double> suits;  // odds of each to be the longest; 0 never
  } kCases[] = {{HandType::Weak2, 0, {1, 1, 0, 0}},
                {HandType::Weak2, 1, {1, 1, 1, 0}},
                {HandType::Preempt, 0, {1, 1, 1, 1}}};
  for (const auto& c : kCases) {
    std::vector<long> counts(kSuits);
    for (int i = 0; i < 10000; ++i) {
      const auto limits = ChooseHandType(c.type, c.option, {}, random);
      for (const Suit suit : kAllSuits) {
        if (limits[suit].minimum == 0) continue;
        ++counts.at(static_cast<std::size_t>(suit));
        if (c.type == HandType::Weak2) {
          ASSERT_EQ(limits[suit], (Limits{6, 6}));
        }
      }
    }
    EXPECT_LT(ChiSquareDeviation(counts, c.suits), 4);
  }
  EXPECT_EQ(ShapesOf(OfType(HandType::FourFourFourOne), 2000).patterns.size(), 1U);
}

TEST(HandTypes, PreemptsAreSevenOrLongerByChanceAndAvoidThePartnersSuit) {
  RandomSource random(12);
  const PerSuit<int> seven{{7, 0, 0, 0}};
  const PerSuit<int> six{{6, 0, 0, 0}};
  std::array<long, 14> lengths{};
  long inSpades = 0;
  for (int i = 0; i < 100000; ++i) {
    const auto limits = ChooseHandType(HandType::Preempt, 0, seven, random);
    EXPECT_EQ(limits[Suit::Spades], (Limits{0, 13}));
    int longest = 0;
    for (const Limits& suit : limits) longest = std::max(longest, suit.minimum);
    ++lengths.at(static_cast<std::size_t>(longest));
    inSpades += ChooseHandType(HandType::Preempt, 0, six, random)[Suit::Spades].minimum > 0 ? 1 : 0;
  }
  EXPECT_LT(ChiSquareDeviation({lengths[7], lengths[8], lengths[9]}, {3.5266, 0.4668, 0.0370}), 4);
  EXPECT_LT(ChiSquareDeviation({inSpades, 100000 - inSpades}, {1, 3}), 4) << "a six-card suit";
}

}  // namespace
}  // namespace tricklet
