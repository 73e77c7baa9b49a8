// Averages over deals with their errors.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace tricklet {

/// An average and half the width of its interval of 95 %, of the normal distribution.
struct Estimate {
  double mean = 0;
  double error = 0;  ///< 0 too where there are fewer than two deals
  friend bool operator==(const Estimate&, const Estimate&) = default;
};

/// How often something came out, in percent, with the error by Agresti and Coull ("Approximate is
/// better than exact for interval estimation of binomial proportions", 1998): something that always
/// came out so far is not yet certain.
Estimate Percentage(std::int64_t times, std::int64_t deals);

/// Values of several columns on the same deals, which are compared deal by deal.
class PairedSums {
 public:
  explicit PairedSums(std::size_t columns) : sums_(columns), products_(columns * columns) {}

  /// A value for each column.
  void Add(std::span<const double> values);
  std::int64_t Count() const { return count_; }
  Estimate Mean(std::size_t column) const;
  /// Of `a` less `b`, with the error of the differences on the same deals.
  Estimate Difference(std::size_t a, std::size_t b) const;

 private:
  std::int64_t count_ = 0;
  std::vector<double> sums_;
  std::vector<double> products_;  // of columns a and b at a * columns + b
};

}  // namespace tricklet
