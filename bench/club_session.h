// A club session made at random: boards, and results with auctions and plays.
#pragma once

#include <array>
#include <functional>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "bench/random_board.h"
#include "core/trick.h"
#include "formats/results/lin_file.h"
#include "formats/results/table_record.h"

namespace tricklet::bench {

struct ClubSession {
  std::vector<Board> boards;
  LinFile results;
};

/// The name of the player in a seat of a pair, 1 and up.
using PlayerNames = std::function<std::string(int pair, Seat seat)>;

inline std::string PlainName(int pair, Seat seat) {
  return std::string(SeatName[seat]) + " Player" + std::to_string(pair);
}

namespace club_session {

inline std::vector<ExplainedCall> RandomAuction(std::mt19937& random) {
  static const std::array<std::vector<const char*>, 6> kAuctions{{
      {"1NT", "P", "3NT", "P", "P", "P"},
      {"P", "1S", "P", "4S", "P", "P", "P"},
      {"P", "P", "1H", "X", "XX", "P", "P", "P"},
      {"2C", "X", "P", "P", "P"},
      {"3D", "P", "5D", "X", "P", "P", "P"},
      {"P", "P", "P", "P"},
  }};
  std::vector<ExplainedCall> auction;
  for (const char* call : kAuctions.at(random() % kAuctions.size())) {
    auction.push_back({Call::FromText(call).value_or(Call::Pass()), ""});
  }
  return auction;
}

/// All 52 cards, each legal; none when the board was passed out.
inline std::vector<Card> RandomPlay(const Board& board, std::mt19937& random) {
  std::vector<Card> cards;
  if (board.contractLevel == 0) return cards;
  HandTable left = board.hands;
  Seat onPlay = SeatAfter(board.declarer);
  Trick trick;
  while (cards.size() < kCardsInPack) {
    const PerSuit<Holding> legal = trick.LegalCards(left[onPlay]);
    Card card = Card::FromIndex(static_cast<int>(random() % kCardsInPack));
    while (!legal[card.suit].Has(card.rank)) card = Card::FromIndex((card.Index() + 1) % 52);
    left[onPlay][card.suit].Remove(card.rank);
    trick.Add(card, onPlay, board.trumps);
    cards.push_back(card);
    onPlay = SeatAfter(onPlay);
    if (trick.cardsInTrick < kSeats) continue;
    onPlay = trick.trickWinner;
    trick.cardsInTrick = 0;
  }
  return cards;
}

}  // namespace club_session

/// Boards 1 to `boards`, each played at `tables` tables by pairs that sit in one direction: pair n
/// North-South at table n, pair `tables` + n East-West. Match points are not given.
inline ClubSession RandomSession(int boards, int tables, unsigned seed,
                                 const PlayerNames& nameOf = PlainName) {
  std::mt19937 random(seed);
  ClubSession session;
  session.results.boardScoringMethod = "MATCH_POINTS";
  session.results.boardScoringAbb = "MP";
  for (int pair = 1; pair <= 2 * tables; ++pair) {
    const Seat first = pair <= tables ? Seat::North : Seat::East;
    session.results.names.push_back(std::to_string(pair) + (pair <= tables ? " NS " : " EW ") +
                                    nameOf(pair, first) + " & " + nameOf(pair, PartnerOf(first)));
  }
  for (int number = 1; number <= boards; ++number) {
    session.boards.push_back(RandomBoard(number, random));
    for (int table = 1; table <= tables; ++table) {
      Board board = session.boards.back();
      TableRecord record;
      record.boardNumber = number;
      record.hands = board.hands;
      record.auction = club_session::RandomAuction(random);
      board.calls.Clear();
      for (const ExplainedCall& each : record.auction) board.calls.Add(each.call);
      GetContract(board);
      record.play = club_session::RandomPlay(board, random);
      for (const Seat seat : kAllSeats) {
        record.players[seat] =
            nameOf(SideOf(seat) == Side::NorthSouth ? table : tables + table, seat);
      }
      session.results.lin.push_back(LinLineOf(record));
    }
  }
  return session;
}

}  // namespace tricklet::bench
