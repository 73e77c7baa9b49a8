// A traveller line of a results file as a line of "LIN.txt".
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "formats/results/pair_names.h"

namespace tricklet {

/// What is read of a traveller line.
class TravellerLine {
 public:
  enum Element {
    LinData,
    Tricks,
    Score,
    Contract,
    PlayedBy,
    Lead,
    NsMatchPoints,
    EwMatchPoints,
    NsCrossImps,
    EwCrossImps,
    NsButler,
    NsPair,
    EwPair,
    Direction,
    EwButler,
    NorthPlayer,
    EastPlayer,
    SouthPlayer,
    WestPlayer,
    Notes,
  };
  static constexpr std::size_t kElements = std::size_t{Notes} + 1;

  /// Takes a child of the line's element, by its name; of several of a name the first counts. False
  /// when its name is none of these.
  bool Take(std::string_view name, pugi::xml_node child);

  /// Empty when the line has none.
  const pugi::xml_node& At(Element element) const { return elements_.at(element); }

  /// The line gives cross-IMPs.
  bool HasCrossImps() const { return At(NsCrossImps) || At(EwCrossImps); }

  /// From now on the line has no LIN record.
  void ForgetLinData() { elements_.at(LinData) = {}; }

 private:
  std::array<pugi::xml_node, kElements> elements_;
};

/// The pairs of a session.
struct SessionPairs {
  PairNames names;
  /// Pairs change direction from board to board, and a line's direction is that of its first pair.
  bool oneWinner = false;
};

/// The numbers of the line's pairs by the side on which they sit; empty where the line has none.
PerSide<std::string> PairNumbersOf(const TravellerLine& line, bool oneWinner);

/// The number with which the element begins, in shortest form; "0" when it begins with none.
std::string NumberText(const pugi::xml_node& element);

/// The line's LIN record, decoded, and after it the scorer's own tags. The first board that it
/// names is `boardNumber`; players that the record lacks are those of the line's pairs. Throws
/// `Fault` FaultNumber::TypeMismatch for a broken percent escape, and `UsebioRefusal` for a text
/// that is too long.
std::string LinLine(const TravellerLine& line, int boardNumber, const SessionPairs& pairs);

}  // namespace tricklet
