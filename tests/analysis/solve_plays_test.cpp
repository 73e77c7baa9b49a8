#include "analysis/solve_plays.h"

#include <gtest/gtest.h>

#include "analysis/solver_library.h"
#include "review/play_review.h"
#include "tests/support/plays.h"
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

}  // namespace
}  // namespace tricklet::test
