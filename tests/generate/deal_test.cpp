#include "generate/deal.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/statistics.h"
#include "generate/hand_type.h"
#include "tests/support/chi_square.h"
#include "tests/support/thorough.h"

namespace tricklet {
namespace {

using test::Repetitions;
using Odds = std::map<std::string, double>;
using Counts = std::map<std::string, long>;

constexpr GenHand kOne = GenHand::First;
constexpr GenHand kTwo = GenHand::Second;

/// Percent of all hands with the commonest patterns, as the Encyclopedia of Bridge prints them.
const Odds kPatternOdds{{"4432", 21.5512}, {"5332", 15.5168}, {"5431", 12.9307}, {"5422", 10.5797},
                        {"4333", 10.5361}, {"6322", 5.6425},  {"6421", 4.7021},  {"6331", 3.4482},
                        {"5521", 3.1739},  {"4441", 2.9932},  {"7321", 1.8808},  {"6430", 1.3262},
                        {"5440", 1.2433},  {"5530", 0.8952},  {"6511", 0.7053}};

/// What was counted, beside what has odds.
double Deviation(Counts counts, const Odds& odds) {
  std::vector<long> counted;
  std::vector<double> weights;
  for (const auto& [key, weight] : odds) {
    counted.push_back(counts[key]);
    weights.push_back(weight);
  }
  return test::ChiSquareDeviation(counted, weights);
}

/// All four seats hold 13 cards and none is missing, so that none is held twice either.
bool IsWholeDeal(const Statistics& statistics) {
  return statistics.allHandsComplete &&
         std::all_of(statistics.missingCards.begin(), statistics.missingCards.end(),
                     [](Holding missing) { return missing.Empty(); });
}

TEST(GenerateDeal, AHandWithoutLimitsComesByTheKnownOdds) {
  Constraints constraints;
  constraints.numGenHands = 1;
  RandomSource random(6);
  Counts points;
  Counts patterns;
  int strong = 0;
  const int deals = Repetitions(200000);
  for (int i = 0; i < deals; ++i) {
    const Statistics statistics = GetStats(GenerateDeal(constraints, Seat::North, random));
    ASSERT_TRUE(IsWholeDeal(statistics));
    ++points[std::to_string(statistics.seatHcp[Seat::North])];
    strong += statistics.seatHcp[Seat::North] > 16 ? 1 : 0;
    std::string pattern;
    for (const int length : statistics.suitLength[Seat::North]) pattern += std::to_string(length);
    std::sort(pattern.rbegin(), pattern.rend());
    ++patterns[pattern];
  }
  EXPECT_LT(Deviation(patterns, kPatternOdds), 4);
  // The points aimed at are missed from below when the honours drawn first leave a rest that no
  // honour fits. That is seldom with up to 16 points (the rest of this comparison) and takes away
  // one hand in twenty of 20 points, more of stronger ones.
  Odds upTo16;
  for (std::size_t each = 0; each <= 16; ++each) upTo16[std::to_string(each)] = HcpOdds.at(each);
  EXPECT_LT(Deviation(points, upTo16), 4);
  EXPECT_NEAR(static_cast<double>(strong) / deals, 0.0645, 0.005);
}

TEST(Random, GivesEveryFreeCardToEveryFreePlaceAlike) {
  // North has all spades, East the top hearts, South everything but one card.
  HandTable start;
  start[Seat::North][Suit::Spades] = Holding::FromBits(Holding::kAllBits);
  start[Seat::East][Suit::Hearts] = Holding::FromBits(0x1F);
  start[Seat::South][Suit::Clubs] = Holding::FromBits(0xFFF);
  std::array<PerSeat<long>, kCardsInPack> counts{};
  RandomSource random(4);
  for (int i = 0; i < Repetitions(40000); ++i) {
    HandTable hands = start;
    ASSERT_TRUE(Random(hands, random));
    for (int card = 0; card < kCardsInPack; ++card) {
      const int before = SeatHolding(start, Card::FromIndex(card));
      const int seat = SeatHolding(hands, Card::FromIndex(card));
      ASSERT_TRUE(seat >= 0 && (before < 0 || seat == before)) << card;
      if (before < 0) ++counts.at(static_cast<std::size_t>(card))[static_cast<Seat>(seat)];
    }
  }
  for (const auto& card : counts) {
    const auto [north, east, south, west] = card.values;
    EXPECT_EQ(north, 0);
    if (east + south + west == 0) continue;
    EXPECT_LT(test::ChiSquareDeviation({east, south, west}, {8, 1, 13}), 4);
  }
}

TEST(Random, LeavesAFullDealAndRefusesAnImpossibleOne) {
  RandomSource random(5);
  HandTable full;
  ASSERT_TRUE(Random(full, random));
  HandTable twice;  // the ace of spades in two hands: 51 free cards for 50 places
  AddCard(twice, {}, Seat::North);
  AddCard(twice, {}, Seat::South);
  HandTable fourteen;
  fourteen[Seat::West][Suit::Hearts] = Holding::FromBits(Holding::kAllBits);
  AddCard(fourteen, {}, Seat::West);
  for (const HandTable& before : {full, twice, fourteen}) {
    HandTable hands = before;
    EXPECT_EQ(Random(hands, random), before == full);
    EXPECT_EQ(hands, before);
  }
}

TEST(GenerateDeal, LengthsAboveAMinimumAreThoseOfChance) {
  Constraints constraints;
  constraints.numGenHands = 1;
  constraints.suitLimits[kOne][Suit::Spades].minimum = 5;
  RandomSource random(13);
  Counts counts;
  for (int i = 0; i < Repetitions(50000); ++i) {
    const HandTable hands = GenerateDeal(constraints, Seat::North, random);
    ++counts[std::to_string(hands[Seat::North][Suit::Spades].Count())];
  }
  // Eight more cards out of 8 spades and 39 others: C(8,n) C(39,8-n), in millions.
  const Odds odds{{"5", 61.523748}, {"6", 123.047496}, {"7", 91.353444},
                  {"8", 32.242392}, {"9", 5.757570},   {"10", 0.511784}};
  EXPECT_LT(Deviation(counts, odds), 4);
}

constexpr Limits kAny{0, 13};
constexpr std::array kAnyLengths{kAny, kAny, kAny, kAny};

/// South and East, with these points and lengths.
Constraints Asking(Limits points1, Limits points2, std::array<Limits, 4> suits1 = kAnyLengths,
                   std::array<Limits, 4> suits2 = kAnyLengths) {
  Constraints constraints;
  constraints.pointLimits.values = {{points1, points2}};
  constraints.handDirection.values = {{2, 1}};
  constraints.suitLimits.values = {{{suits1}, {suits2}}};
  return constraints;
}

Constraints OfType(HandType type) {
  Constraints constraints = Asking({0, 37}, {0, 37});
  constraints.useSuitLengths.fill(false);
  constraints.handTypeIndex.fill(type);
  return constraints;
}

TEST(GenerateDeal, MeetsTheConstraintsAndDealsTheRest) {
  // the second hand goes by its type, so that its lengths leave the first hand alone
  Constraints sixSpades = Asking({0, 37}, {0, 37}, {{{6, 13}, kAny, kAny, kAny}}, {{{8, 13}}});
  sixSpades.useSuitLengths[kTwo] = false;
  const struct {
    const char* name;
    Constraints constraints;
    double least;  // share of the deals that meet them
  } kRequests[] = {
      {"points", Asking({15, 17}, {0, 5}), 0.999},
      {"exactly", Asking({20, 20}, {20, 20}), 0.5},
      {"lengths", Asking({11, 15}, {8, 10}, {{{5, 13}, kAny, kAny, {0, 2}}}), 0.99},
      {"4-4-4-1", Asking({0, 37}, {0, 37}, kAnyLengths, {{{4, 13}, {4, 13}, {4, 13}, {1, 13}}}),
       0.999},
      {"all maxima", Asking({0, 37}, {0, 37}, {{{0, 3}, {0, 3}, {0, 3}, {0, 4}}}), 0.999},
      // the second hand needs every spade that the first leaves, honours too, whatever it aims at
      {"room for the second",
       Asking({0, 37}, {0, 37}, {{{4, 13}, kAny, kAny, kAny}}, {{{9, 13}, kAny, kAny, kAny}}), 0.7},
      // consistent, and met by no deal or hardly any: the deals must be whole all the same
      {"40 points", Asking({37, 37}, {3, 3}), 0},
      {"no room",
       Asking({0, 0}, {0, 0}, {{kAny, {0, 4}, {0, 4}, {0, 4}}}, {{{13, 13}, {}, {}, {}}}), 0},
      {"pointless", Asking({0, 0}, {0, 0}, {{{10, 13}, kAny, kAny, kAny}}), 0},
      {"upside down", Asking({30, 20}, {0, 37}, {{{5, 3}, {5, 3}, kAny, kAny}}), 0},
      {"six spades beside lengths that do not count", sixSpades, 0.99},
      {"two pre-empts", OfType(HandType::Preempt), 0.99},
      {"two three-suiters", OfType(HandType::FourFourFourOne), 0.99},
  };
  RandomSource random(7);
  const int deals = Repetitions(10000);
  for (const auto& request : kRequests) {
    Constraints constraints = request.constraints;
    int met = 0;
    for (int i = 0; i < deals; ++i) {
      const auto dealer = static_cast<Seat>(i % kSeats);
      constraints.relativeToDealer = i % 8 < 4;
      const HandTable hands = GenerateDeal(constraints, dealer, random);
      ASSERT_TRUE(IsWholeDeal(GetStats(hands))) << request.name;
      met += MeetsConstraints(constraints, hands, dealer) ? 1 : 0;
    }
    EXPECT_GE(met, request.least * deals) << request.name;
  }
}

/// Each pattern in all orders of the suits, one as likely as the other.
Odds InAllOrders(const Odds& patterns) {
  Odds odds;
  for (const auto& [pattern, percent] : patterns) {
    std::string order = pattern;
    std::sort(order.begin(), order.end());
    std::vector<std::string> orders;
    do orders.push_back(order);
    while (std::next_permutation(order.begin(), order.end()));
    for (const std::string& each : orders) {
      odds[each] = percent / static_cast<double>(orders.size());
    }
  }
  return odds;
}

TEST(HandTypes, ComeInEverySuitByTheirOdds) {
  // Lengths of the suits in their order; "-" where any will do.
  const Odds balanced = InAllOrders({{"4432", 21.552}, {"5332", 15.517}, {"4333", 10.536}});
  Odds minors = InAllOrders({{"4432", 21.552}, {"4333", 10.536}});
  for (const char* order : {"3352", "3253", "2353", "3325", "3235", "2335"}) {
    minors[order] = 15.517 / 12;  // half of them, in half of the orders
  }
  const Odds preempts =
      InAllOrders({{"7---", 3.5266}, {"8---", 0.4668}, {"9---", 0.0370}, {":---", 0.00165}});
  Odds notInDiamonds = preempts;
  std::erase_if(notInDiamonds, [](const auto& each) { return each.first[2] != '-'; });
  const struct {
    HandType type;
    int option;
    PerSuit<int> first;  // lengths of the other hand
    Odds odds;
  } kCases[] = {
      {HandType::Balanced, 0, {}, balanced},
      {HandType::Balanced, 1, {}, minors},
      {HandType::Weak2, 0, {}, {{"6---", 1}, {"-6--", 1}}},
      {HandType::Weak2, 1, {}, {{"6---", 1}, {"-6--", 1}, {"--6-", 1}}},
      {HandType::FourFourFourOne, 0, {}, InAllOrders({{"4441", 1}})},
      {HandType::Preempt, 0, {{6, 0, 0, 0}}, preempts},
      {HandType::Preempt, 0, {{0, 0, 7, 0}}, notInDiamonds},
  };
  RandomSource random(9);
  for (const auto& c : kCases) {
    Counts counts;
    for (int i = 0; i < 20000; ++i) {
      std::string lengths;
      for (const auto [least, most] : ChooseHandType(c.type, c.option, c.first, random)) {
        const bool any = least == 0 && most == kCardsInHand;
        ASSERT_TRUE(any || least == most);
        lengths += any ? '-' : static_cast<char>('0' + least);
      }
      ++counts[lengths];
    }
    for (const auto& [lengths, count] : counts) {
      EXPECT_TRUE(c.odds.contains(lengths)) << HandTypes[c.type] << lengths;
    }
    EXPECT_LT(Deviation(counts, c.odds), 4) << HandTypes[c.type] << c.option;
  }
}

}  // namespace
}  // namespace tricklet
