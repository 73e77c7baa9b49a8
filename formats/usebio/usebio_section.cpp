#include "formats/usebio/usebio_section.h"

#include "core/fault.h"
#include "core/text.h"
#include "formats/usebio/usebio_limits.h"
#include "formats/usebio/usebio_reader.h"
#include "formats/usebio/usebio_text.h"

namespace tricklet {
namespace {

using Line = TravellerLine;

constexpr const char* kPointABoard = "PAB";

/// The element gives a number other than 0.
bool IsOtherThanZero(const pugi::xml_node& element) {
  return element && NumberText(element) != "0";
}

}  // namespace

struct UsebioSection::BoardAt {
  std::size_t game;
  const BoardLabel& label;
  const HandTable* deal;
  const UsebioMatch* match;
};

void UsebioSection::AddTables(const UsebioBoard& board, std::size_t game, const BoardLabel& label,
                              const HandTable* deal, const UsebioMatch* match,
                              UnreadParts& unread) {
  const BoardAt at{game, label, deal, match};
  std::vector<MatchPoint> points(board.lines.size());
  for (std::size_t table = 0; table < board.lines.size(); ++table) {
    const TravellerLine& line = board.lines[table];
    try {
      if (match != nullptr && table == 0) points = PointsOfMatch(board);
      NotePoints(line);
      if (!AddLinTable(line, at, unread)) AddTable(line, at, points[table]);
      AddNote(line, game);
    } catch (const UsebioRefusal&) {
      unread.Add(board.element, label.text, "", "a text that is too long");
    }
  }
}

/// False when the line has no LIN record that can be read.
bool UsebioSection::AddLinTable(const TravellerLine& line, const BoardAt& board,
                                UnreadParts& unread) {
  const pugi::xml_node& data = line.At(Line::LinData);
  if (ElementText(data).View().empty()) return false;
  try {
    games_.AddLinTable(board.game, LinLine(line, board.label.number, players_.Pairs()));
    return true;
  } catch (const Fault& fault) {
    unread.Add(data, board.label.text, Showable(TextOf(data)), fault.Description());
    return false;
  }
}

void UsebioSection::AddTable(const TravellerLine& line, const BoardAt& board,
                             const MatchPoint& points) {
  TableRecord table = TableOf(line, points);
  table.boardNumber = board.label.number;
  table.players = players_.Of(line, board.match);
  if (board.deal != nullptr) table.hands = *board.deal;
  if (results_.boardScoringMethod == kPointABoard && table.nsMatchPoints.empty()) {
    table.nsMatchPoints = points.points;
    table.ewMatchPoints = points.opponentsPoints;
  }
  games_.AddTable(board.game, LinLineOf(table), board.deal);
}

void UsebioSection::NotePoints(const TravellerLine& line) {
  matchPoints_ = matchPoints_ || IsOtherThanZero(line.At(Line::NsMatchPoints)) ||
                 IsOtherThanZero(line.At(Line::EwMatchPoints));
  crossImps_ = crossImps_ || line.HasCrossImps();
  butler_ = butler_ || line.At(Line::NsButler) || line.At(Line::EwButler);
}

/// "3 v 4: Adjusted score".
void UsebioSection::AddNote(const TravellerLine& line, std::size_t game) {
  const std::string note = ShowableLines(TextOf(line.At(Line::Notes)));
  if (note.empty()) return;
  const PerSide<std::string> pairs = PairNumbersOf(line, players_.Pairs().oneWinner);
  const std::string& first = pairs[Side::NorthSouth];
  const std::string& second = pairs[Side::EastWest];
  const bool known = !first.empty() && !second.empty();
  games_.AddNote(game, (known ? Showable(first + " v " + second) + ": " : "") + note);
}

/// The kind of points that there are decides what the event's word leaves open, or gets wrong.
void UsebioSection::SettleScoring() {
  std::string& method = results_.boardScoringMethod;
  std::string& abbreviation = results_.boardScoringAbb;
  const bool imps = crossImps_ || butler_;
  const char* const kind = crossImps_ ? kCrossImps : kButlerImps;
  if (method == kPointABoard) {
    // Two tables that score 2, 1 or 0 points are a board of match points.
    method = kMatchPoints;
  } else if (method == kMatchPoints && imps && !matchPoints_) {
    method = kind;
    abbreviation = GetAbbreviations(kind);
  } else if (imps) {
    if (method != kMatchPoints) abbreviation = GetAbbreviations(kind);
  } else if (matchPoints_ && !results_.teamEvent && GetAbbreviations(method) == method) {
    method = kMatchPoints;  // the word is that of the ranking: "VP"
    abbreviation = GetAbbreviations(kMatchPoints);
  }
}

FoundSection UsebioSection::Found(std::string name, UnreadParts& unread) {
  SettleScoring();
  return {std::move(name), games_.Games(unread.All()), std::move(results_)};
}

}  // namespace tricklet
