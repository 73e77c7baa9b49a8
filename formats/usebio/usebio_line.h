// A traveller line of a results file as a line of "LIN.txt".
#pragma once

#include <array>
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
    NsButler,
    NsPair,
    EwPair,
  };

  /// Takes a child of the line's element, by its name; of several of a name the first counts. False
  /// when its name is none of these.
  bool Take(std::string_view name, pugi::xml_node child);

  /// Empty when the line has none.
  const pugi::xml_node& At(Element element) const { return elements_.at(element); }

 private:
  std::array<pugi::xml_node, EwPair + 1> elements_;
};

/// The line's LIN record, decoded, with the scorer's own tags behind it. The first board that it
/// names is `boardNumber`; players that the record lacks are those of the line's pairs. Throws
/// `Fault` for a percent escape that is cut short, and `UsebioRefusal`.
std::string LinLine(const TravellerLine& line, int boardNumber, const PairNames& pairs);

}  // namespace tricklet
