// The cards of one hand compared: an opening lead, or a card in mid-play.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "simulation/contract.h"
#include "simulation/estimate.h"
#include "simulation/play_point.h"
#include "simulation/tally.h"

namespace tricklet {

/// How often declarer ends with so many tricks, 0..13.
using TrickCounts = std::array<std::int64_t, kCardsInHand + 1>;

struct CardRow {
  /// One card, or adjacent ones of a suit that have led to the same on all deals; the highest
  /// first.
  std::vector<Card> cards;
  Estimate success;        ///< percent of the deals in which its side makes, or beats, the contract
  Estimate tricks;         ///< of its side in all, 0..13
  Estimate successBehind;  ///< the first row's less its own, paired; 0 or more
  Estimate tricksBehind;   ///< the first row's less its own, paired; may be negative
  /// Against each other card that could be played on the same deal: 0, 50 or 100 %, and IMPs. 0
  /// where there is no other.
  Estimate matchpoints;
  Estimate imps;
  TrickCounts declarerTricks{};
};

struct CardTable {
  SimulatedContract contract;
  Seat onPlay = Seat::West;
  int cardsPlayed = 0;
  bool declaring = false;  ///< the hand on play is declarer's or dummy's
  std::int64_t deals = 0;
  std::vector<CardRow> rows;  ///< by success, then by tricks; the better first
};

class CardTally : public Tally {
 public:
  CardTally(const PlayPoint& point, const SimulatedContract& contract, Vulnerability vulnerability);

  std::size_t PositionsPerDeal() const override { return 1; }
  CardsWanted Wanted() const override { return CardsWanted::All; }
  void AppendPositions(const HandTable& deal,
                       std::vector<SolverPosition>& positions) const override;
  bool Add(std::span<const CardScores> answers) override;
  bool Precise() const override;
  CardTable Table() const;

 private:
  void Compare(const std::vector<double>& tricks);
  CardRow RowOf(std::size_t first, std::size_t next) const;
  int DeclarerTricks(double tricks) const;

  PlayPoint point_;
  SimulatedContract contract_;
  ScoresByTricks scores_;
  bool declaring_;
  std::vector<Card> cards_;     // those that may be played, suit by suit from the highest
  std::vector<bool> likeNext_;  // the same as the next of the suit on all deals
  std::vector<std::int64_t> successes_;
  std::vector<TrickCounts> counts_;
  PairedSums tricks_;
  PairedSums won_;  // 100 or 0
  PairedSums matchpoints_;
  PairedSums imps_;
};

}  // namespace tricklet
