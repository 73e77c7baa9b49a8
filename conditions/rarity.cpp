#include "conditions/rarity.h"

#include <cmath>

#include "conditions/dealing.h"
#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::int64_t kEnough = 400;
constexpr std::int64_t kDealsBetweenLooks = 2000;

/// Two digits are known of a sample; more would say what it does not tell.
std::int64_t TwoDigits(double number) {
  const double unit = std::pow(10.0, std::max(0.0, std::floor(std::log10(number)) - 1));
  return static_cast<std::int64_t>(std::llround(number / unit) * std::llround(unit));
}

}  // namespace

Rarity EstimateRarity(const std::shared_ptr<const Script>& script, std::chrono::milliseconds time,
                      const std::atomic<bool>& stop) {
  Rarity rarity;
  if (script->UsesSolver()) return rarity;
  const auto end = std::chrono::steady_clock::now() + time;
  Dealing dealing(script, nullptr, RandomSource(1));
  do {
    const std::int64_t until = dealing.Tried() + kDealsBetweenLooks;
    while (dealing.Tried() < until && rarity.accepted < kEnough) {
      if (dealing.Next(until - dealing.Tried())) ++rarity.accepted;
    }
  } while (rarity.accepted < kEnough && !stop && std::chrono::steady_clock::now() < end);
  rarity.tried = dealing.Tried();
  return rarity;
}

std::string RarityText(const Rarity& rarity) {
  if (rarity.tried == 0) return {};
  if (rarity.accepted == rarity.tried) return "Every deal";
  const double one = static_cast<double>(rarity.tried) /
                     static_cast<double>(std::max<std::int64_t>(rarity.accepted, 1));
  if (rarity.accepted == 0) return "Fewer than 1 deal in " + GroupedText(TwoDigits(one));
  if (one < 10) return "About 1 deal in " + DecimalText(one, 1);
  return "About 1 deal in " + GroupedText(TwoDigits(one));
}

}  // namespace tricklet
