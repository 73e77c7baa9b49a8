#include "simulation/estimate.h"

#include <algorithm>
#include <cmath>

namespace tricklet {
namespace {

/// Of the standard normal distribution, 97.5 %.
constexpr double kQuantile = 1.959964;

Estimate FromSums(double sum, double squares, std::int64_t count) {
  if (count == 0) return {};
  const auto n = static_cast<double>(count);
  Estimate estimate{sum / n, 0};
  if (count < 2) return estimate;
  const double variance = std::max(0.0, (squares - sum * sum / n) / (n - 1));
  estimate.error = kQuantile * std::sqrt(variance / n);
  return estimate;
}

}  // namespace

Estimate Percentage(std::int64_t times, std::int64_t deals) {
  if (deals == 0) return {};
  constexpr double kPercent = 100;
  const double n = static_cast<double>(deals) + kQuantile * kQuantile;
  const double share = (static_cast<double>(times) + kQuantile * kQuantile / 2) / n;
  return {kPercent * static_cast<double>(times) / static_cast<double>(deals),
          kPercent * kQuantile * std::sqrt(share * (1 - share) / n)};
}

void PairedSums::Add(std::span<const double> values) {
  ++count_;
  const std::size_t columns = sums_.size();
  for (std::size_t a = 0; a < columns; ++a) {
    sums_[a] += values[a];
    for (std::size_t b = 0; b <= a; ++b) products_[a * columns + b] += values[a] * values[b];
  }
}

Estimate PairedSums::Mean(std::size_t column) const {
  return FromSums(sums_[column], products_[column * sums_.size() + column], count_);
}

Estimate PairedSums::Difference(std::size_t a, std::size_t b) const {
  const std::size_t columns = sums_.size();
  const double cross = products_[std::max(a, b) * columns + std::min(a, b)];
  const double squares = products_[a * columns + a] + products_[b * columns + b] - 2 * cross;
  return FromSums(sums_[a] - sums_[b], squares, count_);
}

}  // namespace tricklet
