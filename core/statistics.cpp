#include "core/statistics.h"

#include <algorithm>

namespace tricklet {
namespace {

constexpr int kHonours = 4;     // ace to jack carry points
constexpr int kLoserRanks = 3;  // ace to queen can be losers

int HonourPoints(Holding holding) {
  int points = 0;
  for (int rank = 0; rank < kHonours; ++rank) {
    if (holding.Has(static_cast<Rank>(rank))) points += kHonours - rank;
  }
  return points;
}

bool HeadedByAceJackTen(Holding holding) {
  return holding.Has(Rank::Ace) && !holding.Has(Rank::King) && !holding.Has(Rank::Queen) &&
         holding.Has(Rank::Jack) && holding.Has(Rank::Ten);
}

}  // namespace

int SuitLosers(Holding holding) {
  if (HeadedByAceJackTen(holding)) return 1;
  int losers = 0;
  for (int rank = 0; rank < std::min(kLoserRanks, holding.Count()); ++rank) {
    if (!holding.Has(static_cast<Rank>(rank))) ++losers;
  }
  return losers;
}

Statistics GetStats(const HandTable& hands) {
  Statistics statistics;
  int complete = 0;
  for (const Seat seat : kAllSeats) {
    for (const Suit suit : kAllSuits) {
      const Holding holding = hands[seat][suit];
      statistics.suitLength[seat][suit] = holding.Count();
      statistics.suitHcp[seat][suit] = HonourPoints(holding);
      statistics.seatCardCount[seat] += holding.Count();
      statistics.seatHcp[seat] += HonourPoints(holding);
      statistics.seatLtc[seat] += SuitLosers(holding);
    }
    statistics.pairLtc[SideOf(seat)] += statistics.seatLtc[seat];
    if (statistics.seatCardCount[seat] == kCardsInHand) {
      ++complete;
    } else {
      statistics.incompleteSeat = seat;
    }
  }
  for (const Suit suit : kAllSuits) {
    Holding held;
    for (const Seat seat : kAllSeats) held = held | hands[seat][suit];
    statistics.missingCards[suit] = Holding::FromBits(Holding::kAllBits) - held;
  }
  statistics.allHandsComplete = complete == kSeats;
  return statistics;
}

PerSeat<std::string> GetCaptionsEdit(const Statistics& statistics, const Settings& settings) {
  PerSeat<std::string> captions;
  for (const Seat seat : kAllSeats) {
    std::string& caption = captions[seat];
    if (settings.captionPlayer) caption += std::string(SeatName[seat]) + ": ";
    if (settings.captionnCards) {
      caption += std::to_string(statistics.seatCardCount[seat]) + " cards ";
      if (settings.captionHcp || settings.captionLtc) caption += ": ";
    }
    if (settings.captionHcp) caption += "HCP=" + std::to_string(statistics.seatHcp[seat]) + " ";
    if (settings.captionLtc) caption += "LTC=" + std::to_string(statistics.seatLtc[seat]);
  }
  return captions;
}

}  // namespace tricklet
