// The tags of PBN games that are read, and the text of their values.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/notation.h"

namespace tricklet {

/// Those up to `Deal` say which game it is.
enum class PbnTag : std::uint8_t {
  Event,
  Site,
  Date,
  Board,
  West,
  North,
  East,
  South,
  Dealer,
  Vulnerable,
  Deal,
  Scoring,
  Declarer,
  Contract,
  Result,
  Score,
  ScoreImp,
  ScoreMp,
  ScorePercentage,
  Room,
  HomeTeam,
  VisitTeam,
  Competition,
  Auction,
  Play,
  OptimumResultTable,
  DoubleDummyTricks,
  ScoreTable,
  TotalScoreTable,
  Note
};
inline constexpr int kPbnTags = IndexOf(PbnTag::Note) + 1;
template <class Value>
using PerPbnTag = EnumArray<PbnTag, Value, kPbnTags>;

/// The tag of this name, in any letter case; nothing for one that is not read.
std::optional<PbnTag> PbnTagOf(std::string_view name);

/// Rows with cells follow the tag.
constexpr bool IsPbnTable(PbnTag tag) {
  return tag == PbnTag::OptimumResultTable || tag == PbnTag::ScoreTable ||
         tag == PbnTag::TotalScoreTable;
}

/// Lines that belong to it follow the tag.
constexpr bool HasPbnSection(PbnTag tag) {
  return tag == PbnTag::Auction || tag == PbnTag::Play || IsPbnTable(tag);
}

/// `value` without its escapes ("\"" and "\\") and the blanks around it.
std::string PbnText(std::string_view value);

/// "?", "-", or nothing at all.
bool IsUnknownPbn(std::string_view value);

}  // namespace tricklet
