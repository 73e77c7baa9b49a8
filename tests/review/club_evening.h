// A small session in a library of boards 3 and 4, of which North-South make ten tricks in
// everything.
#pragma once

#include <string>
#include <vector>

#include "core/text.h"
#include "formats/results/lin_file.h"
#include "formats/results/table_record.h"
#include "tests/support/calls.h"
#include "tests/support/fake_solver.h"
#include "tests/support/hands.h"
#include "tests/support/library_fixture.h"
#include "tests/support/words.h"

namespace tricklet::test {

/// Says of every play that declarer ends with so many tricks before the lead and after each card,
/// the last number to the end.
class PlaySolver : public FakeSolver {
 public:
  std::string SolvePlays(std::span<const SolverPlay> plays,
                         std::span<PlayTricks> answers) override {
    playBatches.push_back(plays.size());
    for (std::size_t i = 0; i < plays.size(); ++i) {
      answers[i] = tricks;
      answers[i].resize(plays[i].cards.size() + 1, tricks.back());
    }
    return failure;
  }
  PlayTricks tricks{10};
  std::vector<std::size_t> playBatches;
};

class ClubEvening : public LibraryTest {
 protected:
  ClubEvening() {
    results.boardScoringMethod = "MATCH_POINTS";
    results.boardScoringAbb = "MP";
    for (const char* name : {"1 NS Ann & Bob", "2 NS Cy & Di", "3 NS Ed & Flo", "11 EW Gus & Hal",
                             "12 EW Ida & Jim", "13 EW Kay & Lou"}) {
      results.names.emplace_back(name);
    }
    for (const int number : {3, 4}) {
      Board board;
      board.hands = HandsOf(kDeal);
      board.boardNumber = number;
      for (const Seat seat : kAllSeats) {
        board.makeable[ToTableSeat(seat)].fill(SideOf(seat) == Side::NorthSouth ? 10 : 3);
      }
      board.makeableValid = true;
      WriteFile(session.BoardPath(number), WriteBoardText(board));
    }
  }

  /// "4S P P P" from the board's dealer, and the cards of the play.
  TableRecord TableOf(int number, const std::string& ns, const std::string& ew,
                      const std::string& calls, const std::string& tricks,
                      const std::string& cards) const {
    TableRecord record;
    record.boardNumber = number;
    record.hands = HandsOf(kDeal);
    for (const std::string& call : Words(calls)) record.auction.push_back({CallOf(call), ""});
    record.tricks = tricks;
    for (const std::string& card : Words(cards)) record.play.push_back(CardOf(card));
    const auto seat = [&](const std::string& pair, Seat first) {
      const auto blank = pair.find(" & ");
      record.players[first] = pair.substr(0, blank);
      record.players[PartnerOf(first)] = pair.substr(blank + 3);
    };
    seat(ns, Seat::North);
    seat(ew, Seat::East);
    return record;
  }
  void Add(const TableRecord& record) { results.lin.push_back(LinLineOf(record)); }
  void StoreResults() { WriteFile(LinDataPath(session), LinFileText(results)); }

  static constexpr const char* kDeal =
      "N:A873.AJ83.52.Q32 95.74.AQJ84.T754 QT62.KQ62.K93.K8 KJ4.T95.T76.AJ96";
  /// Of a contract by South: West leads, then North, East, South.
  static constexpr const char* kFirstTrick = "D6 D2 DA D3";

  LinFile results;
  PlaySolver solver;
};

}  // namespace tricklet::test
