#include "conditions/deal_plan.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "conditions/evaluator.h"
#include "conditions/expression_builder.h"
#include "conditions/shuffle.h"
#include "conditions/weak_condition.h"

namespace tricklet {
namespace {

using SeatSet = WeakCondition::SeatSet;

constexpr int kSample = 500;    // deals on which tests are tried out
constexpr int kDeepPlan = 100;  // tests are hardly deeper than what they are made of

SeatSet SetOf(Seat seat) {
  return static_cast<SeatSet>(1U << static_cast<unsigned>(seat));
}

/// The parts that all have to hold for an expression to hold.
std::vector<ExpressionId> PartsOf(const ScriptContent& content, ExpressionId id) {
  std::vector<ExpressionId> parts;
  std::vector<ExpressionId> open{id};
  while (!open.empty()) {
    const ExpressionId next = open.back();
    open.pop_back();
    const Node& node = content.nodes[static_cast<std::size_t>(next)];
    if (node.op == Op::And) {
      open.push_back(node.second);
      open.push_back(node.first);
    } else if (node.op != Op::Number || node.value == 0) {
      if (std::ranges::find(parts, next) == parts.end()) parts.push_back(next);
    }
  }
  return parts;
}

double OwnCost(Op op) {
  constexpr double kStrength = 50;
  constexpr double kSolved = 1e8;
  if (op == Op::Cccc) return kStrength;
  if (op == Op::Tricks) return kSolved;
  return op == Op::Count || op == Op::Shape ? 3 : 1;
}

/// About how long each node takes; what several use is counted each time.
std::vector<double> CostsOf(const ScriptContent& content) {
  std::vector<double> costs;
  costs.reserve(content.nodes.size());
  for (const Node& node : content.nodes) {
    double cost = OwnCost(node.op);
    for (const ExpressionId operand : {node.first, node.second, node.third}) {
      if (operand != kNoExpression) cost += costs[static_cast<std::size_t>(operand)];
    }
    costs.push_back(std::min(cost, 1e12));
  }
  return costs;
}

int DepthOf(const std::vector<Node>& nodes) {
  std::vector<int> depths;
  depths.reserve(nodes.size());
  for (const Node& node : nodes) {
    int depth = 0;
    for (const ExpressionId operand : {node.first, node.second, node.third}) {
      if (operand != kNoExpression) {
        depth = std::max(depth, depths[static_cast<std::size_t>(operand)] + 1);
      }
    }
    depths.push_back(depth);
  }
  return depths.empty() ? 0 : std::ranges::max(depths);
}

/// Deals without regard to the condition, for trying tests out.
std::vector<DealBits> Sample(const Predealt& predealt) {
  RandomSource random(1);
  Shuffle shuffle(predealt, kAllSeats);
  std::vector<DealBits> deals;
  deals.reserve(kSample);
  for (int i = 0; i < kSample; ++i) {
    shuffle.Deal(random);
    deals.push_back(shuffle.Current());
  }
  return deals;
}

class Planner {
 public:
  explicit Planner(const Script& script)
      : content_(script.Content()),
        condition_(script.Condition()),
        handByHand_(!content_.predealt.AnyLength()),
        sample_(Sample(content_.predealt)) {}

  DealPlan Plan() {
    BuildTests();
    DealPlan plan;
    plan.script = std::make_shared<const Script>(content_);
    Evaluator evaluator(plan.script, nullptr, random_);
    plan.seats = ChooseSeats(evaluator);
    std::vector<ExpressionId> tested;
    SeatSet seats = 0;
    for (std::size_t place = 0; place < kSeats; ++place) {
      seats |= SetOf(plan.seats.at(place));
      const bool last = place + 1 == kSeats;
      if (!last && !handByHand_) continue;
      auto& tests = plan.tests.at(place);
      tests = PartsOf(content_, last ? condition_ : weak_.at(seats));
      std::erase_if(tests,
                    [&](ExpressionId id) { return std::ranges::find(tested, id) != tested.end(); });
      tested.insert(tested.end(), tests.begin(), tests.end());
      Sort(evaluator, tests);
    }
    return plan;
  }

 private:
  void BuildTests() {
    ExpressionBuilder builder(content_);
    builder.TakeOver();
    WeakCondition weak(content_, builder);
    for (SeatSet seats = 1; seats < WeakCondition::kAll; ++seats) {
      weak_.at(seats) = weak.Of(condition_, seats);
    }
    weak_.at(WeakCondition::kAll) = condition_;
    costs_ = CostsOf(content_);
  }

  double Passing(Evaluator& evaluator, ExpressionId test) const {
    int passing = 0;
    for (const DealBits& deal : sample_) {
      evaluator.Begin(deal);
      passing += evaluator.Value(test) != 0 ? 1 : 0;
    }
    return static_cast<double>(passing) / kSample;
  }

  /// First the hand that rules most deals out, then what does so together with it, and so on.
  std::array<Seat, kSeats> ChooseSeats(Evaluator& evaluator) const {
    std::array<Seat, kSeats> seats = kAllSeats;
    if (!handByHand_) return seats;
    SeatSet dealt = 0;
    for (std::size_t place = 0; place + 1 < kSeats; ++place) {
      double best = 2;
      std::size_t chosen = place;
      for (std::size_t i = place; place + 2 < kSeats && i < kSeats; ++i) {
        const auto with = static_cast<SeatSet>(dealt | SetOf(seats.at(i)));
        const double passing = Passing(evaluator, weak_.at(with));
        if (passing >= best) continue;
        best = passing;
        chosen = i;
      }
      std::swap(seats.at(place), seats.at(chosen));
      dealt |= SetOf(seats.at(place));
    }
    return seats;
  }

  /// Cheap tests that rule much out come first.
  void Sort(Evaluator& evaluator, std::vector<ExpressionId>& tests) const {
    constexpr std::size_t kMany = 200;
    if (tests.size() > kMany) return;
    std::vector<std::pair<double, ExpressionId>> ranked;
    ranked.reserve(tests.size());
    for (const ExpressionId test : tests) {
      const double cost = costs_[static_cast<std::size_t>(test)];
      const double passing = cost < OwnCost(Op::Tricks) ? Passing(evaluator, test) : 1;
      ranked.emplace_back(cost / (1.001 - passing), test);
    }
    std::ranges::stable_sort(ranked,
                             [](const auto& a, const auto& b) { return a.first < b.first; });
    for (std::size_t i = 0; i < tests.size(); ++i) tests[i] = ranked[i].second;
  }

  ScriptContent content_;
  ExpressionId condition_;
  bool handByHand_;
  std::vector<DealBits> sample_;
  std::array<ExpressionId, WeakCondition::kAll + 1> weak_{};
  std::vector<double> costs_;
  RandomSource random_{1};
};

}  // namespace

DealPlan PlanDeals(const std::shared_ptr<const Script>& script) {
  DealPlan plan{.script = script, .seats = kAllSeats};
  const ExpressionId condition = script->Condition();
  if (condition == kNoExpression) return plan;
  // Scripts of this size or depth are nobody's, and an evaluator works through deep expressions
  // from below, where hands may be missing yet.
  constexpr std::size_t kManyNodes = 20000;
  const auto& nodes = script->Content().nodes;
  const bool random =
      std::ranges::any_of(nodes, [](const Node& node) { return node.op == Op::Rnd; });
  if (random || nodes.size() > kManyNodes || DepthOf(nodes) > kDeepPlan) {
    plan.tests.back() = {condition};
    return plan;
  }
  return Planner(*script).Plan();
}

}  // namespace tricklet
