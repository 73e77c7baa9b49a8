// A traveller line without a LIN record, as what is known of its table.
#pragma once

#include <optional>
#include <vector>

#include <pugixml.hpp>

#include "formats/results/table_record.h"
#include "formats/usebio/usebio_outline.h"
#include "formats/usebio/usebio_players.h"

namespace tricklet {

/// What the tables of a board that two teams have played are worth to North-South of each line,
/// empty where that is not known: IMPs, and the 2, 1 or 0 points of a point a board.
struct MatchPoint {
  std::string imps;
  std::string points;
  std::string opponentsPoints;  ///< what East-West have of the two
};

/// One for each line of `board`. The file's own number counts; whose it is follows from the scores,
/// or where they do not lead to it from the line's direction, which is that of the board's team.
std::vector<MatchPoint> PointsOfMatch(const UsebioBoard& board);

/// What the line tells of its table, but neither number nor hands nor players. Points of the line
/// itself are before those of its match.
TableRecord TableOf(const TravellerLine& line, const MatchPoint& match);

}  // namespace tricklet
