// Prints each figure as a ratio to its floor, measured in the same run.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace tricklet::bench {

/// A figure, the floor that it is measured against, and the ratio to stay under.
struct Ratio {
  std::string figure;
  std::string floor;
  double limit;
};

class RatioReporter : public benchmark::ConsoleReporter {
 public:
  explicit RatioReporter(std::vector<Ratio> ratios)
      : ConsoleReporter(OO_Tabular), ratios_(std::move(ratios)) {}

  void ReportRuns(const std::vector<Run>& report) override;
  void Finalize() override;

 private:
  std::vector<Ratio> ratios_;
  std::map<std::string, double> medians_;  // by benchmark name
};

}  // namespace tricklet::bench
