// The cards that one seat holds in one suit, and the text forms of such a holding.
#pragma once

#include <bit>
#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/notation.h"

namespace tricklet {

/// A set of ranks: 13 bits, bit 0 the ace, bit 12 the two.
class Holding {
 public:
  static constexpr std::uint16_t kAllBits = 0x1FFF;

  constexpr Holding() = default;
  static constexpr Holding FromBits(unsigned bits) {
    Holding holding;
    holding.bits_ = static_cast<std::uint16_t>(bits & kAllBits);
    return holding;
  }

  constexpr unsigned Bits() const { return bits_; }
  constexpr bool Has(Rank rank) const { return (bits_ & Bit(rank)) != 0; }
  constexpr void Add(Rank rank) { bits_ = static_cast<std::uint16_t>(bits_ | Bit(rank)); }
  constexpr void Remove(Rank rank) { bits_ = static_cast<std::uint16_t>(bits_ & ~Bit(rank)); }
  constexpr int Count() const { return std::popcount(bits_); }
  constexpr bool Empty() const { return bits_ == 0; }

  friend constexpr bool operator==(Holding, Holding) = default;
  friend constexpr Holding operator|(Holding a, Holding b) {
    return FromBits(static_cast<unsigned>(a.bits_) | b.bits_);
  }
  friend constexpr Holding operator&(Holding a, Holding b) {
    return FromBits(static_cast<unsigned>(a.bits_) & b.bits_);
  }
  friend constexpr Holding operator-(Holding a, Holding b) {
    return FromBits(a.bits_ & ~static_cast<unsigned>(b.bits_));
  }

 private:
  static constexpr unsigned Bit(Rank rank) { return 1U << static_cast<unsigned>(rank); }
  std::uint16_t bits_ = 0;
};

/// The ranks of `text`, each known by the first character of its display text: the ten only by a
/// "1". Order, repeats and characters that are no rank do not matter.
Holding AddSpace(std::string_view text);

/// Holding format: for each rank from the ace down a blank and its display text; a void is empty.
std::string HoldingText(Holding holding);

/// PBN form: the rank letters from the ace down without blanks, the ten as "T"; adds the number of
/// cards to `cardCount`.
std::string PBNFormat(Holding holding, int& cardCount);

/// One card of the pack.
struct Card {
  Suit suit = Suit::Spades;
  Rank rank = Rank::Ace;

  /// 0..51: suit x 13 + rank.
  constexpr int Index() const { return IndexOf(suit) * kRanks + IndexOf(rank); }
  static constexpr Card FromIndex(int index) {
    return {static_cast<Suit>(index / kRanks), static_cast<Rank>(index % kRanks)};
  }
  friend constexpr bool operator==(Card, Card) = default;
};

/// Suit symbol and rank.
std::string CardText(Card card);

}  // namespace tricklet
