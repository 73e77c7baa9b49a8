// What is known of a deal before it is dealt, and the deals that agree with it.
#pragma once

#include <optional>

#include "core/board.h"
#include "core/random_source.h"

namespace tricklet {

struct KnownCards {
  /// Cards that a seat is known to have been dealt, those that it has played among them: 0..13 a
  /// seat.
  HandTable hands;
  /// The seat has no card of the suit beside those of `hands`: it has shown out.
  PerSeat<PerSuit<bool>> shownOut;
};

/// Deals all cards that are not known, each deal that agrees with `KnownCards` equally likely.
class Completion {
 public:
  explicit Completion(const KnownCards& known);

  /// Nothing when no deal agrees, or when none was found in `kMostAttempts`.
  std::optional<HandTable> Deal(RandomSource& random) const;

  /// With one hidden hand or two every attempt succeeds: each card that only one of them can hold
  /// is given to it before. With more, attempts that give a seat a suit in which it has shown out
  /// are dealt again.
  static constexpr int kMostAttempts = 100000;

 private:
  bool Agrees(const HandTable& hands) const;

  KnownCards known_;  // with the cards that can be in one hand only
  bool possible_ = true;
  bool restricted_ = false;  // some seat has shown out
};

}  // namespace tricklet
