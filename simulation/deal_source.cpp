#include "simulation/deal_source.h"

namespace tricklet {

std::optional<HandTable> KnownDeals::Next(std::int64_t tries) {
  for (; tries > 0 && !impossible_; --tries) {
    std::optional<HandTable> deal = completion_.Deal(random_);
    impossible_ = !deal;
    if (!deal) break;
    ++tried_;
    if (!accepts_ || accepts_(*deal)) return deal;
  }
  return std::nullopt;
}

}  // namespace tricklet
