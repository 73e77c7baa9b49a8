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
      statistics.SuitLength[seat][suit] = holding.Count();
      statistics.SuitHCP[seat][suit] = HonourPoints(holding);
      statistics.SeatCardCount[seat] += holding.Count();
      statistics.SeatHCP[seat] += HonourPoints(holding);
      statistics.SeatLTC[seat] += SuitLosers(holding);
    }
    statistics.PairLTC[SideOf(seat)] += statistics.SeatLTC[seat];
    if (statistics.SeatCardCount[seat] == kCardsInHand) {
      ++complete;
    } else {
      statistics.IncompleteSeat = seat;
    }
  }
  for (const Suit suit : kAllSuits) {
    Holding held;
    for (const Seat seat : kAllSeats) held = held | hands[seat][suit];
    statistics.MissingCards[suit] = Holding::FromBits(Holding::kAllBits) - held;
  }
  statistics.AllHandsComplete = complete == kSeats;
  return statistics;
}

PerSeat<std::string> GetCaptionsEdit(const Statistics& statistics, const Settings& settings) {
  PerSeat<std::string> captions;
  for (const Seat seat : kAllSeats) {
    std::string& caption = captions[seat];
    if (settings.CaptionPlayer) caption += std::string(SeatName[seat]) + ": ";
    if (settings.CaptionnCards) {
      caption += std::to_string(statistics.SeatCardCount[seat]) + " cards ";
      if (settings.CaptionHCP || settings.CaptionLTC) caption += ": ";
    }
    if (settings.CaptionHCP) caption += "HCP=" + std::to_string(statistics.SeatHCP[seat]) + " ";
    if (settings.CaptionLTC) caption += "LTC=" + std::to_string(statistics.SeatLTC[seat]);
  }
  return captions;
}

}  // namespace tricklet
