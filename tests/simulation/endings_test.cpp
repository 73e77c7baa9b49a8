#include <map>

#include <gtest/gtest.h>

#include "analysis/solver_library.h"
#include "simulation/known_deal.h"
#include "simulation/simulation_run.h"
#include "tests/support/chi_square.h"
#include "tests/support/plays.h"

namespace tricklet::test {
namespace {

/// The hands as a key.
std::string KeyOf(const HandTable& hands) {
  std::string key;
  for (const auto& hand : hands) {
    for (const Holding holding : hand) key += HoldingText(holding) + '.';
  }
  return key;
}

std::vector<Card> HiddenCards(const HandTable& hands, const HandTable& played, Seat seat) {
  std::vector<Card> cards;
  for (int index = 0; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index);
    if ((hands[seat][card.suit] - played[seat][card.suit]).Has(card.rank)) cards.push_back(card);
  }
  return cards;
}

/// Every deal in which `a` and `b` share their unplayed cards otherwise and the play is legal all
/// the same: what somebody who sees the two other hands must reckon with.
std::vector<HandTable> AllLayouts(const Board& board, const std::vector<Card>& cards,
                                  const PlayPoint& point, Seat a, Seat b) {
  std::vector<Card> hidden = HiddenCards(board.hands, point.cardsPlayed, a);
  const auto inA = static_cast<int>(hidden.size());
  const auto inB = HiddenCards(board.hands, point.cardsPlayed, b);
  hidden.insert(hidden.end(), inB.begin(), inB.end());
  std::vector<HandTable> layouts;
  for (unsigned split = 0; split < 1U << hidden.size(); ++split) {
    if (std::popcount(split) != inA) continue;
    Board other = board;
    other.hands[a] = point.cardsPlayed[a];
    other.hands[b] = point.cardsPlayed[b];
    for (std::size_t i = 0; i < hidden.size(); ++i) {
      AddCard(other.hands, hidden[i], ((split >> i) & 1U) != 0 ? a : b);
    }
    other.contract = "1NT";
    if (FollowPlay(other, cards).cards == static_cast<int>(cards.size())) {
      layouts.push_back(other.hands);
    }
  }
  return layouts;
}

/// Endings of three or four tricks, seen by the hand on play: the layouts that come up, how often,
/// and the averages of the cards against all of them.
TEST(Simulation, AgreesWithAllLayoutsOfAnEnding) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  RandomSource random(6);
  int restricted = 0;
  for (int number = 0; number < 12; ++number) {
    SCOPED_TRACE(number);
    const Board board = RandomBoard(number, random);
    const auto cards = RandomCards(board, 36 + number % 7, random);
    std::string why;
    const auto point = FollowTo(board, cards, why);
    ASSERT_TRUE(point) << why;
    const PerSeat<bool> seen = SeenOnPlay(*point);
    std::vector<Seat> hidden;
    for (const Seat seat : kAllSeats) {
      if (!seen[seat]) hidden.push_back(seat);
    }
    ASSERT_EQ(hidden.size(), 2U);
    const auto layouts = AllLayouts(board, cards, *point, hidden[0], hidden[1]);
    SimulationPlan plan;
    plan.question = SimulatedQuestion::Play;
    plan.hands = board.hands;
    plan.contract = ContractOf(board);
    plan.cards = cards;
    const auto known = KnownOf(plan, why);
    ASSERT_TRUE(known) << why;
    const auto script = ScriptOfDeals(*known, "", why);
    ASSERT_TRUE(script) << why;
    Dealing dealing(script, nullptr, RandomSource(static_cast<std::uint64_t>(number)));
    std::map<std::string, long> dealt;
    for (const HandTable& layout : layouts) dealt[KeyOf(layout)] = 0;
    constexpr std::size_t kEach = 200;
    for (std::size_t i = 0; i < kEach * layouts.size(); ++i) {
      const auto deal = dealing.Next(1);
      ASSERT_TRUE(deal && dealt.contains(KeyOf(*deal)));
      ++dealt[KeyOf(*deal)];
    }
    std::vector<long> counts;
    counts.reserve(dealt.size());
    for (const auto& [key, times] : dealt) counts.push_back(times);
    if (counts.size() > 1) {
      EXPECT_LT(ChiSquareDeviation(counts, std::vector<double>(counts.size(), 1)), 4);
    }
    restricted += layouts.size() < 20 ? 1 : 0;

    plan.limit.deals = 3000;
    const auto run = SimulationRun::Begin(plan, *solver, why);
    ASSERT_TRUE(run) << why;
    while (run->Step([] { return true; })) {
    }
    std::map<int, double> sums;  // by card
    for (const HandTable& layout : layouts) {
      for (const CardScore& score : solver->SolveCards(point->PositionIn(layout))) {
        sums[score.card.Index()] += score.tricks + point->tricksWon[SideOf(point->onPlay)];
      }
    }
    std::size_t rows = 0;
    const auto table = std::get<CardTable>(run->Table());
    for (const CardRow& row : table.rows) {
      rows += row.cards.size();
      for (const Card card : row.cards) {
        const double exact = sums[card.Index()] / static_cast<double>(layouts.size());
        EXPECT_NEAR(row.tricks.mean, exact, 2 * row.tricks.error + 1e-9) << CardText(card);
      }
    }
    EXPECT_EQ(rows, sums.size());
  }
  EXPECT_GT(restricted, 0) << "a hand has shown out in some of them";
}

}  // namespace
}  // namespace tricklet::test
