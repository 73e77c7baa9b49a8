#include "review/entrant_figures.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <tuple>
#include <utility>

#include "core/scoring.h"
#include "core/text.h"
#include "review/table_verdict.h"

namespace tricklet {
namespace {

void Add(MeanFigure& figure, std::optional<int> value) {
  if (!value) return;
  figure.sum += *value;
  ++figure.count;
}

void Add(GivenFigures& figure, int tricks) {
  figure.tricks += tricks;
  ++figure.plays;
}

/// Adds up one table for one entrant.
class TableSum {
 public:
  TableSum(const ReportTable& table, int index, ReportEntrant& entrant)
      : table_(table), index_(index), entrant_(entrant) {}

  void Add() {
    if (table_.score) ++entrant_.boards;
    for (const Side side : {Side::NorthSouth, Side::EastWest}) {
      if (!Sits(side)) continue;
      AddPar(side);
      AddBidding(side);
      AddContract(side);
    }
    if (table_.play) AddPlay(*table_.play);
  }

 private:
  bool Sits(Seat seat) const { return table_.entrants[seat] == index_; }
  bool Sits(Side side) const {
    const auto first = static_cast<Seat>(IndexOf(side));
    return Sits(first) || Sits(PartnerOf(first));
  }

  void AddPar(Side side) {
    const auto par = table_.ParOf(side);
    if (!par) return;
    tricklet::Add(entrant_.par, par->total);
    tricklet::Add(entrant_.bidding, par->bidding);
    tricklet::Add(entrant_.play, par->play);
  }

  void AddBidding(Side side) {
    const BiddingVerdict& verdict = table_.bidding[side];
    entrant_.games.makeable += verdict.gameMakeable ? 1 : 0;
    entrant_.slams.makeable += verdict.slamMakeable ? 1 : 0;
    entrant_.games.missed += verdict.missedGame ? 1 : 0;
    entrant_.slams.missed += verdict.missedSlam ? 1 : 0;
    entrant_.overbid += verdict.overbid ? 1 : 0;
  }

  /// What was bid, and whether it was made at the table.
  void AddContract(Side side) {
    const auto played = PlayedContract(table_);
    if (!played || played->contractLevel == 0 || !table_.score) return;
    const int needed = played->contractLevel + kBook;
    const bool own = SideOf(played->declarer) == side;
    const bool made = table_.tricks && *table_.tricks >= needed;
    const bool down = table_.tricks && *table_.tricks < needed;
    if (DoublingOf(played->contract) != Doubling::Undoubled) {
      (own ? entrant_.doubledMade : entrant_.theyMadeDoubled) += made ? 1 : 0;
      (own ? entrant_.doubledDown : entrant_.theyWentDown) += down ? 1 : 0;
    }
    if (!own) return;
    ++entrant_.declared;
    entrant_.made += made ? 1 : 0;
    entrant_.makeable += table_.doubleDummy && *table_.doubleDummy >= needed ? 1 : 0;
    if (played->contractLevel < GameLevel(played->trumps)) return;
    LevelFigures& level = played->contractLevel >= kSmallSlam ? entrant_.slams : entrant_.games;
    ++level.bid;
    level.made += made ? 1 : 0;
  }

  void AddPlay(const ReviewedPlay& play) {
    const Seat leader = SeatAfter(play.declarer);
    const Seat partner = PartnerOf(leader);
    const int led = play.given[leader].lead.value_or(0);
    const int defended = play.given[leader].play + play.given[partner].Total();
    if (Sits(play.declarer)) tricklet::Add(entrant_.declarer, play.given[play.declarer].Total());
    if (Sits(leader)) tricklet::Add(entrant_.lead, led);
    if (Sits(SideOf(leader))) {
      const int own = (Sits(leader) ? play.given[leader].play : 0) +
                      (Sits(partner) ? play.given[partner].Total() : 0);
      tricklet::Add(entrant_.defence, own);
      tricklet::Add(entrant_.gotFromDeclarer, play.given[play.declarer].Total());
    }
    if (!Sits(SideOf(play.declarer))) return;
    tricklet::Add(entrant_.gotFromLead, led);
    tricklet::Add(entrant_.gotFromDefence, defended);
  }

  const ReportTable& table_;
  int index_;
  ReportEntrant& entrant_;
};

/// Nobody has sat in both directions.
bool HasTwoFields(const Seating& seating, const std::vector<ReportEntrant>& entrants) {
  for (std::size_t i = 0; i < entrants.size(); ++i) {
    const PerSide<bool>& sat = seating.contestants[i].sat;
    if (!entrants[i].tables.empty() && sat[Side::NorthSouth] && sat[Side::EastWest]) return false;
  }
  return true;
}

/// Fields as they are named, North-South first; in each by number, then by name.
auto OrderOf(const ReportEntrant& entrant) {
  return std::tuple<bool, int, const std::string&, const std::string&>(
      entrant.field == "East-West", LeadingNumber(entrant.number), entrant.number, entrant.names);
}

}  // namespace

std::vector<ReportEntrant> EntrantsOf(const Seating& seating,
                                      const std::vector<ReportTable>& tables) {
  std::vector<ReportEntrant> entrants(seating.contestants.size());
  for (std::size_t at = 0; at < tables.size(); ++at) {
    std::set<int> there(tables[at].entrants.begin(), tables[at].entrants.end());
    there.erase(Seating::kNobody);
    for (const int index : there) {
      ReportEntrant& entrant = entrants.at(static_cast<std::size_t>(index));
      TableSum(tables[at], index, entrant).Add();
      entrant.tables.push_back(at);
    }
  }
  const bool twoFields = HasTwoFields(seating, entrants);
  for (std::size_t i = 0; i < entrants.size(); ++i) {
    const Contestant& contestant = seating.contestants[i];
    entrants[i].number = contestant.number;
    entrants[i].names = contestant.names;
    if (!twoFields) continue;
    entrants[i].field = contestant.sat[Side::EastWest] ? "East-West" : "North-South";
  }
  return entrants;
}

void ArrangeEntrants(std::vector<ReportEntrant>& entrants, std::vector<ReportTable>& tables) {
  std::vector<std::size_t> order(entrants.size());
  std::iota(order.begin(), order.end(), 0U);
  std::erase_if(order, [&](std::size_t index) { return entrants[index].tables.empty(); });
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return OrderOf(entrants[a]) < OrderOf(entrants[b]);
  });
  std::vector<int> places(entrants.size(), Seating::kNobody);
  std::vector<ReportEntrant> arranged;
  arranged.reserve(order.size());
  for (const std::size_t index : order) {
    places[index] = static_cast<int>(arranged.size());
    arranged.push_back(std::move(entrants[index]));
  }
  entrants = std::move(arranged);
  for (ReportTable& table : tables) {
    for (int& entrant : table.entrants) {
      if (entrant != Seating::kNobody) entrant = places.at(static_cast<std::size_t>(entrant));
    }
  }
}

}  // namespace tricklet
