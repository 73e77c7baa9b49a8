#include "formats/usebio/usebio_places.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "core/text.h"

namespace tricklet {
namespace {

struct Level {
  std::string_view element;
  const char* name;  // attribute or element that names it
  std::string_view word;
  const char* none;
};

constexpr std::array<Level, 3> kLevels{{
    {"EVENT", "EVENT_DESCRIPTION", "Event", "No event"},
    {"SESSION", "SESSION_ID", "Session", "No session"},
    {"SECTION", "SECTION_ID", "Section", "No section"},
}};

std::optional<std::size_t> LevelOf(const pugi::xml_node& element) {
  const std::string_view name = element.name();
  for (std::size_t level = 0; level < kLevels.size(); ++level) {
    if (kLevels.at(level).element == name) return level;
  }
  return std::nullopt;
}

/// The name that the file gives, made fit to be shown; empty where it gives none.
std::string OwnName(const pugi::xml_node& element, const char* name) {
  constexpr std::size_t kLongest = 60;
  const pugi::xml_attribute attribute = element.attribute(name);
  const char* const text = attribute ? attribute.value() : element.child(name).value();
  return Showable(TrimLines(text), kLongest);
}

/// For each level, the places inside one and the same place of the level above differ in it.
std::array<bool, 3> LevelsThatDiffer(const std::vector<UsebioPlace>& places) {
  std::array<bool, 3> differ{};
  for (std::size_t level = 0; level < differ.size(); ++level) {
    std::map<std::vector<int>, int> first;
    for (const UsebioPlace& place : places) {
      const auto end = place.begin() + static_cast<std::ptrdiff_t>(level);
      const auto known = first.try_emplace({place.begin(), end}, place.at(level)).first;
      differ.at(level) = differ.at(level) || known->second != place.at(level);
    }
  }
  return differ;
}

}  // namespace

std::array<UsebioPlace, 4> PlacesAround(const UsebioPlace& place) {
  const auto& [event, session, section] = place;
  return {{{event, session, section}, {event, session, 0}, {event, 0, 0}, {0, 0, 0}}};
}

UsebioPlaces::Found UsebioPlaces::Of(const pugi::xml_node& element) {
  Found found;
  for (pugi::xml_node around = element.parent(); around; around = around.parent()) {
    const std::string_view name = around.name();
    if (const auto level = LevelOf(around)) {
      if (found.place.at(*level) == 0) found.place.at(*level) = NumberOf(around);
    } else if (name == "MATCH") {
      if (!found.match) found.match = around;
    } else if (name == "HANDSET") {
      found.inHandset = true;
    }
  }
  return found;
}

/// Counts all divisions inside the element's parent when it meets the first of them, so that a
/// parent's children are gone through once.
int UsebioPlaces::NumberOf(const pugi::xml_node& element) {
  if (const auto known = numbers_.find(element.internal_object()); known != numbers_.end()) {
    return known->second;
  }
  std::array<int, 3> counts{};
  for (const pugi::xml_node& child : element.parent().children()) {
    const auto level = LevelOf(child);
    if (!level) continue;
    divisions_.push_back({child, ++counts.at(*level)});
    numbers_.emplace(child.internal_object(), static_cast<int>(divisions_.size()));
  }
  return numbers_.at(element.internal_object());
}

std::array<pugi::xml_node, 3> UsebioPlaces::ElementsOf(const UsebioPlace& place) const {
  std::array<pugi::xml_node, 3> elements;
  for (std::size_t level = 0; level < place.size(); ++level) {
    const int number = place.at(level);
    if (number > 0)
      elements.at(level) = divisions_.at(static_cast<std::size_t>(number) - 1).element;
  }
  return elements;
}

std::string UsebioPlaces::NameOf(std::size_t level, int number) const {
  const auto& [element, name, word, none] = kLevels.at(level);
  if (number == 0) return none;
  const Division& division = divisions_.at(static_cast<std::size_t>(number) - 1);
  std::string own = OwnName(division.element, name);
  if (own.empty()) own = std::to_string(division.ordinal);
  // An event's description stands for itself, and so does "Section A".
  const bool whole = own.size() > word.size() && EqualNoCase(own.substr(0, word.size()), word);
  if (whole || (level == 0 && !NumberFromText(own))) return own;
  return std::string(word) + " " + own;
}

std::string UsebioPlaces::NameOf(const UsebioPlace& place, const std::array<bool, 3>& levels,
                                 std::map<int, std::string>& known) const {
  std::string name;
  for (std::size_t level = 0; level < place.size(); ++level) {
    if (!levels.at(level)) continue;
    const auto [own, isNew] = known.try_emplace(place.at(level));
    if (isNew || place.at(level) == 0) own->second = NameOf(level, place.at(level));
    name += (name.empty() ? "" : ", ") + own->second;
  }
  return name;
}

std::vector<std::string> UsebioPlaces::NamesOf(const std::vector<UsebioPlace>& places) const {
  const std::array<bool, 3> differ = LevelsThatDiffer(places);
  std::map<int, std::string> known;
  std::vector<std::string> names;
  names.reserve(places.size());
  std::map<std::string, int> taken;
  for (const UsebioPlace& place : places) {
    const std::string plain = NameOf(place, differ, known);
    std::string name = plain;
    while (taken.contains(name)) name = plain + " (" + std::to_string(++taken[plain]) + ")";
    taken.emplace(name, 1);
    names.push_back(std::move(name));
  }
  return names;
}

}  // namespace tricklet
