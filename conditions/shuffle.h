// Deals at random that hold given cards and suit lengths, each equally likely.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "conditions/hand_bits.h"
#include "conditions/length_draw.h"
#include "conditions/script.h"
#include "core/random_source.h"

namespace tricklet {

class Shuffle {
 public:
  /// The hands are dealt in the order of `seats`, which names each seat once.
  Shuffle(const Predealt& predealt, const std::array<Seat, kSeats>& seats);

  /// Whether a hand can be dealt on its own: then it is uniform whatever the others will be.
  bool HandByHand() const { return !lengths_; }
  /// Deals the next hand of a new or begun deal; only when `HandByHand`.
  void DealHand(std::size_t place, RandomSource& random);
  /// Deals all four hands.
  void Deal(RandomSource& random);

  const DealBits& Current() const { return deal_; }

 private:
  void DealByLengths(RandomSource& random);

  std::array<Seat, kSeats> seats_;
  DealBits given_{};
  DealBits deal_{};
  /// Cards that are not predealt, and where each hand's share of them begins and ends.
  std::array<std::uint8_t, kCardsInPack> free_{};
  std::array<std::uint8_t, kSeats + 1> bounds_{};
  std::shared_ptr<const LengthDraw> lengths_;  // null unless lengths are predealt
};

}  // namespace tricklet
