#include "play/best_line.h"

#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

#include "analysis/solver_library.h"
#include "play/best_cards.h"
#include "play/claim_check.h"
#include "tests/support/calls.h"
#include "tests/support/fake_solver.h"
#include "tests/support/hands.h"
#include "tests/support/plays.h"
#include "tests/support/scripted_host.h"

namespace tricklet {
namespace {

std::vector<Card> CardsOf(const std::string& text) {
  std::vector<Card> cards;
  std::istringstream words(text);
  for (std::string word; words >> word;) cards.push_back(test::CardOf(word));
  return cards;
}

/// All of `cards` lead to nine tricks; the others to eight.
std::vector<CardScore> NineFor(const std::string& cards, const PerSuit<Holding>& legal) {
  const std::vector<Card> best = CardsOf(cards);
  std::vector<CardScore> scores;
  for (int index = 0; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index);
    if (!legal[card.suit].Has(card.rank)) continue;
    scores.push_back({card, std::ranges::find(best, card) != best.end() ? 9 : 8});
  }
  return scores;
}

TEST(BestLine, ChoosesSensiblyAmongEqualCards) {
  const struct {
    const char* played;
    const char* equal;
    const char* chosen;
  } kCases[] = {
      {"", "HQ HJ HT D9 D6", "HQ"},  // the top of a sequence, of the longest suit
      {"", "HJ HT H3 D9", "H3"},     // low where the low card is as good
      {"", "HT D9", "HT"},           // of a sequence whose top would cost
      {"", "D9 C4 C3", "C3"},        // of the longer suit
      {"", "H3 C4", "H3"},           // of equal length, the suit that ranks higher
      {"H3", "HK H6 H4", "H4"},      // following low
      {"H3", "HK", "HK"},            // unless that would cost
      {"H3 H4", "HA", "HA"},
      {"C4", "CJ C9", "C9"},
      // South has no club: rather a discard than a ruff, and a low one.
      {"C4 C2 CA", "S3 D3 D5 S9", "D3"},
      {"C4 C2 CA", "S3 S9", "S3"},
  };
  Board board;
  board.hands =
      test::HandsOf("N:AJ5.K64.KT4.J952 T8.A982.AJ.AKQT6 KQ9643.75.Q8532. 72.QJT3.976.8743");
  test::SetAuction(board, "P P 4S P P P");
  for (const auto& each : kCases) {
    test::ScriptedHost host;
    NoTimer timer;
    CardPlay play(board, host, timer);
    ASSERT_TRUE(play.Start());
    for (const Card card : CardsOf(each.played)) ASSERT_TRUE(play.Play(card)) << each.played;
    const auto chosen =
        SensibleCard(play.Now(), board.trumps, NineFor(each.equal, play.LegalCards()));
    EXPECT_EQ(chosen, test::CardOf(each.chosen)) << each.played << ": " << each.equal;
    play.Stop();
  }
  EXPECT_FALSE(SensibleCard(PlayState(), Strain::Spades, {})) << "the solver could not tell";
}

TEST(BestLine, EndsWithTheTricksThatTheSolverPromises) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  RandomSource random(8);
  const auto always = [] { return true; };
  for (int deal = 0; deal < 5; ++deal) {
    Board board = test::RandomBoard(deal, random);
    test::ScriptedHost host;
    NoTimer timer;
    CardPlay play(board, host, timer);
    ASSERT_TRUE(play.Start());
    const std::vector<Card> some = test::LegalCards(play);
    ASSERT_TRUE(play.Play(some[random.Below(static_cast<std::uint32_t>(some.size()))]));
    const Side side = SideOf(*play.Now().onPlay);
    const auto claim = CheckClaim(*solver, play.Now(), board, side, 0);
    ASSERT_TRUE(claim);
    const std::vector<Card> line = BestLine(*solver, play.Now(), board.trumps, always);
    ASSERT_EQ(line.size(), kCardsInPack - 1) << "deal " << deal;
    for (const Card card : line) ASSERT_TRUE(play.Play(card)) << "deal " << deal;
    EXPECT_EQ(play.Now().tricksWon[side], claim->best) << "deal " << deal;
    EXPECT_EQ(host.beeps, 0);
  }
}

/// One spade by North, about to be led to. North has the spades, East the hearts, South the
/// diamonds and West the clubs.
struct SpadePlay {
  SpadePlay() {
    board.hands = test::OneSuitEach();
    test::SetAuction(board, "1S P P P");
    EXPECT_TRUE(play.Start());
  }
  Board board;
  test::ScriptedHost host;
  NoTimer timer;
  CardPlay play{board, host, timer};
};

TEST(BestLine, EndsWhereTheSolverFailsOrNobodyWaits) {
  SpadePlay spades;
  test::FakeSolver solver;  // cannot tell
  const auto always = [] { return true; };
  EXPECT_TRUE(BestLine(solver, spades.play.Now(), spades.board.trumps, always).empty());
  solver.solveCards = [](const SolverPosition& position) {
    return std::vector<CardScore>{{test::CardOf("H2"), static_cast<int>(position.trick.size())}};
  };
  int asked = 0;
  const auto once = [&asked] { return ++asked <= 1; };
  EXPECT_EQ(BestLine(solver, spades.play.Now(), spades.board.trumps, once), CardsOf("H2"));
}

TEST(ClaimCheck, SaysWhoCanHoldItToWhat) {
  const struct {
    const char* played;
    Side side;
    int tricks;
    const char* text;
  } kCases[] = {
      // The solver gives the hand on play five tricks more than its side has.
      {"", Side::NorthSouth, 9, "Claim 9: East can hold it to 8"},
      {"", Side::NorthSouth, 8, "Claim 8: it holds against any defence"},
      {"", Side::NorthSouth, 7, "Claim 7: it holds against any defence, and 8 can be made"},
      {"", Side::EastWest, 6, "Claim 6: North can hold it to 5"},
      {"H2", Side::EastWest, 9, "Claim 9: North can hold it to 8"},  // dummy plays no card itself
      {"H2 D2", Side::NorthSouth, 13, "Claim 13: West can hold it to 8"},
  };
  test::FakeSolver solver;
  solver.solveCards = [](const SolverPosition& /*position*/) {
    return std::vector<CardScore>{{test::CardOf("H2"), 5}, {test::CardOf("H3"), 4}};
  };
  for (const auto& each : kCases) {
    SpadePlay spades;
    for (const Card card : CardsOf(each.played)) ASSERT_TRUE(spades.play.Play(card));
    const auto check = CheckClaim(solver, spades.play.Now(), spades.board, each.side, each.tricks);
    ASSERT_TRUE(check);
    EXPECT_EQ(ClaimCheckText(*check), each.text);
  }
  EXPECT_FALSE(CheckClaim(solver, PlayState(), Board(), Side::NorthSouth, 1)) << "nobody on play";
}

}  // namespace
}  // namespace tricklet
