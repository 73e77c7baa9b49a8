#include "generate/deal.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/statistics.h"
#include "generate/hand_type.h"
#include "tests/support/asked.h"
#include "tests/support/chi_square.h"
#include "tests/support/thorough.h"

namespace tricklet {
namespace {

using test::Asking;
using test::Max;
using test::Min;
using test::OfType;
using test::Points;
using test::Repetitions;
using Odds = std::map<std::string, double>;
using Counts = std::map<std::string, long>;

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
  return statistics.allHandsComplete && statistics.missingCards == PerSuit<Holding>();
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
  std::map<int, PerSeat<long>> counts;  // by the free card: the seats that got it
  RandomSource random(4);
  for (int i = 0; i < Repetitions(40000); ++i) {
    HandTable hands = start;
    ASSERT_TRUE(Random(hands, random));
    for (int index = 0; index < kCardsInPack; ++index) {
      const int before = SeatHolding(start, Card::FromIndex(index));
      const int seat = SeatHolding(hands, Card::FromIndex(index));
      ASSERT_TRUE(seat >= 0 && (before < 0 || seat == before)) << index;
      if (before < 0) ++counts[index][static_cast<Seat>(seat)];
    }
  }
  for (const auto& [card, seats] : counts) {
    EXPECT_LT(test::ChiSquareDeviation({seats.begin(), seats.end()}, {0, 8, 1, 13}), 4) << card;
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
  Constraints constraints = Asking(Min(5, 0, 0, 0), {});
  constraints.numGenHands = 1;
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

TEST(GenerateDeal, MeetsTheConstraintsAndDealsTheRest) {
  using enum HandType;
  const struct {
    const char* name;
    Constraints constraints;
    double least;  // share of the deals that meet them
  } kRequests[] = {
      {"points", Asking(Points(15, 17), Points(0, 5)), 0.999},
      {"exactly", Asking(Points(20, 20), Points(20, 20)), 0.5},
      {"lengths", Asking({{{{5, 13}, {0, 13}, {0, 13}, {0, 2}}}, {11, 15}}, Points(8, 10)), 0.99},
      {"4-4-4-1", Asking({}, Min(4, 4, 4, 1)), 0.999},
      {"all maxima", Asking(Max(3, 3, 3, 4), {}), 0.999},
      // the second hand needs every spade that the first leaves, honours too, whatever it aims at
      {"room for the second", Asking(Min(4, 0, 0, 0), Min(9, 0, 0, 0)), 0.7},
      // consistent, and met by no deal or hardly any: the deals must be whole all the same
      {"40 points", Asking(Points(37, 37), Points(3, 3)), 0},
      {"no room", Asking(Max(13, 4, 4, 4, {0, 0}), Min(13, 0, 0, 0, {0, 0})), 0},
      {"pointless", Asking(Min(10, 0, 0, 0, {0, 0}), Points(0, 0)), 0},
      {"upside down", Asking({{{{5, 3}, {5, 3}, {0, 13}, {0, 13}}}, {30, 20}}, {}), 0},
      // the second hand goes by its type, so that its lengths leave the first hand alone
      {"six spades", Asking(Min(6, 0, 0, 0), OfType(Balanced, Min(8, 0, 0, 0))), 0.99},
      {"two pre-empts", Asking(OfType(Preempt), OfType(Preempt)), 0.99},
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
    Odds orders;
    std::string order = pattern;
    std::sort(order.begin(), order.end());
    do orders[order] = percent;
    while (std::next_permutation(order.begin(), order.end()));
    for (const auto& each : orders) odds[each.first] = percent / static_cast<double>(orders.size());
  }
  return odds;
}

TEST(HandTypes, ComeInEverySuitByTheirOdds) {
  // Lengths of the suits in their order; "-" where any will do.
  const Odds balanced = InAllOrders({{"4432", 21.552}, {"5332", 15.517}, {"4333", 10.536}});
  Odds noFiveCardMajor = balanced;
  std::erase_if(noFiveCardMajor, [](const auto& each) { return each.first.find('5') < 2; });
  const Odds preempts =
      InAllOrders({{"7---", 3.5266}, {"8---", 0.4668}, {"9---", 0.0370}, {":---", 0.00165}});
  Odds notInDiamonds = preempts;
  std::erase_if(notInDiamonds, [](const auto& each) { return each.first[2] != '-'; });
  using enum HandType;
  const struct {
    HandType type;
    int option;
    PerSuit<int> first;  // lengths of the other hand
    Odds odds;
  } kCases[] = {
      {Balanced, 0, {}, balanced},
      {Balanced, 1, {}, noFiveCardMajor},
      {Weak2, 0, {}, {{"6---", 1}, {"-6--", 1}}},
      {Weak2, 1, {}, {{"6---", 1}, {"-6--", 1}, {"--6-", 1}}},
      {FourFourFourOne, 0, {}, InAllOrders({{"4441", 1}})},
      {Preempt, 0, {{6, 0, 0, 0}}, preempts},
      {Preempt, 0, {{0, 0, 7, 0}}, notInDiamonds},
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
