#include "formats/results/ranking.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

#include "core/bounded_list.h"
#include "core/text.h"
#include "formats/results/board_points.h"
#include "formats/results/seated_pair.h"

namespace tricklet {
namespace {

/// Totals that differ by less are equal: adding in another order gives other last digits.
constexpr double kTie = 1e-7;

int ResultsOf(const Traveller& traveller) {
  return static_cast<int>(
      std::count_if(traveller.rows.begin(), traveller.rows.end(),
                    [](const TravellerRow& row) { return row.score.has_value(); }));
}

/// Nobody can have an IMP against any other table, nor against a datum between the scores.
bool IsFlat(const Traveller& traveller) {
  constexpr int kLeast = 20;  // for one IMP
  std::set<int> scores;
  for (const TravellerRow& row : traveller.rows) {
    if (row.score) scores.insert(*row.score);
  }
  return scores.size() > 1 ? *scores.rbegin() - *scores.begin() < 2 * kLeast : scores.size() == 1;
}

/// Decides how the boards of a session count.
class Scorer {
 public:
  Scorer(const LinFile& file, Travellers travellers)
      : matchPoints_(file.boardScoringMethod == "MATCH_POINTS") {
    std::set<int> results;
    for (const Traveller* traveller : travellers) {
      given_ = given_ || !traveller->computed;
      if (ResultsOf(*traveller) > 1) results.insert(ResultsOf(*traveller));
    }
    perComparison_ = !matchPoints_ && !given_ && results.size() > 1;
  }

  RankingUnit Unit() const {
    if (matchPoints_) return RankingUnit::Percentage;
    return perComparison_ ? RankingUnit::ImpsPerComparison : RankingUnit::Imps;
  }

  BoardPoints PointsOf(const Traveller& traveller) const {
    if (matchPoints_) return MatchPointsOf(traveller);
    if (given_ && traveller.computed) return WithoutImps(traveller);
    return ImpsOf(traveller, perComparison_ ? std::max(ResultsOf(traveller) - 1, 1) : 1);
  }

 private:
  /// In a file that gives IMPs, a board without any: it was flat, or they are missing.
  static BoardPoints WithoutImps(const Traveller& traveller) {
    BoardPoints points;
    points.rows.resize(traveller.rows.size());
    if (!IsFlat(traveller)) return points;
    for (std::size_t row = 0; row < points.rows.size(); ++row) {
      if (traveller.rows[row].score) points.rows[row].fill(0.0);
    }
    return points;
  }

  bool matchPoints_;
  bool given_ = false;
  bool perComparison_ = false;
};

/// What a contestant has from the boards that count for it.
struct Tally {
  int boards = 0;
  double total = 0;
  double percentages = 0;
  std::size_t lastBoard = 0;  // one after its index
};

/// Goes through the boards and adds up.
class Totals {
 public:
  Totals(const Seating& seating, Travellers travellers, const Scorer& scorer)
      : tallies(seating.contestants.size()) {
    for (std::size_t at = 0; at < travellers.size(); ++at) {
      AddBoard(*travellers[at], at, seating, scorer.PointsOf(*travellers[at]));
    }
  }

  std::vector<Tally> tallies;   // of the contestants
  std::set<int> withoutPoints;  // boards
  std::set<int> partly;         // boards at which some result has no points

 private:
  void AddBoard(const Traveller& traveller, std::size_t at, const Seating& seating,
                const BoardPoints& points) {
    bool any = false;
    bool all = true;
    for (std::size_t row = 0; row < points.rows.size(); ++row) {
      if (!HasTable(traveller.rows[row])) continue;
      const auto& [ns, ew] = points.rows[row].values;
      any = any || ns || ew;
      all = all && ns && ew;
      AddTable(seating.seats[at][row], at, points, row);
    }
    if (!all) (any ? partly : withoutPoints).insert(traveller.boardNumber);
  }

  /// A team has two tables, of which one counts; they have the same result.
  void AddTable(const PerSeat<int>& seats, std::size_t at, const BoardPoints& points,
                std::size_t row) {
    for (const Seat seat : kAllSeats) {
      const auto& own = points.rows[row][SideOf(seat)];
      if (seats[seat] == Seating::kNobody || !own) continue;
      Tally& tally = tallies[static_cast<std::size_t>(seats[seat])];
      if (std::exchange(tally.lastBoard, at + 1) == at + 1) continue;
      ++tally.boards;
      tally.total += *own;
      tally.percentages += PercentageOf(points, row, SideOf(seat)).value_or(0);
    }
  }
};

RankedEntrant EntrantOf(const Contestant& contestant, const Tally& tally) {
  RankedEntrant entrant;
  entrant.number = contestant.number;
  entrant.names = contestant.names;
  entrant.boards = tally.boards;
  entrant.total = tally.total;
  entrant.percentage = tally.percentages / tally.boards;
  return entrant;
}

double ValueOf(const RankedEntrant& entrant, RankingUnit unit) {
  return unit == RankingUnit::Percentage ? entrant.percentage : entrant.total;
}

/// Those who are equal, from `first` on, share a place; returns the index after the last of them.
std::size_t GivePlace(std::vector<RankedEntrant>& entrants, std::size_t first, RankingUnit unit) {
  std::size_t end = first + 1;
  while (end < entrants.size() &&
         ValueOf(entrants[end - 1], unit) - ValueOf(entrants[end], unit) < kTie) {
    ++end;
  }
  const auto byNumber = [](const RankedEntrant& one) {
    return std::tuple<int, const std::string&, const std::string&>(LeadingNumber(one.number),
                                                                   one.number, one.names);
  };
  const auto at = [&](std::size_t index) {
    return entrants.begin() + static_cast<std::ptrdiff_t>(index);
  };
  std::stable_sort(at(first), at(end), [&](const RankedEntrant& a, const RankedEntrant& b) {
    return byNumber(a) < byNumber(b);
  });
  for (std::size_t i = first; i < end; ++i) {
    entrants[i].place = static_cast<int>(first) + 1;
    entrants[i].shared = end - first > 1;
  }
  return end;
}

void GivePlaces(std::vector<RankedEntrant>& entrants, RankingUnit unit) {
  std::stable_sort(entrants.begin(), entrants.end(),
                   [unit](const RankedEntrant& a, const RankedEntrant& b) {
                     return ValueOf(a, unit) > ValueOf(b, unit);
                   });
  for (std::size_t next = 0; next < entrants.size();) next = GivePlace(entrants, next, unit);
}

/// One table for all, or one for each direction when nobody has sat in both.
std::vector<RankingTable> TablesOf(const Seating& seating, const std::vector<Tally>& tallies) {
  const auto counts = [&](std::size_t index) { return tallies[index].boards > 0; };
  bool oneField = false;
  for (std::size_t i = 0; i < tallies.size(); ++i) {
    const PerSide<bool>& sat = seating.contestants[i].sat;
    oneField = oneField || (counts(i) && sat[Side::NorthSouth] && sat[Side::EastWest]);
  }
  std::vector<RankingTable> tables(oneField ? 1 : 2);
  if (!oneField) {
    tables.front().heading = "North-South";
    tables.back().heading = "East-West";
  }
  for (std::size_t i = 0; i < tallies.size(); ++i) {
    if (!counts(i)) continue;
    const bool second = !oneField && seating.contestants[i].sat[Side::EastWest];
    tables[second ? 1 : 0].entrants.push_back(EntrantOf(seating.contestants[i], tallies[i]));
  }
  return tables;
}

/// "Board 5 does not count: it has no IMPs".
std::string NotCounted(const std::set<int>& boards, const std::string& has) {
  const bool one = boards.size() == 1;
  return (one ? "Board " : "Boards ") + RangesText(boards) +
         (one ? " does not count: it has " : " do not count: they have ") + has;
}

void NoteBoards(const Totals& totals, RankingUnit unit, Ranking& ranking) {
  if (!totals.withoutPoints.empty()) {
    const bool imps = unit != RankingUnit::Percentage;
    ranking.notRanked.push_back(
        NotCounted(totals.withoutPoints, imps ? "no IMPs" : "fewer than two scores"));
  }
  if (!totals.partly.empty()) {
    ranking.notRanked.push_back("Results without points do not count (board" +
                                std::string(totals.partly.size() == 1 ? " " : "s ") +
                                RangesText(totals.partly) + ")");
  }
}

/// Whoever is alone has nobody to be compared with.
void LeaveOutAlone(Ranking& ranking) {
  constexpr EnumArray<Contestants, const char*, 3> kAlone{{"Only one pair can be ranked",
                                                           "Only one player can be ranked",
                                                           "Only one team can be ranked"}};
  for (const RankingTable& table : ranking.tables) {
    if (table.entrants.size() != 1) continue;
    ranking.notRanked.push_back((table.heading.empty() ? "" : table.heading + ": ") +
                                std::string(kAlone[ranking.contestants]));
  }
  std::erase_if(ranking.tables,
                [](const RankingTable& table) { return table.entrants.size() < 2; });
}

constexpr int kDecimals = 2;

}  // namespace

std::string RankedEntrant::PlaceText() const {
  return std::to_string(place) + (shared ? "=" : "");
}

std::string RankedEntrant::TotalText() const {
  std::string text = DecimalText(total, kDecimals);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string RankedEntrant::PercentageText() const {
  return DecimalText(percentage, kDecimals);
}

std::string Ranking::UnitText() const {
  constexpr EnumArray<RankingUnit, const char*, 3> kTexts{{"%", "IMPs", "IMPs per comparison"}};
  return kTexts[unit];
}

Ranking MakeRanking(const LinFile& file, Travellers travellers) {
  const Seating seating = SeatingOf(file, travellers);
  const Scorer scorer(file, travellers);
  const Totals totals(seating, travellers, scorer);
  Ranking ranking;
  ranking.unit = scorer.Unit();
  ranking.contestants = seating.kind;
  ranking.tables = TablesOf(seating, totals.tallies);
  for (RankingTable& table : ranking.tables) GivePlaces(table.entrants, ranking.unit);
  if (!seating.contestants.empty()) NoteBoards(totals, ranking.unit, ranking);
  ranking.notRanked.insert(ranking.notRanked.end(), seating.remarks.begin(), seating.remarks.end());
  LeaveOutAlone(ranking);
  if (ranking.tables.empty() && ranking.notRanked.empty()) {
    ranking.notRanked.emplace_back("There are no results");
  }
  return ranking;
}

Ranking MakeRanking(const LinFile& file, const std::vector<Traveller>& travellers) {
  std::vector<const Traveller*> pointers;
  pointers.reserve(travellers.size());
  for (const Traveller& traveller : travellers) pointers.push_back(&traveller);
  return MakeRanking(file, pointers);
}

}  // namespace tricklet
