#include "formats/results/seated_pair.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace tricklet {

SeatedPair PairAt(const TravellerRow& row, Side side) {
  const std::string& first = row.players[FirstSeat(side)];
  const std::string& second = row.players[PartnerOf(FirstSeat(side))];
  SeatedPair pair{row.pair[side], ""};
  if (second.empty() && !first.empty() && first[0] >= '0' && first[0] <= '9') {
    if (pair.number.empty()) pair.number = first;
    return pair;
  }
  if (first.empty() && second.empty()) return pair;
  std::string one = FoldCase(first);
  std::string other = FoldCase(second);
  if (other < one) std::swap(one, other);
  pair.players = one + "\n" + other;
  return pair;
}

std::string NamesAt(const TravellerRow& row, Side side) {
  return PairAt(row, side).players.empty() ? "" : row.names[side];
}

bool HasTable(const TravellerRow& row) {
  const auto given = [](const auto& points) { return points && *points != 0; };
  return row.HasResult() || std::any_of(row.points.begin(), row.points.end(), given);
}

Seating Unseated(Travellers travellers, Contestants kind) {
  Seating seating;
  seating.kind = kind;
  PerSeat<int> nobody;
  nobody.fill(Seating::kNobody);
  for (const Traveller* traveller : travellers) {
    seating.seats.emplace_back(traveller->rows.size(), nobody);
  }
  return seating;
}

void SeatPair(PerSeat<int>& seats, Side side, int contestant) {
  seats[FirstSeat(side)] = contestant;
  seats[PartnerOf(FirstSeat(side))] = contestant;
}

int Groups::Add() {
  parents_.push_back(static_cast<int>(parents_.size()));
  return parents_.back();
}

int Groups::Of(int member) {
  int root = member;
  while (Parent(root) != root) root = Parent(root);
  while (Parent(member) != root) member = std::exchange(Parent(member), root);
  return root;
}

void Groups::Join(int a, int b) {
  Parent(Of(b)) = Of(a);
}

}  // namespace tricklet
