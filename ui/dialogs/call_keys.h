// Calls typed key by key: which keys make a call, and which are refused.
#pragma once

#include <optional>
#include <string>

#include "play/auction_entry.h"

namespace tricklet::ui {

/// Reads calls as they are typed: "1n" and "1nt", "4s", "p", "d" or "x", "r" or "xx", in either
/// letter case. It asks the entry which calls are legal and makes none itself.
class CallKeys {
 public:
  struct Result {
    bool accepted = false;     ///< false: the key is refused, and nothing has changed
    std::optional<Call> call;  ///< to be made now, when the key completes one
  };

  explicit CallKeys(const AuctionEntry& entry) : entry_(entry) {}

  Result Type(char key);

  /// What has been typed of a call that is not complete yet: "4", "x" or nothing.
  const std::string& Typed() const { return typed_; }
  /// Forgets what has been typed; to be called too when a call is made some other way.
  void Forget();

 private:
  Result Begin(char key);
  Result BeginBid(char level);
  Result FinishBid(char strain);
  Result FinishRedouble(char key);
  Result Make(Call call);
  bool Enabled(Call call) const;

  const AuctionEntry& entry_;
  std::string typed_;
  bool noTrumpMade_ = false;  // by its "n": the "t" that may follow belongs to it
};

}  // namespace tricklet::ui
