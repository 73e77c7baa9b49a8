// The command that generates deals.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "cli/context.h"
#include "generate/constraints.h"

namespace tricklet::cli {

/// What is asked of one constrained hand, as typed.
struct HandArguments {
  std::optional<std::string> direction = {};  ///< a seat, "dealer", or "dealer+1" to "dealer+3"
  std::optional<std::string> points = {};     ///< "15-17", or "16" for exactly so many
  std::optional<std::string> lengths = {};    ///< of S, H, D, C: "5-13,0-4,2,0-13"
  std::optional<std::string> type = {};       ///< "balanced", "weak2", "4441" or "preempt"
  std::optional<int> option = {};             ///< of the type: 1 or 2

  bool Any() const { return direction || points || lengths || type || option; }
};

struct GenerateArguments {
  int first = 1;
  int last = 1;
  PerGenHand<HandArguments> hands;    ///< the second is constrained when anything is said of it
  std::optional<std::uint64_t> seed;  ///< the same seed gives the same deals
  bool analyse = false;               ///< computes the double-dummy tables too
};

/// The constraints that the arguments mean; `problem` says so when they cannot be read. They may
/// still contradict each other, which `CheckConstraints` tells.
Constraints ReadConstraints(const GenerateArguments& arguments,
                            std::optional<std::string>& problem);

/// Fills boards with random deals. Arguments that cannot be read are wrong usage; constraints that
/// contradict each other are refused.
ExitCode GenerateBoards(const Context& context, const GenerateArguments& arguments);

}  // namespace tricklet::cli
