#include "bench/ratio_reporter.h"

#include <iomanip>
#include <ostream>

namespace tricklet::bench {

void RatioReporter::ReportRuns(const std::vector<Run>& report) {
  for (const Run& run : report) {
    if (run.aggregate_name == "median")
      medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
  }
  ConsoleReporter::ReportRuns(report);
}

void RatioReporter::Finalize() {
  std::ostream& out = GetOutputStream();
  out << "\nRatios of medians to their floors\n" << std::fixed << std::setprecision(2);
  for (const Ratio& ratio : ratios_) {
    const auto figure = medians_.find(ratio.figure);
    const auto floor = medians_.find(ratio.floor);
    if (figure == medians_.end() || floor == medians_.end()) continue;
    out << std::setw(6) << figure->second / floor->second << "  (at most " << ratio.limit << ")  "
        << ratio.figure << " / " << ratio.floor << '\n';
  }
}

}  // namespace tricklet::bench
