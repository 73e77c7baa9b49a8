#include "core/random_source.h"

#include <random>

namespace tricklet {
RandomSource::RandomSource() {
  std::random_device device;
  for (std::uint64_t& word : state_) word = std::uint64_t{device()} << 32U | device();
  state_[0] |= 1U;
}

RandomSource::RandomSource(std::uint64_t seed) {
  // The four words are outputs of SplitMix64, as the authors advise: the finaliser of a counter
  // (Steele, Lea and Flood, "Fast splittable pseudorandom number generators", 2014).
  for (std::uint64_t& word : state_) {
    seed += 0x9E3779B97F4A7C15U;
    word = (seed ^ (seed >> 30U)) * 0xBF58476D1CE4E5B9U;
    word = (word ^ (word >> 27U)) * 0x94D049BB133111EBU;
    word ^= word >> 31U;
  }
}

int WeightedPick(std::span<const double> weights, int low, int high, RandomSource& random) {
  if (high <= low) return low;
  const auto range =
      weights.subspan(static_cast<std::size_t>(low), static_cast<std::size_t>(high - low) + 1);
  double total = 0;
  for (const double weight : range) total += weight;
  const double x = random.Rnd() * total;
  double sum = 0;
  int picked = low;
  for (int i = 0; const double weight : range) {
    const int index = low + i++;
    if (weight <= 0) continue;
    sum += weight;
    picked = index;  // stays at the end if rounding has made x as large as the total
    if (sum > x) break;
  }
  return picked;
}

}  // namespace tricklet
