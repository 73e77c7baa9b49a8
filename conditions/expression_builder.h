// Puts nodes into the list of a script, each different one once.
#pragma once

#include <array>
#include <optional>
#include <unordered_map>

#include "conditions/script.h"
#include "conditions/vocabulary.h"

namespace tricklet {

class ExpressionBuilder {
 public:
  explicit ExpressionBuilder(ScriptContent& content) : content_(content) {}

  /// Takes over the nodes that the script has already. To be called before anything is added.
  void TakeOver();
  /// The node; one that is equal to an earlier one is that. What can be computed at once is a
  /// number.
  ExpressionId Add(const Node& node);
  ExpressionId Number(std::int32_t value) { return Add({.op = Op::Number, .value = value}); }
  /// The number of the set, which is put into the script's list.
  std::int32_t AddShape(const ShapeSet& set);

  /// Whether evaluating the expression takes random numbers: it has another value each time.
  bool IsRandom(ExpressionId id) const { return random_[static_cast<std::size_t>(id)]; }
  /// How many steps an evaluation of random parts takes at the most; 10^9 and more are equal.
  std::int64_t RandomSteps(ExpressionId id) const { return steps_[static_cast<std::size_t>(id)]; }

 private:
  struct Hash {
    std::size_t operator()(const Node& node) const;
  };
  std::optional<std::int32_t> Folded(const Node& node) const;
  void Append(const Node& node);

  ScriptContent& content_;
  std::unordered_map<Node, ExpressionId, Hash> known_;
  std::unordered_map<ShapeSet, std::int32_t> shapes_;
  std::vector<bool> random_;
  std::vector<std::int64_t> steps_;
};

}  // namespace tricklet
