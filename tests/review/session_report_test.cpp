// The report of a session: who is who, what counts for whom, and what is said of each board.
#include "review/session_report.h"

#include <gtest/gtest.h>

#include "review/session_review.h"
#include "tests/review/club_evening.h"

namespace tricklet::test {
namespace {

std::string Text(const GivenFigures& figures) {
  return std::to_string(figures.tricks) + "/" + std::to_string(figures.plays);
}

/// "1 Ann & Bob: 2 boards, gave 1/1 0/0 2/1, got 0/0 1/1 0/0".
std::string GivenText(const ReportEntrant& one) {
  return one.number + " " + one.names + ": " + std::to_string(one.boards) + " boards, gave " +
         Text(one.declarer) + " " + Text(one.lead) + " " + Text(one.defence) + ", got " +
         Text(one.gotFromDeclarer) + " " + Text(one.gotFromLead) + " " + Text(one.gotFromDefence);
}

class SessionReportTest : public ClubEvening {
 protected:
  SessionReport Report() {
    StoreResults();
    const ReportOutcome outcome = ReportSession(session, solver, {});
    EXPECT_EQ(outcome.failure, "");
    return outcome.report.value_or(SessionReport());
  }
};

TEST_F(SessionReportTest, TricksCountForWhoGaveThemAndWhoGotThem) {
  // West's lead costs one, East's ace two, South's three one. Board 3 is dealt by South.
  solver.tricks = {9, 10, 10, 12, 11};
  Add(TableOf(3, "Ann & Bob", "Gus & Hal", "4S P P P", "10", kFirstTrick));
  Add(TableOf(3, "Cy & Di", "Ida & Jim", "4S P P P", "10", ""));
  const SessionReport report = Report();
  ASSERT_EQ(report.entrants.size(), 4U);
  EXPECT_EQ(GivenText(report.entrants[0]),
            "1 Ann & Bob: 1 boards, gave 1/1 0/0 0/0, got 0/0 1/1 2/1");
  EXPECT_EQ(GivenText(report.entrants[1]),
            "2 Cy & Di: 1 boards, gave 0/0 0/0 0/0, got 0/0 0/0 0/0");
  EXPECT_EQ(GivenText(report.entrants[2]),
            "11 Gus & Hal: 1 boards, gave 0/0 1/1 2/1, got 1/1 0/0 0/0");
  EXPECT_EQ(report.entrants[2].field, "East-West");
  EXPECT_EQ(report.plays, 1);
  EXPECT_EQ(report.reviewed, 1);
  EXPECT_EQ(report.remarks, std::vector<std::string>{"No play is known of 1 table"});
}

TEST_F(SessionReportTest, PlayersHaveTheirOwnTricksAndTheirSidesContracts) {
  results.names.clear();
  solver.tricks = {9, 10, 10, 12, 11};
  Add(TableOf(3, "Ann & Bob", "Gus & Hal", "4S P P P", "10", kFirstTrick));
  Add(TableOf(4, "Ann & Gus", "Bob & Hal", "P P P 4S P P P", "9", ""));
  const SessionReport report = Report();
  EXPECT_EQ(report.contestants, Contestants::Players);
  ASSERT_EQ(report.entrants.size(), 4U);
  EXPECT_EQ(GivenText(report.entrants[0]), " Ann: 2 boards, gave 0/0 0/0 0/0, got 0/0 1/1 2/1");
  EXPECT_EQ(GivenText(report.entrants[1]), " Bob: 2 boards, gave 1/1 0/0 0/0, got 0/0 1/1 2/1");
  EXPECT_EQ(GivenText(report.entrants[2]), " Gus: 2 boards, gave 0/0 0/0 2/1, got 1/1 0/0 0/0");
  EXPECT_EQ(GivenText(report.entrants[3]), " Hal: 2 boards, gave 0/0 1/1 0/1, got 1/1 0/0 0/0");
  std::vector<int> games;
  games.reserve(report.entrants.size());
  for (const ReportEntrant& one : report.entrants) games.push_back(one.games.bid);
  EXPECT_EQ(games, (std::vector{2, 1, 1, 0}));
}

TEST_F(SessionReportTest, ContractsAndPar) {
  // North-South make ten tricks in everything and are not vulnerable.
  Add(TableOf(3, "Ann & Bob", "Gus & Hal", "4NT P P P", "10", ""));
  Add(TableOf(3, "Cy & Di", "Ida & Jim", "2S P P P", "11", ""));
  Add(TableOf(3, "Ed & Flo", "Kay & Lou", "4NT P P X P P P", "9", ""));
  const SessionReport report = Report();
  ASSERT_EQ(report.entrants.size(), 6U);
  const ReportEntrant& missed = report.entrants[1];
  EXPECT_EQ(missed.par.Mean(), 200 - 430);
  EXPECT_EQ(missed.bidding.Mean(), 170 - 430);
  EXPECT_EQ(missed.play.Mean(), 30);
  EXPECT_EQ(missed.games, (LevelFigures{0, 0, 1, 1}));
  const ReportEntrant& doubled = report.entrants[2];
  EXPECT_EQ(doubled.games, (LevelFigures{1, 0, 1, 0}));
  EXPECT_EQ(doubled.doubledDown, 1);
  EXPECT_EQ(doubled.makeable, 1) << "though it was not made";
  EXPECT_EQ(report.entrants[5].theyWentDown, 1);
  ASSERT_EQ(report.boards.size(), 1U);
  const ReportBoard& board = report.boards[0];
  EXPECT_EQ(board.par->score, 430);
  EXPECT_EQ(board.atPar, 1);
  EXPECT_EQ(board.beatPar[Side::EastWest], 2);
  EXPECT_EQ(report.tables[1].WhyBeaten(), "bidding");
  EXPECT_EQ(report.tables[2].WhyBeaten(), "play") << "the double alone gave the contract away";
}

TEST_F(SessionReportTest, LeadsThatBeatAContract) {
  // The solver gives the defence three tricks after a heart and two after any other card.
  solver.solveCards = [](const SolverPosition& position) {
    std::vector<CardScore> scores;
    for (int index = 0; index < kCardsInPack; ++index) {
      const Card card = Card::FromIndex(index);
      if (!position.cardsLeft[position.leader][card.suit].Has(card.rank)) continue;
      scores.push_back({card, card.suit == Suit::Hearts ? 3 : 2});
    }
    return scores;
  };
  Add(TableOf(3, "Ann & Bob", "Gus & Hal", "5S P P P", "11", kFirstTrick));
  Add(TableOf(3, "Cy & Di", "Ida & Jim", "5S X P P P", "10", "HT"));
  Add(TableOf(3, "Ed & Flo", "Kay & Lou", "6S P P P", "10", ""));
  Add(TableOf(3, "Gus & Lou", "Max & Ned", "7S P P P", "10", ""));  // fails by too much
  const SessionReport report = Report();
  ASSERT_EQ(report.boards.size(), 1U);
  std::vector<std::string> texts;
  for (const BeatableContract& each : report.boards[0].beatable) {
    texts.push_back(each.ContractText() + ": " + each.LeadsText() + " " +
                    std::to_string(each.found) + " of " + std::to_string(each.times));
  }
  EXPECT_EQ(texts, (std::vector<std::string>{"5S by South: \u2665"
                                             "10 \u2665"
                                             "9 \u2665"
                                             "5 1 of 2",
                                             "6S by South: any lead 0 of 1"}));
}

TEST_F(SessionReportTest, SaysWhatCannotBeCompared) {
  TableRecord other = TableOf(3, "Ann & Bob", "Gus & Hal", "4S P P P", "10", "");
  std::swap(other.hands[Seat::North], other.hands[Seat::East]);
  Add(other);
  Add(TableOf(4, "Ann & Bob", "Gus & Hal", "P P P P", "", ""));
  Add(TableOf(5, "Ann & Bob", "Gus & Hal", "P P P P", "", ""));
  const SessionReport report = Report();
  EXPECT_EQ(report.entrants.at(0).boards, 3);
  EXPECT_EQ(report.entrants.at(0).par.count, 1);
  EXPECT_EQ(report.remarks,
            (std::vector<std::string>{
                "Board 5 is no complete deal in the library: there is no par",
                "The library has another deal than 1 table of board 3: there is no par for that",
                "No play is known of 3 tables"}));
}

}  // namespace
}  // namespace tricklet::test
