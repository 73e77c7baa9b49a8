// Where the deals of a simulation come from.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "core/board.h"
#include "core/random_source.h"
#include "simulation/known_cards.h"

namespace tricklet {

class DealSource {
 public:
  DealSource() = default;
  DealSource(const DealSource&) = delete;
  DealSource& operator=(const DealSource&) = delete;
  virtual ~DealSource() = default;

  /// The next complete deal; nothing when none was found among `tries` deals.
  virtual std::optional<HandTable> Next(std::int64_t tries) = 0;
  /// Deals dealt so far, the ones that were not taken among them.
  virtual std::int64_t Tried() const = 0;
  /// No deal can come: those known cards contradict each other.
  virtual bool Impossible() const { return false; }
};

/// Deals that agree with what is known and are accepted, each equally likely.
class KnownDeals : public DealSource {
 public:
  /// Without `accepts` every deal is taken.
  KnownDeals(const KnownCards& known, RandomSource random,
             std::function<bool(const HandTable&)> accepts = {})
      : completion_(known), random_(random), accepts_(std::move(accepts)) {}

  std::optional<HandTable> Next(std::int64_t tries) override;
  std::int64_t Tried() const override { return tried_; }
  bool Impossible() const override { return impossible_; }

 private:
  Completion completion_;
  RandomSource random_;
  std::function<bool(const HandTable&)> accepts_;
  std::int64_t tried_ = 0;
  bool impossible_ = false;
};

}  // namespace tricklet
