#include "ui/background/review_finder.h"

#include <QTest>
#include <gtest/gtest.h>

#include "generate/deal.h"
#include "tests/support/calls.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"
#include "tests/support/plays.h"

namespace tricklet::ui {
namespace {

/// Declarer has thirteen tricks, and loses one by each card.
class CountingSolver : public test::FakeSolver {
 public:
  std::string SolvePlays(std::span<const SolverPlay> plays, std::span<PlayTricks> tricks) override {
    ++asked;
    for (std::size_t cards = 0; cards <= plays[0].cards.size(); ++cards) {
      tricks[0].push_back(13 - static_cast<int>(cards));
    }
    return failure;
  }

  std::atomic<int> asked{0};
};

class ReviewFinderTest : public test::LibraryTest {
 protected:
  ReviewFinderTest() {
    session.getSolver = [this]() -> Solver& { return solver; };
    Board& board = record.board;
    Random(board.hands, session.random);
    test::SetAuction(board, "1NT P P P");
    NoTimer timer;
    Board copy = board;
    CardPlay play(copy, host, timer);
    EXPECT_TRUE(play.Start());
    while (record.cards.size() < 12) {
      record.cards.push_back(test::LegalCards(play).front());
      play.Play(record.cards.back());
    }
  }
  /// The first `cards` of the record.
  RecordedPlay First(std::size_t cards) const {
    RecordedPlay part = record;
    part.cards.resize(cards);
    return part;
  }
  /// "3 of 5": cards that are known at once.
  std::string KnownOf(const RecordedPlay& play) {
    finder.Find(play);
    const std::size_t known = finder.Review() == nullptr ? 0 : finder.Review()->cards.size();
    EXPECT_EQ(finder.Complete(), known == play.cards.size());
    return std::to_string(known) + " of " + std::to_string(play.cards.size());
  }
  void Wait() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return finder.Complete() || !finder.Why().empty(); }));
  }

  CountingSolver solver;
  RecordedPlay record;
  ReviewFinder finder{session};
};

TEST_F(ReviewFinderTest, AsksOnlyForWhatNoEarlierPlayHasTold) {
  RecordedPlay other = First(4);
  other.board.declarer = SeatAfter(other.board.declarer, 2);  // the same deal, led to by another
  other.cards = {Card::FromIndex(0)};
  while (SeatHolding(other.board.hands, other.cards[0]) != IndexOf(SeatAfter(other.board.declarer)))
    other.cards[0] = Card::FromIndex(other.cards[0].Index() + 1);
  const struct {
    const char* what;
    RecordedPlay play;
    const char* known;
    int asked;
  } steps[] = {
      {"new", First(5), "0 of 5", 1},           {"goes on", First(7), "5 of 7", 2},
      {"taken back", First(6), "6 of 6", 2},    {"taken back far", First(1), "1 of 1", 2},
      {"another declarer", other, "0 of 1", 3}, {"the first once more", First(7), "7 of 7", 3},
  };
  for (const auto& [what, play, known, asked] : steps) {
    EXPECT_EQ(KnownOf(play), known) << what;
    Wait();
    finder.Find(play);  // shown afresh
    EXPECT_EQ(solver.asked, asked) << what;
    ASSERT_NE(finder.Review(), nullptr) << what;
    EXPECT_EQ(finder.Review()->cards.size(), play.cards.size()) << what;
    EXPECT_EQ(finder.Review()->cards.back().declarerTricks,
              13 - static_cast<int>(play.cards.size()));
  }
}

TEST_F(ReviewFinderTest, AClaimIsHeldAgainstThePlaceWhereItWasMade) {
  EXPECT_EQ(KnownOf(record), "0 of 12");
  Wait();
  RecordedPlay claim = First(3);
  claim.tricks = 12;
  EXPECT_EQ(KnownOf(claim), "3 of 3");
  EXPECT_EQ(finder.Review()->claimed, 2);
}

TEST_F(ReviewFinderTest, TellsWhyThereIsNoneAndAsksNoMore) {
  finder.Find(First(0));
  EXPECT_NE(finder.Why(), "");
  solver.failure = "Out of order";
  EXPECT_EQ(KnownOf(record), "0 of 12");
  Wait();
  finder.Find(record);
  EXPECT_EQ(finder.Why(), "Out of order");
  EXPECT_EQ(solver.asked, 1);
  finder.Forget();
  EXPECT_EQ(finder.Why(), "");
  EXPECT_EQ(finder.Review(), nullptr);
}

}  // namespace
}  // namespace tricklet::ui
