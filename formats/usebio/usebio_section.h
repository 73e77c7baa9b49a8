// One session or section of a results file while it is being read: its games, scoring and players.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "formats/contents/contents.h"
#include "formats/usebio/line_index.h"
#include "formats/usebio/usebio_games.h"
#include "formats/usebio/usebio_outline.h"
#include "formats/usebio/usebio_players.h"
#include "formats/usebio/usebio_table.h"

namespace tricklet {

/// The parts of a file that cannot be read, as they are found.
class UnreadParts {
 public:
  explicit UnreadParts(const LineIndex& lines) : lines_(lines) {}

  int LineOf(const pugi::xml_node& element) const { return lines_.LineAt(element.offset_debug()); }
  void Add(const pugi::xml_node& element, const std::string& label, const std::string& text,
           const std::string& reason) {
    parts_.push_back({LineOf(element), label, text, reason});
  }
  std::vector<UnreadPart>& All() { return parts_; }

 private:
  const LineIndex& lines_;
  std::vector<UnreadPart> parts_;
};

class UsebioSection {
 public:
  /// `results`: scoring, teams and names, without records.
  UsebioSection(LinFile results, UsebioPlayers players)
      : results_(std::move(results)), players_(std::move(players)) {}

  UsebioGames& Games() { return games_; }

  /// Takes the tables of `board`, which is `game` of `Games()`. `deal`, where it is not null, is
  /// the complete deal that they played, and `match` the teams that met. What cannot be read goes
  /// to `unread`.
  void AddTables(const UsebioBoard& board, std::size_t game, const BoardLabel& label,
                 const HandTable* deal, const UsebioMatch* match, UnreadParts& unread);

  /// All that was found, scored by the points that there are.
  FoundSection Found(std::string name, UnreadParts& unread);

 private:
  struct BoardAt;  // what the tables of a board share

  void AddTable(const TravellerLine& line, const BoardAt& board, const MatchPoint& points);
  bool AddLinTable(const TravellerLine& line, const BoardAt& board, UnreadParts& unread);
  void NotePoints(const TravellerLine& line);
  void AddNote(const TravellerLine& line, std::size_t game);
  void SettleScoring();

  LinFile results_;
  UsebioPlayers players_;
  UsebioGames games_;
  // Points that a line gives.
  bool matchPoints_ = false;
  bool crossImps_ = false;
  bool butler_ = false;
};

}  // namespace tricklet
