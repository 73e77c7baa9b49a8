// The words of the language of deal conditions.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/notation.h"

namespace tricklet {

enum class WordKind : std::uint8_t {
  Statement,  ///< "produce"
  Action,     ///< "printall"
  Function,   ///< "hcp"
  Suit,       ///< "spades", a function too: "spades(north)"
  Seat,       ///< "north"
  Operator,   ///< "and"
  Value       ///< "all"
};

/// What a word says, whichever of its spellings is used.
enum class WordCode : std::uint8_t {
  Produce,
  Generate,
  Seed,
  Dealer,
  Vulnerable,
  Predeal,
  PointCount,
  AltCount,
  Condition,
  Action,
  PrintAll,
  Print,
  PrintEW,
  PrintPBN,
  PrintCompact,
  PrintOneLine,
  PrintEs,
  Average,
  Frequency,
  Count,  ///< something that is counted card by card or suit by suit; `value` is its `CountKind`
  Cccc,
  Shape,
  HasCard,
  Tricks,
  Score,
  Imps,
  Rnd,
  Suit,  ///< `value` is its `Suit`
  NoTrump,
  Seat,  ///< `value` is its `Seat`
  And,
  Or,
  Not,
  Any,
  VulnerableSides,  ///< `value` is its `Vulnerability`
  Vul,
  NonVul
};

/// What functions of a hand, or of one suit of it, count. The ten counts that `altcount` changes
/// come first, under their numbers.
enum class CountKind : std::uint8_t {
  Tens,
  Jacks,
  Queens,
  Kings,
  Aces,
  Top2,
  Top3,
  Top4,
  Top5,
  C13,
  Hcp,
  Controls,
  Losers,
  Quality
};
inline constexpr int kAltCounts = 10;
inline constexpr int kCounts = 14;

struct Word {
  std::string_view text;
  WordKind kind;
  std::string_view meaning;  ///< a line for the person who writes
  WordCode code;
  int value = 0;
  /// Worth offering to somebody who types: not the singular, plural or capitals of another.
  bool offered = true;
};

/// All words, sorted. "seed" is one, and yet a name wherever no number follows it.
std::span<const Word> Vocabulary();

/// The word spelt `text`, null when there is none. Capitals count.
const Word* FindWord(std::string_view text);

/// "spades", "north": as the program's own texts spell them.
std::string_view WordFor(Suit suit);
std::string_view WordFor(Seat seat);

}  // namespace tricklet
