// Where in a results file something stands: in which event, session and section.
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include <pugixml.hpp>

namespace tricklet {

/// The event, the session and the section, the innermost of each; 0 where there is none, else as
/// `UsebioPlaces` counts them.
using UsebioPlace = std::array<int, 3>;

/// The place and all that it lies in: without its section, without its session, and outside all
/// events.
std::array<UsebioPlace, 4> PlacesAround(const UsebioPlace& place);

class UsebioPlaces {
 public:
  struct Found {
    UsebioPlace place{};
    pugi::xml_node match;    ///< between two teams; empty when it is in none
    bool inHandset = false;  ///< it is one of the deals for the event
  };

  /// Looks at what lies around `element`.
  Found Of(const pugi::xml_node& element);

  /// The elements of a place: event, session, section; empty where it has none.
  std::array<pugi::xml_node, 3> ElementsOf(const UsebioPlace& place) const;

  /// What to call each of these places, as far as they differ: "Session 1, Section A", by the
  /// file's own names where it gives them. Empty for a single one; no two names are the same.
  std::vector<std::string> NamesOf(const std::vector<UsebioPlace>& places) const;

 private:
  struct Division {
    pugi::xml_node element;
    int ordinal = 0;  // among those of its name inside its parent, from 1 on
  };

  int NumberOf(const pugi::xml_node& element);
  std::string NameOf(std::size_t level, int number) const;
  std::string NameOf(const UsebioPlace& place, const std::array<bool, 3>& levels,
                     std::map<int, std::string>& known) const;

  std::vector<Division> divisions_;  // a place counts from 1 on
  std::unordered_map<const void*, int> numbers_;
};

}  // namespace tricklet
