#include "ui/dialogs/call_keys.h"

#include <string_view>

#include "core/text.h"

namespace tricklet::ui {
namespace {

constexpr std::string_view kStrainKeys = "CDHSN";  // in bidding order
constexpr std::string_view kLevelKeys = "1234567";
constexpr CallKeys::Result kRefused{};
constexpr CallKeys::Result kTaken{true, std::nullopt};

bool IsLevel(char key) {
  return kLevelKeys.find(key) != std::string_view::npos;
}

}  // namespace

void CallKeys::Forget() {
  typed_.clear();
  noTrumpMade_ = false;
}

CallKeys::Result CallKeys::Type(char key) {
  key = ToUpper(key);
  if (noTrumpMade_ && key == 'T') {
    noTrumpMade_ = false;
    return kTaken;
  }
  if (typed_.empty()) return Begin(key);
  if (typed_ == "x") return FinishRedouble(key);
  // A second level corrects the first.
  return IsLevel(key) ? BeginBid(key) : FinishBid(key);
}

CallKeys::Result CallKeys::Begin(char key) {
  switch (key) {
    case 'P':
      return Make(Call::Pass());
    case 'D':
      return Make(Call::Double());
    case 'R':
      return Make(Call::Redouble());
    case 'X':
      if (!entry_.RdbEnabled()) return Make(Call::Double());
      typed_ = "x";
      return kTaken;
    default:
      return IsLevel(key) ? BeginBid(key) : kRefused;
  }
}

CallKeys::Result CallKeys::BeginBid(char level) {
  // While any bid of a level is legal, its no-trump bid is.
  if (!Enabled(Call::Bid(level - '0', BidStrain::NoTrump))) return kRefused;
  typed_ = level;
  noTrumpMade_ = false;
  return kTaken;
}

CallKeys::Result CallKeys::FinishBid(char strain) {
  const auto index = kStrainKeys.find(strain);
  if (index == std::string_view::npos) return kRefused;
  return Make(Call::Bid(typed_.front() - '0', static_cast<BidStrain>(index)));
}

CallKeys::Result CallKeys::FinishRedouble(char key) {
  return key == 'X' ? Make(Call::Redouble()) : kRefused;
}

CallKeys::Result CallKeys::Make(Call call) {
  if (!Enabled(call)) return kRefused;
  Forget();
  noTrumpMade_ = call.IsBid() && call.Denomination() == BidStrain::NoTrump;
  return {true, call};
}

bool CallKeys::Enabled(Call call) const {
  if (call.IsPass()) return entry_.PassEnabled();
  if (call.IsDouble()) return entry_.DblEnabled();
  if (call.IsRedouble()) return entry_.RdbEnabled();
  return entry_.BidEnabled(call.BidIndex());
}

}  // namespace tricklet::ui
