#include "publish/web/entrants.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <tuple>

#include "core/text.h"

namespace tricklet {
namespace {

using Players = std::pair<std::string, std::string>;

constexpr PerSide<std::string_view> kDirection{{"NS", "EW"}};

Players PlayersOf(const TravellerRow& row, Side side) {
  const auto first = static_cast<Seat>(IndexOf(side));
  return {row.players[first], row.players[PartnerOf(first)]};
}

/// What tells the pair from others; empty when nothing is known of it.
std::string KeyOf(const TravellerRow& row, Side side) {
  const auto [first, second] = PlayersOf(row, side);
  if (first.empty() && second.empty()) {
    const std::string& number = row.pair[side];
    return number.empty() ? "" : number + "\n" + std::string(kDirection[side]);
  }
  const auto [low, high] = std::minmax({FoldCase(first), FoldCase(second)});
  return low + "\n" + high + "\n";
}

/// Numbers in their order, before those that are no numbers.
auto OrderOf(const std::string& number) {
  const auto value = NumberFromText(number);
  return std::tuple(number.empty(), !value, value.value_or(0), number);
}

}  // namespace

Entrants::Entrants(const Published& published, NamesShown names) {
  for (const PublishedBoard& board : published.boards) {
    for (const TravellerRow& row : board.traveller.rows) {
      for (const Side side : {Side::NorthSouth, Side::EastWest}) Add(row, side, names);
    }
  }
  ListPairs();
  if (names != NamesShown::None) ListPlayers(names);
}

void Entrants::Add(const TravellerRow& row, Side side, NamesShown names) {
  const std::string key = KeyOf(row, side);
  WebPair pair{row.pair[side], PublishedNames(row.names[side], names)};
  if (key.empty() || (pair.number.empty() && pair.names.empty())) return;
  const auto [found, isNew] = positions_.try_emplace(key, static_cast<int>(pairs_.size()));
  if (isNew) {
    pairs_.push_back(std::move(pair));
    seen_.push_back({row.pair[side], row.names[side], {}, PlayersOf(row, side)});
  }
  seen_[static_cast<std::size_t>(found->second)].sides[side] = true;
}

std::string Entrants::DirectionOf(const Seen& seen) const {
  const auto shares = [&seen](const Seen& other) {
    return &other != &seen && other.number == seen.number;
  };
  if (seen.number.empty() || std::none_of(seen_.begin(), seen_.end(), shares)) return "";
  if (seen.sides[Side::NorthSouth] && seen.sides[Side::EastWest]) return "";
  return " " +
         std::string(kDirection[seen.sides[Side::NorthSouth] ? Side::NorthSouth : Side::EastWest]);
}

void Entrants::ListPairs() {
  std::vector<std::size_t> order(pairs_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  const auto rank = [this](std::size_t at) {
    return std::tuple(OrderOf(pairs_[at].number), seen_[at].sides[Side::EastWest],
                      pairs_[at].names);
  };
  std::sort(order.begin(), order.end(),
            [&rank](std::size_t a, std::size_t b) { return rank(a) < rank(b); });
  for (const std::size_t at : order) {
    const WebPair& pair = pairs_[at];
    std::string label = pair.names.empty() ? "Pair " : "";
    label.append(pair.number).append(DirectionOf(seen_[at]));
    if (!label.empty() && !pair.names.empty()) label += ' ';
    label += pair.names;
    seen_[at].entrant = static_cast<int>(list_.size());
    list_.push_back({std::move(label), {static_cast<int>(at)}});
  }
}

void Entrants::ListPlayers(NamesShown names) {
  std::map<std::string, std::set<int>> pairsOf;
  for (std::size_t at = 0; at < seen_.size(); ++at) {
    for (const std::string& player : {seen_[at].players.first, seen_[at].players.second}) {
      if (!player.empty()) pairsOf[player].insert(static_cast<int>(at));
    }
  }
  for (const auto& [player, pairs] : pairsOf) {
    std::string label = PublishedName(player, names);
    if (pairs.size() < 2 || label.empty()) continue;
    players_.emplace(player, static_cast<int>(list_.size()));
    list_.push_back({std::move(label), {pairs.begin(), pairs.end()}});
  }
}

int Entrants::PairOf(const TravellerRow& row, Side side) const {
  const auto found = positions_.find(KeyOf(row, side));
  return found == positions_.end() ? -1 : found->second;
}

int Entrants::EntrantOf(const std::string& number, const std::string& fullNames) const {
  if (const auto player = players_.find(fullNames); player != players_.end()) return player->second;
  const auto onlyOne = [this](const auto& matches) {
    const auto first = std::find_if(seen_.begin(), seen_.end(), matches);
    if (first == seen_.end() || std::find_if(first + 1, seen_.end(), matches) != seen_.end())
      return -1;
    return first->entrant;
  };
  const int exact = onlyOne(
      [&](const Seen& seen) { return seen.number == number && seen.fullNames == fullNames; });
  if (exact >= 0 || number.empty()) return exact;
  return onlyOne([&](const Seen& seen) { return seen.number == number; });
}

}  // namespace tricklet
