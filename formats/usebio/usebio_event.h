// What a results file says of an event beside its boards: how it is scored, and who took part.
#pragma once

#include <string>
#include <vector>

#include <pugixml.hpp>

#include "formats/results/lin_file.h"

namespace tricklet {

/// The words of an event, or of a session or section of it; empty where they are not given.
struct EventWords {
  std::string boardScoring;
  std::string pairwiseScoring;
  std::string scoring;  ///< of the match in a team event, of the boards in a pairs event
  std::string winners;
};

/// The words right inside `element`, found in one pass over its children.
EventWords WordsOf(const pugi::xml_node& element);

/// Each word of `first`, and where it has none that of `second`.
EventWords FirstOf(EventWords first, const EventWords& second);

/// One list of participants.
struct ParticipantList {
  std::vector<std::string> names;  ///< `NamesLine` of each pair
  std::vector<std::string> teams;  ///< a line per team: "1 Hearts"
  bool directions = false;         ///< a pair of the list has one
};

/// A pair's line: "3 NS Ann & Bob".
std::string NamesLine(const pugi::xml_node& pair);

/// Reads a list; its teams only where the event is one of `teams`.
ParticipantList ReadParticipants(const pugi::xml_node& list, bool teams);

/// Puts the lines of `list` after those of `data`. Throws `UsebioRefusal` for more than
/// `kMaxUsebioLines` of a kind.
void AddParticipants(const ParticipantList& list, LinFile& data);

/// Scoring of `data` by the words, or by what is usual in such an event; it becomes a team event
/// for `teams`.
void SetScoring(const EventWords& words, bool teams, LinFile& data);

/// Pairs change direction from board to board. As the event says; if it does not, pairs have one
/// winner when no pair of its lists has a direction.
bool IsOneWinner(const EventWords& words, const LinFile& data, bool directions);

/// The event of a document. Throws `UsebioRefusal` when that has no club or no event, or one of
/// them holds nothing.
pugi::xml_node EventOf(const pugi::xml_document& document);

}  // namespace tricklet
