// One call of an auction, and the list of calls of a board.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/notation.h"

namespace tricklet {

/// A pass, a double, a redouble or a bid; or a call that could not be read, whose text the list of
/// calls keeps.
class Call {
 public:
  static constexpr int kBids = 35;

  constexpr Call() = default;  // a pass
  static constexpr Call Pass() { return Call(kPass); }
  static constexpr Call Double() { return Call(kDouble); }
  static constexpr Call Redouble() { return Call(kRedouble); }
  static constexpr Call Unread() { return Call(kUnread); }
  /// `level` 1..7.
  static constexpr Call Bid(int level, BidStrain strain) {
    return Call(static_cast<std::uint8_t>((level - 1) * kStrains + IndexOf(strain)));
  }

  constexpr bool IsBid() const { return code_ < kBids; }
  constexpr bool IsPass() const { return code_ == kPass; }
  constexpr bool IsDouble() const { return code_ == kDouble; }
  constexpr bool IsRedouble() const { return code_ == kRedouble; }
  constexpr bool IsUnread() const { return code_ == kUnread; }
  /// Of a bid: 0..34, in bidding order.
  constexpr int BidIndex() const { return code_; }
  constexpr int Level() const { return code_ / kStrains + 1; }
  constexpr BidStrain Denomination() const { return static_cast<BidStrain>(code_ % kStrains); }

  /// "Pass", "Dbl", "Rdbl", or level and strain letter(s): "1C" .. "7NT". Empty for a call that was
  /// not read: its list has the text.
  std::string Text() const;

  /// The call that `text` names. Letter case and blanks around it do not matter, and short forms
  /// are taken too: "P", "X", "D", "XX", "R", "1N". Nothing when it names no call.
  static std::optional<Call> FromText(std::string_view text);

  friend constexpr bool operator==(Call, Call) = default;

 private:
  static constexpr std::uint8_t kPass = kBids;
  static constexpr std::uint8_t kDouble = kBids + 1;
  static constexpr std::uint8_t kRedouble = kBids + 2;
  static constexpr std::uint8_t kUnread = kBids + 3;
  constexpr explicit Call(std::uint8_t code) : code_(code) {}
  std::uint8_t code_ = kPass;
};

/// The calls of one auction in order; the first is the dealer's. Holds 100 at the most. A call that
/// could not be read keeps its place and its text.
class CallList {
 public:
  static constexpr int kCapacity = 100;

  constexpr int Count() const { return count_; }
  constexpr bool Empty() const { return count_ == 0; }
  constexpr bool Full() const { return count_ == kCapacity; }
  void Clear();
  /// `text` is that of an unread call, UTF-8 without line ends; any other call has its own. Throws
  /// `Fault` SubscriptOutOfRange when the list is full.
  void Add(Call call, std::string_view text = {});
  /// Takes every call of `other` from its position `first` on, with its text. Throws as `Add`.
  void AddFrom(const CallList& other, int first);
  void RemoveLast();
  /// The text of the call at `index`, 0..Count() - 1; of an unread call the whole of what stood in
  /// its place.
  std::string TextAt(int index) const;
  /// The text of the call at `index`, fit to be shown: an unread one has blanks for its control
  /// characters, and "..." after 16 bytes.
  std::string ShownAt(int index) const;
  constexpr Call operator[](int index) const { return calls_.at(static_cast<std::size_t>(index)); }
  constexpr const Call* begin() const { return calls_.data(); }
  constexpr const Call* end() const { return calls_.data() + count_; }

  friend bool operator==(const CallList& a, const CallList& b);

 private:
  std::array<Call, kCapacity> calls_{};
  int count_ = 0;
  std::vector<std::string> unread_;  // the texts of the unread calls, in their order
};

}  // namespace tricklet
