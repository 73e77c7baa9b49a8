#include "simulation/contract_tally.h"

#include <algorithm>
#include <cmath>

#include "core/comparison.h"
#include "core/text.h"

namespace tricklet {
namespace {

enum Column : std::size_t { kTricks, kScore, kOtherTricks, kOtherScore, kImps, kMatchpoints };
constexpr std::size_t kColumns = 6;

SolverPosition LeadPosition(const SimulatedContract& contract, const HandTable& deal) {
  return {contract.strain, SeatAfter(contract.declarer), {}, deal};
}

/// Declarer's tricks, when the hand on lead plays its best card; nothing without an answer that can
/// be.
std::optional<int> DeclarerTricks(const CardScores& leads) {
  int most = -1;
  for (const CardScore& lead : leads) most = std::max(most, lead.tricks);
  if (most < 0 || most > kCardsInHand) return std::nullopt;
  return kCardsInHand - most;
}

std::int64_t AtLeast(const TrickCounts& counts, int tricks) {
  std::int64_t deals = 0;
  for (std::size_t i = static_cast<std::size_t>(tricks); i < counts.size(); ++i) {
    deals += counts.at(i);
  }
  return deals;
}

}  // namespace

std::string ComparisonText(const ContractTable& table) {
  if (!table.comparison || !table.second || table.deals == 0) return {};
  const Estimate& imps = table.comparison->imps;
  const std::string first = ContractName(table.first.contract);
  const std::string second = ContractName(table.second->contract);
  const std::string error = " \u00B1 " + DecimalText(imps.error, 1) + " IMP";
  if (std::abs(imps.mean) <= imps.error) {
    return first + " and " + second + " are level: " + DecimalText(imps.mean, 1) + error;
  }
  const std::string by = " by " + DecimalText(std::abs(imps.mean), 1) + error;
  return imps.mean > 0 ? first + " beats " + second + by : second + " beats " + first + by;
}

ContractTally::ContractTally(const SimulatedContract& first,
                             const std::optional<SimulatedContract>& second,
                             Vulnerability vulnerability)
    : first_(first),
      second_(second),
      vulnerability_(vulnerability),
      twoPositions_(second &&
                    (second->strain != first.strain || second->declarer != first.declarer)),
      firstScores_(ScoresOf(first, vulnerability)),
      sums_(kColumns) {
  if (!second) return;
  secondScores_ = ScoresOf(*second, vulnerability);
  if (SideOf(second->declarer) == SideOf(first.declarer)) return;
  for (int& score : secondScores_) score = -score;
}

void ContractTally::AppendPositions(const HandTable& deal,
                                    std::vector<SolverPosition>& positions) const {
  positions.push_back(LeadPosition(first_, deal));
  if (second_ && twoPositions_) positions.push_back(LeadPosition(*second_, deal));
}

bool ContractTally::Add(std::span<const CardScores> answers) {
  const auto tricks = DeclarerTricks(answers.front());
  const auto other = DeclarerTricks(answers.back());
  if (!tricks || !other) return false;
  const auto at = static_cast<std::size_t>(*tricks);
  const auto otherAt = static_cast<std::size_t>(*other);
  ++firstCounts_.at(at);
  ++secondCounts_.at(otherAt);
  const int difference = firstScores_.at(at) - secondScores_.at(otherAt);
  constexpr double kHalf = 50;
  const double matchpoints = difference > 0 ? 2 * kHalf : difference == 0 ? kHalf : 0;
  sums_.Add(std::array<double, kColumns>{
      static_cast<double>(*tricks), static_cast<double>(firstScores_.at(at)),
      static_cast<double>(*other), static_cast<double>(secondScores_.at(otherAt)),
      static_cast<double>(ToImps(difference)), matchpoints});
  return true;
}

bool ContractTally::Precise() const {
  const std::int64_t deals = sums_.Count();
  const auto precise = [&](std::size_t column, const SimulatedContract& contract,
                           const TrickCounts& counts) {
    return sums_.Mean(column).error <= kTricksError &&
           Percentage(AtLeast(counts, contract.TricksNeeded()), deals).error <= kPercentError;
  };
  if (!precise(kTricks, first_, firstCounts_)) return false;
  if (!second_) return true;
  return precise(kOtherTricks, *second_, secondCounts_) && sums_.Mean(kImps).error <= kImpsError &&
         sums_.Mean(kMatchpoints).error <= kPercentError;
}

ContractFigures ContractTally::FiguresOf(const SimulatedContract& contract,
                                         const TrickCounts& counts, std::size_t column) const {
  const auto share = [&](int tricks) { return Percentage(AtLeast(counts, tricks), sums_.Count()); };
  ContractFigures figures;
  figures.contract = contract;
  figures.declarerTricks = counts;
  figures.tricks = sums_.Mean(column);
  figures.makes = share(contract.TricksNeeded());
  figures.game = share(kBook + GameLevel(contract.strain));
  figures.slam = share(kBook + kSmallSlam);
  figures.grandSlam = share(kCardsInHand);
  figures.score = sums_.Mean(column + 1);
  return figures;
}

ContractComparison ContractTally::Comparison() const {
  return {sums_.Mean(kImps), sums_.Mean(kMatchpoints), sums_.Difference(kScore, kOtherScore)};
}

ContractTable ContractTally::Table() const {
  ContractTable table;
  table.vulnerability = vulnerability_;
  table.deals = sums_.Count();
  table.first = FiguresOf(first_, firstCounts_, kTricks);
  if (!second_) return table;
  table.second = FiguresOf(*second_, secondCounts_, kOtherTricks);
  // The score of an opponent's contract is the opponent's.
  if (SideOf(second_->declarer) != SideOf(first_.declarer)) {
    table.second->score.mean = -table.second->score.mean;
  }
  table.comparison = Comparison();
  return table;
}

}  // namespace tricklet
