#include "formats/results/kept_play.h"

#include <gtest/gtest.h>

#include "formats/results/ranking.h"
#include "formats/results/traveller.h"
#include "tests/support/calls.h"
#include "tests/support/hands.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

class KeptPlayTest : public test::LibraryTest {
 protected:
  KeptPlayTest() {
    play.board.boardNumber = 1;
    play.board.hands = test::OneSuitEach();
    test::SetAuction(play.board, "1S P P 1NT P P P");
    play.cards = {test::CardOf("CT"), test::CardOf("S2"), test::CardOf("HA")};
    play.tricks = 3;
  }

  RecordedPlay play;
};

TEST_F(KeptPlayTest, IsReadBackAsItWasPlayedAndHasNoScore) {
  ASSERT_TRUE(KeepPlay(session, play, Seat::South, "  Zo\u00EB, of 4|S "));
  const Traveller traveller = MakeTraveller(LoadLinData(session), 1);
  ASSERT_EQ(traveller.rows.size(), 1);
  const TravellerRow& row = traveller.rows[0];
  EXPECT_EQ(row.record.board.hands, play.board.hands);
  EXPECT_EQ(row.record.board.calls, play.board.calls);
  EXPECT_EQ(row.record.cards, play.cards);
  EXPECT_EQ(row.record.tricks, play.tricks);
  EXPECT_EQ(row.contract, "1NT");
  EXPECT_FALSE(row.HasResult());
  EXPECT_EQ(ReadLinBidding(row), "1NT by West -4 North & Zo\u00EB  of 4 S v East & West");
}

TEST_F(KeptPlayTest, ChangesNoPointsAndNoRank) {
  LinFile file;
  file.boardScoringMethod = "MATCH_POINTS";
  file.names = {"1 NS Ann & Bob", "2 EW Cy & Di", "3 NS Eve & Fay", "4 EW Gus & Hal"};
  file.lin = {"pn|Bob,Di,Ann,Cy|ah|Board 1|qent|7||qens|80||qenc|1S||qend|N|",
              "pn|Fay,Hal,Eve,Gus|ah|Board 1|qent|8||qens|110||qenc|1S||qend|N|"};
  test::WriteFile(LinDataPath(session), LinFileText(file));
  const Traveller before = MakeTraveller(file, 1);
  ASSERT_TRUE(KeepPlay(session, play, Seat::West, "Ann"));
  const LinFile kept = LoadLinData(session);
  ASSERT_EQ(kept.lin.size(), 3);
  EXPECT_EQ(kept.names, file.names);
  const Traveller after = MakeTraveller(kept, 1);
  for (std::size_t row = 0; row < before.rows.size(); ++row) {
    EXPECT_EQ(after.rows[row].points, before.rows[row].points);
  }
  const Ranking ranking = MakeRanking(kept, MakeTravellers(kept));
  ASSERT_EQ(ranking.tables.size(), 2);
  EXPECT_EQ(ranking.tables[0].entrants.size(), 2);
  EXPECT_EQ(ranking.notRanked, MakeRanking(file, MakeTravellers(file)).notRanked);
}

TEST_F(KeptPlayTest, NeedsACardAndAName) {
  host.ExpectTell("A play is kept under a name");
  EXPECT_FALSE(KeepPlay(session, play, Seat::South, " "));
  play.cards.clear();
  host.ExpectTell("No card has been played");
  EXPECT_FALSE(KeepPlay(session, play, Seat::South, "Ann"));
  EXPECT_FALSE(std::filesystem::exists(LinDataPath(session)));
}

}  // namespace
}  // namespace tricklet
