// Random numbers: the one source of the program, and the draws made from it.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <span>

namespace tricklet {

/// A stream of uniform numbers. A program has one, seeded once when it starts. The generator is
/// xoshiro256** with a period of 2^256 - 1, written after its authors' description (Blackman and
/// Vigna, "Scrambled linear pseudorandom number generators", 2021); the Mersenne twister of the
/// standard library took a third of the time of a deal.
class RandomSource {
 public:
  /// Seeded by the system: another stream every time.
  RandomSource();
  /// The same seed gives the same stream, on every platform.
  explicit RandomSource(std::uint64_t seed);

  /// Uniform real in [0, 1), a multiple of 2^-53.
  double Rnd() { return static_cast<double>(Bits64() >> 11U) * 0x1p-53; }

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
  std::uint64_t Bits64() {
    const std::uint64_t bits = std::rotl(state_[1] * 5, 7) * 9;
    const std::uint64_t shifted = state_[1] << 17U;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= shifted;
    state_[3] = std::rotl(state_[3], 45);
    return bits;
  }
  std::uint64_t Bits32() { return Bits64() >> 32U; }

  std::array<std::uint64_t, 4> state_{};  // never all zero
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
