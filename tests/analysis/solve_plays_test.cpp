#include "analysis/solve_plays.h"

#include <map>

#include <gtest/gtest.h>

#include "analysis/solver_library.h"
#include "play/best_cards.h"
#include "review/play_review.h"
#include "tests/support/plays.h"
#include "tests/support/scripted_host.h"
#include "tests/support/thorough.h"

namespace tricklet::test {
namespace {

/// Plays at random, one in four of them broken off.
std::vector<SolverPlay> RandomPlays(int count) {
  RandomSource random(16);
  std::vector<SolverPlay> plays;
  for (int i = 0; i < count; ++i) {
    RecordedPlay record;
    record.board = RandomBoard(i, random);
    record.cards = RandomCards(record.board, i % 4 == 3 ? i % kCardsInPack : kCardsInPack, random);
    plays.push_back(PlayToSolve(record));
    EXPECT_EQ(plays.back().cards, record.cards) << "legal to the last card";
  }
  return plays;
}

TEST(SolvePlays, AgreesWithThePositionsOfEachPlay) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  const auto plays = RandomPlays(Repetitions(Solver::kPlayBatch));
  std::vector<PlayTricks> batch(plays.size());
  ASSERT_EQ(solver->SolvePlays(plays, batch), "");
  for (std::size_t i = 0; i < plays.size(); ++i) {
    PlayTricks alone;
    PlayTricks byPositions;
    ASSERT_EQ(solver->SolvePlays({&plays[i], 1}, {&alone, 1}), "");
    ASSERT_EQ(SolveByPositions(*solver, plays[i], byPositions), "");
    EXPECT_EQ(batch[i], byPositions) << "play " << i;
    EXPECT_EQ(alone, byPositions) << "play " << i;
  }
}

/// After 0, 7, 14 ... cards of plays at random.
std::vector<SolverPosition> RandomPositions(int count) {
  RandomSource random(17);
  ScriptedHost host;
  NoTimer timer;
  std::vector<SolverPosition> positions;
  for (int i = 0; i < count; ++i) {
    Board board = RandomBoard(i, random);
    const auto cards = RandomCards(board, 7 * i % kCardsInPack, random);
    CardPlay play(board, host, timer);
    EXPECT_TRUE(play.Start());
    for (const Card card : cards) EXPECT_TRUE(play.Play(card));
    positions.push_back(PositionOf(play.Now(), board.trumps).value());
  }
  return positions;
}

/// By cards: which of two that are worth the same comes first is the library's affair.
std::map<int, int> ByCard(const std::vector<CardScore>& scores) {
  std::map<int, int> byCard;
  for (const CardScore& each : scores) byCard[each.card.Index()] = each.tricks;
  return byCard;
}

int Most(const std::map<int, int>& byCard) {
  int most = -1;
  for (const auto& [card, tricks] : byCard) most = std::max(most, tricks);
  return most;
}

TEST(SolveCardsOfAll, AgreesWithEachPositionByItself) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  auto positions = RandomPositions(Repetitions(160));
  for (const bool impossible : {false, true}) {
    if (impossible) positions[1].cardsLeft[Seat::North] = {};
    std::vector<std::vector<CardScore>> scores(positions.size());
    std::vector<std::vector<CardScore>> best(positions.size());
    solver->SolveCardsOfAll(positions, CardsWanted::All, scores);
    solver->SolveCardsOfAll(positions, CardsWanted::OneBest, best);
    for (std::size_t i = 0; i < positions.size(); ++i) {
      const auto exact = ByCard(solver->SolveCards(positions[i]));
      EXPECT_EQ(ByCard(scores[i]), exact) << i;
      EXPECT_EQ(Most(ByCard(best[i])), Most(exact)) << i;
    }
    EXPECT_EQ(scores[1].empty(), impossible);
  }
}

}  // namespace
}  // namespace tricklet::test
