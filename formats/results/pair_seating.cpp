// Who the pairs of a session are.
#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "formats/results/seated_pair.h"

namespace tricklet {
namespace {

/// Finds the pairs of a session in passes over its tables.
class PairFinder {
 public:
  explicit PairFinder(Travellers travellers) : travellers_(travellers) {
    ForEachTable(travellers, [this](std::size_t at, std::size_t row) {
      for (const Side side : kSides) {
        pairs_.push_back(PairAt(travellers_[at]->rows[row], side));
        if (!pairs_.back().number.empty()) NoteNumber(pairs_.back(), at, side);
      }
    });
    for (const auto& [number, sides] : numbers_) MergeDirections(sides);
  }

  bool AnyNumber() const { return !numbers_.empty(); }

  Seating Find() {
    Seating seating = Unseated(travellers_, Contestants::Pairs);
    std::size_t next = 0;
    ForEachTable(travellers_, [&](std::size_t at, std::size_t row) {
      for (const Side side : kSides) {
        const int contestant =
            ContestantOf(seating, pairs_[next++], travellers_[at]->rows[row], side);
        SeatPair(seating.seats[at][row], side, contestant);
      }
    });
    return seating;
  }

 private:
  /// A number in one direction.
  struct Numbered {
    int node = Seating::kNobody;
    std::set<std::string> players;
    std::size_t lastBoard = 0;
  };

  void NoteNumber(const SeatedPair& pair, std::size_t at, Side side) {
    PerSide<Numbered>& sides = numbers_[pair.number];
    Numbered& own = sides[side];
    if (own.node == Seating::kNobody) own.node = groups_.Add();
    if (own.players.insert(pair.players).second && !pair.players.empty()) {
      byPlayers_[pair.players].insert(pair.number);
    }
    own.lastBoard = at;
    const Numbered& other = sides[side == Side::NorthSouth ? Side::EastWest : Side::NorthSouth];
    if (other.node != Seating::kNobody && other.lastBoard == at) twoWinners_ = true;
  }

  void MergeDirections(const PerSide<Numbered>& sides) {
    const auto& [ns, ew] = sides.values;
    if (twoWinners_ || ns.node == Seating::kNobody || ew.node == Seating::kNobody) return;
    const bool same =
        std::any_of(ns.players.begin(), ns.players.end(),
                    [&other = ew.players](const auto& players) { return other.contains(players); });
    if (same) groups_.Join(ns.node, ew.node);
  }

  /// A pair whose number is known in the other direction alone is still that pair.
  std::optional<int> NodeOf(const SeatedPair& pair, Side side) {
    if (!pair.number.empty()) return numbers_[pair.number][side].node;
    if (pair.players.empty()) return std::nullopt;
    const auto numbers = byPlayers_.find(pair.players);
    if (numbers != byPlayers_.end() && numbers->second.size() == 1) {
      for (const Numbered& known : numbers_[*numbers->second.begin()]) {
        if (known.players.contains(pair.players)) return known.node;
      }
    }
    const auto [node, isNew] = nodes_.try_emplace(pair.players, 0);
    if (isNew) node->second = groups_.Add();
    return node->second;
  }

  int ContestantOf(Seating& seating, const SeatedPair& pair, const TravellerRow& table, Side side) {
    const std::optional<int> node = NodeOf(pair, side);
    if (!node) return Seating::kNobody;
    const auto [known, isNew] =
        contestants_.try_emplace(groups_.Of(*node), static_cast<int>(seating.contestants.size()));
    if (isNew) seating.contestants.emplace_back();
    Contestant& contestant = seating.contestants[static_cast<std::size_t>(known->second)];
    if (contestant.number.empty()) contestant.number = pair.number;
    if (contestant.names.empty()) contestant.names = NamesAt(table, side);
    contestant.sat[side] = true;
    return known->second;
  }

  Travellers travellers_;
  std::vector<SeatedPair> pairs_;  // table by table, North-South first
  std::map<std::string, PerSide<Numbered>> numbers_;
  std::map<std::string, std::set<std::string>> byPlayers_;  // the numbers of the same players
  std::map<std::string, int> nodes_;                        // of players without a number
  std::map<int, int> contestants_;                          // by their groups
  Groups groups_;
  bool twoWinners_ = false;
};

}  // namespace

Seating SeatPairs(Travellers travellers, bool& anyNumber) {
  PairFinder finder(travellers);
  anyNumber = finder.AnyNumber();
  return finder.Find();
}

}  // namespace tricklet
