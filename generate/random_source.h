// Random numbers: the one source of the program, and the draws made from it.
#pragma once

#include <cstdint>
#include <random>
#include <span>

namespace tricklet {

/// A stream of uniform numbers. A program has one, seeded once when it starts.
class RandomSource {
 public:
  /// Seeded by the system: another stream every time.
  RandomSource();
  /// The same seed gives the same stream, on every platform.
  explicit RandomSource(std::uint64_t seed) : engine_(seed) {}

  /// Uniform real in [0, 1), a multiple of 2^-53.
  double Rnd() { return static_cast<double>(engine_() >> 11U) * 0x1p-53; }

  /// Uniform integer in 0..bound - 1; `bound` at least 1. Exactly uniform: the upper half of
  /// 32 random bits times `bound`, where the few lower halves that would make some results more
  /// frequent are drawn again (Lemire, "Fast random integer generation in an interval", 2019).
  std::uint32_t Below(std::uint32_t bound) {
    std::uint64_t product = Bits32() * bound;
    if (static_cast<std::uint32_t>(product) < bound) {
      const std::uint32_t uneven = (0U - bound) % bound;
      while (static_cast<std::uint32_t>(product) < uneven) product = Bits32() * bound;
    }
    return static_cast<std::uint32_t>(product >> 32U);
  }

 private:
  std::uint64_t Bits32() { return engine_() >> 32U; }
  std::mt19937_64 engine_;
};

/// Uniform integer in low..high, both included; `low` not above `high`.
inline int RandomBetween(int low, int high, RandomSource& random) {
  return low + static_cast<int>(random.Below(static_cast<std::uint32_t>(high - low) + 1));
}

/// An index of low..high, each with a probability in proportion to its weight. An index of weight
/// 0 is never drawn; without any weight, and when `high` is not above `low`, the answer is `low`.
/// Weights are not negative; low..high are indices of `weights`.
int WeightedPick(std::span<const double> weights, int low, int high, RandomSource& random);

}  // namespace tricklet
