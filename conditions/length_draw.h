// Suit lengths of four hands at random, where some of them are settled.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "conditions/script.h"
#include "core/random_source.h"

namespace tricklet {

/// Draws the number of cards that each hand gets of each suit beside its predealt cards. A set of
/// numbers is as likely as it is among all deals that hold what is predealt: in proportion to the
/// number of ways in which the free cards can be dealt so.
class LengthDraw {
 public:
  using Lengths = PerSeat<PerSuit<int>>;

  /// No hand has more than 13 predealt cards.
  explicit LengthDraw(const Predealt& predealt);

  /// Whether there is any deal at all.
  bool Possible() const { return !steps_.empty(); }
  /// Only when `Possible`.
  Lengths Draw(RandomSource& random) const;

 private:
  /// How the free cards of one suit fall, and how much room the hands have for later suits then.
  struct Split {
    std::array<std::uint8_t, kSeats> cards{};
    double weight = 0;  ///< ways of this split times ways of the rest
  };
  /// The splits of suit `suit` when the hands have room for so many cards.
  struct Step {
    std::size_t suit = 0;
    std::array<std::uint8_t, kSeats> room{};
    std::vector<Split> splits;
    double weight = 0;
  };
  using Key = std::uint32_t;

  double WeightFrom(std::size_t suit, const std::array<std::uint8_t, kSeats>& room);
  std::vector<Split> SplitsOf(std::size_t suit, const std::array<std::uint8_t, kSeats>& room) const;
  static Key KeyOf(std::size_t suit, const std::array<std::uint8_t, kSeats>& room);
  const Step* Find(std::size_t suit, const std::array<std::uint8_t, kSeats>& room) const;

  std::array<int, kSuits> free_{};
  std::array<std::array<int, kSuits>, kSeats> asked_{};  // -1: open
  std::array<std::uint8_t, kSeats> room_{};
  std::vector<Step> steps_;
  std::vector<std::int32_t> places_;  // of a step by its key; -1 not yet known
};

}  // namespace tricklet
