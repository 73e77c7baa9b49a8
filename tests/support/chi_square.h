// Whether counts are what probabilities say.
#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

namespace tricklet::test {

/// How many standard deviations Pearson's statistic lies above what is expected of it (Wilson and
/// Hilferty's cube-root approximation). `weights` are in proportion to the probabilities; the
/// counts are compared among themselves. Above 4 the counts do not follow the weights; what has no
/// weight must not be counted at all.
inline double ChiSquareDeviation(const std::vector<long>& counts,
                                 const std::vector<double>& weights) {
  double total = 0;
  double weight = 0;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    total += static_cast<double>(counts.at(i));
    weight += weights.at(i);
  }
  double statistic = 0;
  double freedom = -1;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    if (weights.at(i) == 0 && counts.at(i) == 0) continue;
    ++freedom;
    const double expected = total * weights.at(i) / weight;
    const double difference = static_cast<double>(counts.at(i)) - expected;
    statistic += difference * difference / expected;
  }
  const double spread = 2 / (9 * freedom);
  return (std::cbrt(statistic / freedom) - (1 - spread)) / std::sqrt(spread);
}

}  // namespace tricklet::test
