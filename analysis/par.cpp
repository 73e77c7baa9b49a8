#include "analysis/par.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "core/scoring.h"

namespace tricklet {
namespace {

constexpr std::size_t kBids = Call::kBids;

struct Outcome {
  int score = 0;  // North-South's
  int tricks = 0;
};

/// The auction as a game. A state is the last bid and the side that made it; the other side then
/// passes, which ends the auction, or bids higher. Worked out from 7NT down.
class ParGame {
 public:
  ParGame(const MakeableTable& table, Vulnerability vulnerability) {
    for (const Side side : {Side::NorthSouth, Side::EastWest}) {
      for (std::size_t bid = 0; bid < kBids; ++bid) {
        passed_[side].at(bid) = BestOutcome(table, vulnerability, side, static_cast<int>(bid));
      }
    }
    for (std::size_t bid = kBids; bid-- > 0;) {
      for (const Side side : {Side::NorthSouth, Side::EastWest}) {
        value_[side].at(bid) = Best(Other(side), passed_[side].at(bid).score, bid + 1);
      }
    }
  }

  /// What the auction comes to when `side` may pass for `ifPassed` or make any bid from `from` on.
  int Best(Side side, int ifPassed, std::size_t from) const {
    int best = ifPassed;
    for (std::size_t bid = from; bid < kBids; ++bid) {
      const int score = value_[side].at(bid);
      best = side == Side::NorthSouth ? std::max(best, score) : std::min(best, score);
    }
    return best;
  }

  /// Marks in `ends` the bids at which the auction may end when `side` is to bid, from `from` on,
  /// and both sides play for `par`. `seen` keeps a bid from being followed twice.
  void CollectEnds(Side side, std::size_t from, int par, PerSide<std::array<bool, kBids>>& ends,
                   PerSide<std::array<bool, kBids>>& seen) const {
    for (std::size_t bid = from; bid < kBids; ++bid) {
      if (value_[side].at(bid) != par || seen[side].at(bid)) continue;
      seen[side].at(bid) = true;
      if (passed_[side].at(bid).score == par && !CanBeOutbid(side, bid, par)) {
        ends[side].at(bid) = true;
      }
      CollectEnds(Other(side), bid + 1, par, ends, seen);
    }
  }

  /// The other side has a higher contract that would score better than par for it if it were passed
  /// out. Then nobody stops at `bid`, even where the auction still comes to par in the end: one
  /// saves over the opponents' game, not below it.
  bool CanBeOutbid(Side side, std::size_t bid, int par) const {
    for (std::size_t higher = bid + 1; higher < kBids; ++higher) {
      const int score = passed_[Other(side)].at(higher).score;
      if (side == Side::NorthSouth ? score < par : score > par) return true;
    }
    return false;
  }

  const Outcome& At(Side side, std::size_t bid) const { return passed_[side].at(bid); }

  static Side Other(Side side) {
    return side == Side::NorthSouth ? Side::EastWest : Side::NorthSouth;
  }

 private:
  static Outcome BestOutcome(const MakeableTable& table, Vulnerability vulnerability, Side side,
                             int bid) {
    const Call call = Call::Bid(bid / kStrains + 1, static_cast<BidStrain>(bid % kStrains));
    const auto seat = static_cast<Seat>(side);
    Outcome outcome;
    for (const Seat declarer : {seat, PartnerOf(seat)}) {
      outcome.tricks = std::max<int>(
          outcome.tricks, table[ToTableSeat(declarer)][ToTableStrain(call.Denomination())]);
    }
    const int result = outcome.tricks - kBook - call.Level();
    outcome.score =
        ScoreContract(vulnerability, call.Level(), ToStrain(call.Denomination()),
                      result < 0 ? Doubling::Doubled : Doubling::Undoubled, result, seat);
    return outcome;
  }

  PerSide<std::array<Outcome, kBids>> passed_;  // by the side that bid
  PerSide<std::array<int, kBids>> value_;
};

ParContract Describe(const MakeableTable& table, Side side, int bid, int tricks) {
  ParContract contract;
  contract.level = bid / kStrains + 1;
  contract.strain = static_cast<BidStrain>(bid % kStrains);
  contract.result = tricks - kBook - contract.level;
  contract.doubled = contract.result < 0;
  const auto seat = static_cast<Seat>(side);
  for (const Seat declarer : {seat, PartnerOf(seat)}) {
    if (table[ToTableSeat(declarer)][ToTableStrain(contract.strain)] == tricks) {
      contract.declarers.push_back(declarer);
    }
  }
  return contract;
}

std::string ContractText(const ParContract& contract) {
  return Call::Bid(contract.level, contract.strain).Text() + (contract.doubled ? "x" : "") +
         ResultText(contract.result);
}

/// The declarer is named when only one of the side reaches the result.
std::string DeclarerText(const ParContract& contract) {
  if (contract.declarers.size() != 1) return {};
  return " by " + std::string(SeatName[contract.declarers[0]]);
}

}  // namespace

Par ComputePar(const MakeableTable& table, Seat dealer, Vulnerability vulnerability) {
  const ParGame game(table, vulnerability);
  const Side first = SideOf(dealer);
  const Side second = ParGame::Other(first);
  // When the first side passes, the second may still bid; when both do, the board is passed out.
  const int ifPassed = game.Best(second, 0, 0);
  Par par;
  par.score = game.Best(first, ifPassed, 0);
  if (par.score == 0) return par;
  PerSide<std::array<bool, kBids>> ends{};
  PerSide<std::array<bool, kBids>> seen{};
  game.CollectEnds(first, 0, par.score, ends, seen);
  if (ifPassed == par.score) game.CollectEnds(second, 0, par.score, ends, seen);
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    for (std::size_t bid = 0; bid < kBids; ++bid) {
      // Of one strain the highest: 2NT= says more than 1NT+1, which scores the same.
      const bool higherToo = bid + kStrains < kBids && ends[side].at(bid + kStrains);
      if (!ends[side].at(bid) || higherToo) continue;
      par.contracts.push_back(
          Describe(table, side, static_cast<int>(bid), game.At(side, bid).tricks));
    }
  }
  return par;
}

std::string ParText(const Par& par) {
  if (par.contracts.empty()) return "Par All Pass 0";
  std::string text = "Par ";
  for (std::size_t i = 0; i < par.contracts.size(); ++i) {
    if (i > 0) text += ", ";
    text += ContractText(par.contracts[i]) + DeclarerText(par.contracts[i]);
  }
  return text + (par.score > 0 ? " NS +" : " EW +") + std::to_string(std::abs(par.score));
}

}  // namespace tricklet
