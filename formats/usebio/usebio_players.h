// Who sat at the tables of one session or section of a results file.
#pragma once

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <pugixml.hpp>

#include "formats/usebio/usebio_event.h"
#include "formats/usebio/usebio_line.h"

namespace tricklet {

/// One list of participants, with all that tells who a number is.
struct ListedPlayers {
  ParticipantList list;
  std::vector<std::pair<std::string, std::string>> individuals;  ///< number and name
  std::vector<std::pair<std::string, std::string>> ofTeams;      ///< team and a line of `names`
};

/// Reads a list; its teams only where the event is one of `teams`.
ListedPlayers ReadListedPlayers(const pugi::xml_node& list, bool teams);

/// The two teams of a match, by their numbers as in the list.
struct UsebioMatch {
  std::string team;
  std::string opponents;
};

class UsebioPlayers {
 public:
  /// `pairs` are those of all of `lists`.
  UsebioPlayers(SessionPairs pairs, const std::vector<const ListedPlayers*>& lists);

  const SessionPairs& Pairs() const { return pairs_; }

  /// Who sat there: each player of an individual event by his own number, else by the numbers of
  /// the pairs; in a match, `match` not null, a pair of its teams before one of the same number of
  /// another. For a number that nobody is listed under, the number itself.
  PerSeat<std::string> Of(const TravellerLine& line, const UsebioMatch* match) const;

 private:
  PairPlayers PairOf(const std::string& number, Side side,
                     const std::array<std::string, 2>& teams) const;

  SessionPairs pairs_;
  std::map<std::string, std::string> individuals_;
  std::map<std::string, PairNames> teams_;
};

}  // namespace tricklet
