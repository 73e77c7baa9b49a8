#include "conditions/evaluator.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "conditions/arithmetic.h"
#include "conditions/cccc.h"
#include "core/comparison.h"
#include "core/fault.h"
#include "core/scoring.h"

namespace tricklet {
namespace {

/// The scale of the Laws as dealer has it: what is between two scores counts as the one farther
/// from zero, and 420 points and 1200 points are one IMP more than in the Laws.
int ImpsOf(int difference) {
  constexpr int kFarOff = 10000;  // far beyond the scale
  const int bounded = std::clamp(difference, -kFarOff, kFarOff);
  const int points = (std::abs(bounded) + 9) / 10 * 10;
  const bool more = points == 420 || (points >= 1200 && points < 1300);
  const int imps = ToImps(points) + (more ? 1 : 0);
  return difference < 0 ? -imps : imps;
}

constexpr int kDeepest = 500;  // calls that nest; each takes some 100 bytes

}  // namespace

Evaluator::Evaluator(std::shared_ptr<const Script> script, Solver* solver, RandomSource& random)
    : script_(std::move(script)), solver_(solver), random_(&random) {
  const auto& nodes = script_->Content().nodes;
  known_.resize(nodes.size());
  kept_.resize(nodes.size());
  std::vector<int> uses(nodes.size());
  std::vector<int> depth(nodes.size());
  std::vector<bool> randomly(nodes.size());
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    randomly[i] = nodes[i].op == Op::Rnd;
    for (const ExpressionId id : {nodes[i].first, nodes[i].second, nodes[i].third}) {
      if (id == kNoExpression) continue;
      const auto operand = static_cast<std::size_t>(id);
      ++uses[operand];
      depth[i] = std::max(depth[i], depth[operand] + 1);
      randomly[i] = randomly[i] || randomly[operand];
    }
    if (depth[i] == kDeepest && !randomly[i]) {
      steps_.push_back(static_cast<ExpressionId>(i));
      kept_[i] = true;
      depth[i] = 0;
    }
  }
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (uses[i] > 1 && OperandsOf(nodes[i].op) > 0 && !randomly[i]) kept_[i] = true;
  }
}

bool Evaluator::Accepts(const HandTable& hands) {
  const ExpressionId condition = script_->Condition();
  return condition == kNoExpression || Value(condition, hands) != 0;
}

int Evaluator::Value(ExpressionId expression, const HandTable& hands) {
  own_ = BitsOf(hands);
  Begin(own_);
  return Value(expression);
}

void Evaluator::Begin(const DealBits& deal) {
  deal_ = &deal;
  if (++dealNumber_ == 0) {
    std::ranges::fill(known_, Known{});
    dealNumber_ = 1;
  }
  tricks_.fill(std::nullopt);
}

int Evaluator::Value(ExpressionId expression) {
  for (const ExpressionId step : steps_) {
    if (step >= expression) break;
    ValueOf(step);
  }
  return ValueOf(expression);
}

int Evaluator::ValueOf(ExpressionId id) {
  const auto index = static_cast<std::size_t>(id);
  const Node& node = script_->Content().nodes[index];
  if (!kept_[index]) return Compute(node);
  if (known_[index].deal != dealNumber_) {
    const int value = Compute(node);
    known_[index] = {dealNumber_, value};
  }
  return known_[index].value;
}

int Evaluator::Compute(const Node& node) {
  const auto truth = [](bool value) { return value ? 1 : 0; };
  switch (node.op) {
    case Op::Number:
      return node.value;
    case Op::Count:
    case Op::SuitCount:
      return CountOf(node);
    case Op::Length:
      return LengthOf(node.seat, static_cast<std::size_t>(node.suit));
    case Op::Shape:
      return ShapeOf(node);
    case Op::HasCard:
      return Hand(node.seat)[static_cast<std::size_t>(node.suit)] >>
                 static_cast<unsigned>(node.value) &
             1U;
    case Op::Cccc: {
      PerSuit<Holding> hand;
      for (const Suit suit : kAllSuits) {
        hand[suit] = Holding::FromBits(Hand(node.seat)[static_cast<std::size_t>(suit)]);
      }
      return HandStrength(hand);
    }
    case Op::Tricks:
      return TricksOf(node);
    case Op::Score:
      return ScoreOf(node);
    case Op::Imps:
      return ImpsOf(Operand(node.first));
    case Op::Rnd:
      return RandomBelow(Operand(node.first));
    case Op::Not:
      return truth(Operand(node.first) == 0);
    case Op::Minus:
      return Negated(Operand(node.first));
    case Op::And:
      return truth(Operand(node.first) != 0 && Operand(node.second) != 0);
    case Op::Or:
      return truth(Operand(node.first) != 0 || Operand(node.second) != 0);
    case Op::Choice:
      return Operand(Operand(node.first) != 0 ? node.second : node.third);
    default: {
      const int first = Operand(node.first);  // rnd on both sides: the left one draws first
      return Computed(node.op, first, Operand(node.second));
    }
  }
}

int Evaluator::CountOf(const Node& node) const {
  const CountTable& table = script_->Content().counts[static_cast<std::size_t>(node.value)];
  const HandBits& hand = Hand(node.seat);
  const auto inSuit = [&](std::size_t suit) {
    return static_cast<std::uint32_t>(table.values[hand[suit] & table.relevant]);
  };
  if (node.op == Op::SuitCount) {
    return static_cast<int>(inSuit(static_cast<std::size_t>(node.suit)));
  }
  return static_cast<int>(inSuit(0) + inSuit(1) + inSuit(2) + inSuit(3));
}

int Evaluator::LengthOf(Seat seat, std::size_t suit) const {
  return std::popcount(Hand(seat)[suit]);
}

int Evaluator::ShapeOf(const Node& node) const {
  const ShapeSet& set = script_->Content().shapes[static_cast<std::size_t>(node.value)];
  const std::size_t index =
      ShapeIndex(LengthOf(node.seat, 0), LengthOf(node.seat, 1), LengthOf(node.seat, 2));
  return set[index] ? 1 : 0;
}

int Evaluator::ScoreOf(const Node& node) {
  const bool vulnerable = node.value % 2 != 0;
  const auto strain = static_cast<Strain>(node.value / 2 % kStrains);
  const int level = node.value / 2 / kStrains;
  constexpr int kFarOff = 1000;  // tricks: more make no sense, and their score would not fit
  const int tricks = std::clamp(Operand(node.first), -kFarOff, kFarOff);
  return ScoreContract(vulnerable ? Vulnerability::All : Vulnerability::None, level, strain,
                       Doubling::Undoubled, tricks - kBook - level, Seat::North);
}

int Evaluator::RandomBelow(int bound) {
  return bound > 0 ? static_cast<int>(random_->Below(static_cast<std::uint32_t>(bound))) : 0;
}

int Evaluator::TricksOf(const Node& node) {
  const int index = IndexOf(node.seat) * kStrains + node.value;
  auto& tricks = tricks_.at(static_cast<std::size_t>(index));
  if (!tricks) tricks = SolveTricks(node.seat, static_cast<Strain>(node.value));
  return *tricks;
}

/// By the best lead against this one contract: a whole table takes a dozen times as long.
int Evaluator::SolveTricks(Seat declarer, Strain strain) {
  if (solver_ == nullptr) throw Fault(FaultNumber::Unexpected, "There is no solver for tricks.");
  const std::array positions{SolverPosition{strain, SeatAfter(declarer), {}, HandsOf(*deal_)}};
  std::array<std::vector<CardScore>, 1> leads;
  solver_->SolveCardsOfAll(positions, CardsWanted::OneBest, leads);
  int most = -1;
  for (const CardScore& lead : leads.front()) most = std::max(most, lead.tricks);
  if (most < 0) throw Fault(FaultNumber::Unexpected, "The double-dummy solver gave no answer.");
  return kCardsInHand - most;
}

}  // namespace tricklet
