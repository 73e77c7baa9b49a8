#include "generate/random_source.h"

#include <algorithm>
#include <array>

namespace tricklet {
namespace {

/// 256 bits of the system's own: far more than the 96 that number all deals.
std::mt19937_64 SeededBySystem() {
  std::random_device device;
  std::array<std::uint32_t, 8> words{};
  std::generate(words.begin(), words.end(), [&device] { return device(); });
  std::seed_seq seed(words.begin(), words.end());
  return std::mt19937_64(seed);
}

}  // namespace

RandomSource::RandomSource() : engine_(SeededBySystem()) {}

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
    picked = index;  // stands at the end, should rounding have made x as large as the total
    if (sum > x) break;
  }
  return picked;
}

}  // namespace tricklet
