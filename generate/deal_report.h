// What the actions of a script write, in the layout of the program dealer.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "conditions/script.h"
#include "generate/deal_run.h"
#include "generate/value_counts.h"

namespace tricklet {

/// Every expression that the actions of a script want for a deal, in their order.
std::vector<ExpressionId> ExpressionsOf(const Script& script);

/// How many deals a run has tried and found, its seed and its time, in four lines.
std::string DealRunText(const DealRunOutcome& outcome, std::uint64_t seed);

class DealReport {
 public:
  /// `name`: of the script, for PBN. `seed`: of the run.
  DealReport(std::shared_ptr<const Script> script, std::string name, std::uint64_t seed,
             std::ostream& out);

  /// Writes what is written for each deal. Its values are those of `ExpressionsOf`.
  void Add(const FoundDeal& deal);
  /// Writes what is written at the end.
  void Finish();

 private:
  /// What an action remembers of the deals.
  struct Gathered {
    double sum = 0;
    std::optional<ValueCounts> frequency;
    std::vector<HandTable> deals;  ///< of `print`
  };

  void Print(const ScriptAction& action, const FoundDeal& deal, const std::int32_t*& value);
  void WritePbn(const HandTable& hands);

  std::shared_ptr<const Script> script_;
  std::string name_;
  std::uint64_t seed_;
  std::ostream& out_;
  std::vector<Gathered> gathered_;
  std::int64_t deals_ = 0;
};

}  // namespace tricklet
