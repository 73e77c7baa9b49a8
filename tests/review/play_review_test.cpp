#include "review/play_review.h"

#include <gtest/gtest.h>

#include "analysis/solver_library.h"
#include "play/best_cards.h"
#include "play/played_record.h"
#include "tests/support/calls.h"
#include "tests/support/fake_solver.h"
#include "tests/support/hands.h"
#include "tests/support/plays.h"
#include "tests/support/scripted_host.h"

namespace tricklet::test {
namespace {

/// South plays four spades; West leads.
RecordedPlay Record(const std::vector<std::string>& cards) {
  RecordedPlay record;
  record.board.boardNumber = 3;
  record.board.hands =
      HandsOf("N:A873.AJ83.52.Q32 95.74.AQJ84.T754 QT62.KQ62.K93.K8 KJ4.T95.T76.AJ96");
  SetAuction(record.board, "4S P P P");
  for (const std::string& card : cards) record.cards.push_back(CardOf(card));
  return record;
}

TEST(PlayReview, CountsForEachHandWhatItsCardsGaveAway) {
  RecordedPlay record = Record({"D6", "D2", "DA", "D3", "S9"});
  record.tricks = 9;
  const PlayReview review = MakeReview(record, {10, 11, 11, 11, 11, 9});
  std::vector<int> given;
  given.reserve(review.cards.size());
  for (const ReviewedCard& card : review.cards) given.push_back(card.given);
  EXPECT_EQ(given, (std::vector{1, 0, 0, 0, 0})) << "the lead; a gain of the defence is no gift";
  EXPECT_EQ(review.needed, 10);
  EXPECT_EQ(review.given[Seat::West].lead, 1);
  EXPECT_EQ(review.given[Seat::East], (GivenAway{}));
  EXPECT_TRUE(review.cards[2].wins);
  EXPECT_EQ(review.cards[4].seat, Seat::East);
  EXPECT_TRUE(review.cards[4].led);
  EXPECT_EQ(review.claimed, 0);
  EXPECT_EQ(review.MistakeFrom(0), 0U);
  EXPECT_FALSE(review.MistakeFrom(1));
  EXPECT_EQ(review.MistakeBefore(5), 0U);
  EXPECT_FALSE(review.MistakeBefore(0));
}

TEST(PlayReview, GivesDummysTricksToDeclarer) {
  const PlayReview review = MakeReview(Record({"D6", "D2", "DA", "D3"}), {10, 10, 9, 9, 8});
  EXPECT_EQ(review.given[Seat::North], (GivenAway{}));
  EXPECT_EQ(review.given[Seat::South], (GivenAway{std::nullopt, 2}));
}

TEST(PlayReview, SaysWhereItEnds) {
  RecordedPlay record = Record({"D6", "D2", "S9", "D3"});
  EXPECT_EQ(PlayToSolve(record).cards.size(), 2U);
  EXPECT_EQ(MakeReview(record, {10, 10, 10}).remark,
            "Card 3, the ♠9 by East, is against the rules: reviewed up to there");
  record = Record({"D6"});
  record.tricks = 12;
  EXPECT_EQ(MakeReview(record, {10, 11}).claimed, 1);
}

TEST(PlayReview, IsRefusedWithoutSomethingToReview) {
  FakeSolver solver;
  const auto why = [&](const RecordedPlay& record) {
    std::string failure;
    EXPECT_FALSE(ReviewPlay(solver, record, failure));
    return failure;
  };
  EXPECT_EQ(why(Record({})), "There are no cards to review");
  EXPECT_EQ(why(Record({"S9"})), "The first card of the play is against the rules");
  RecordedPlay record = Record({"D6"});
  EXPECT_EQ(why(record), "The double-dummy solver gave no answer");
  record.board.contractLevel = 0;
  EXPECT_EQ(why(record), "There is no review without a contract");
  record.board.hands[Seat::North] = {};
  EXPECT_EQ(why(record), "There is no review of an incomplete deal");
}

/// A board whose optimum cards were published one by one (The Hague, 1998, round 2, board 16; the
/// OptimumPlayTable among the examples of the PBN standard): all that was played is among them but
/// East's king of hearts.
TEST(PlayReview, AgreesWithAPublishedTableOfOptimumCards) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  RecordedPlay record;
  record.board.boardNumber = 16;
  record.board.hands =
      HandsOf("W:AJ9754.J62.K62.6 32..A954.AQJ9875 KQ86.KQT843.QJ.K T.A975.T873.T432");
  SetAuction(record.board, "2D 3C 4H 5C P P X P P P");
  for (const char* card : {"SK", "ST", "S4", "S2", "HK", "H5", "H2", "C7", "S3", "S6", "C2", "S5",
                           "HA", "H6", "D4", "H3"}) {
    record.cards.push_back(CardOf(card));
  }
  std::string failure;
  const auto review = ReviewPlay(*solver, record, failure);
  ASSERT_TRUE(review) << failure;
  EXPECT_EQ(review->cards.size(), 16U);
  EXPECT_EQ(review->doubleDummy, 10);
  EXPECT_EQ(review->MistakeFrom(0), 4U);
  EXPECT_EQ(review->cards[4].given, 1);
  EXPECT_FALSE(review->MistakeFrom(5));
}

TEST(PlayReview, FindsNoMistakeInTheBestPlay) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  Board board = Record({}).board;
  ScriptedHost host;
  NoTimer timer;
  CardPlay play(board, host, timer);
  ASSERT_TRUE(play.Start());
  while (!play.Finished()) {
    const auto scores = solver->SolveCards(*PositionOf(play.Now(), board.trumps));
    const auto best = std::max_element(
        scores.begin(), scores.end(),
        [](const CardScore& a, const CardScore& b) { return a.tricks < b.tricks; });
    ASSERT_TRUE(best != scores.end() && play.Play(best->card));
  }
  std::string failure;
  const auto review = ReviewPlay(*solver, RecordOfPlay(play), failure);
  ASSERT_TRUE(review) << failure;
  EXPECT_EQ(review->cards.size(), std::size_t{kCardsInPack});
  EXPECT_FALSE(review->MistakeFrom(0));
  EXPECT_EQ(review->tricks, review->doubleDummy);
}

}  // namespace
}  // namespace tricklet::test
