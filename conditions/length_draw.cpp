#include "conditions/length_draw.h"

#include <algorithm>
#include <numeric>

namespace tricklet {
namespace {

double Factorial(int n) {
  double product = 1;
  for (int i = 2; i <= n; ++i) product *= i;
  return product;
}

}  // namespace

LengthDraw::LengthDraw(const Predealt& predealt) {
  constexpr std::size_t kKeys = std::size_t{kSuits} << 12U;
  places_.assign(kKeys, -1);
  free_.fill(kRanks);
  bool fits = true;
  for (const Seat seat : kAllSeats) {
    const auto s = static_cast<std::size_t>(seat);
    for (const Suit suit : kAllSuits) {
      const auto u = static_cast<std::size_t>(suit);
      const int given = predealt.cards[seat][suit].Count();
      const auto& length = predealt.lengths[seat][suit];
      fits = fits && (!length || *length >= given);
      free_.at(u) -= given;
      asked_.at(s).at(u) = length ? int{*length} - given : -1;
    }
    room_.at(s) = static_cast<std::uint8_t>(kCardsInHand - CardsIn(predealt.cards[seat]));
  }
  if (!fits || WeightFrom(0, room_) <= 0) steps_.clear();
}

LengthDraw::Key LengthDraw::KeyOf(std::size_t suit, const std::array<std::uint8_t, kSeats>& room) {
  // The room of the last hand follows from that of the others.
  return static_cast<Key>(suit) << 12U | static_cast<Key>(room[0]) << 8U |
         static_cast<Key>(room[1]) << 4U | static_cast<Key>(room[2]);
}

const LengthDraw::Step* LengthDraw::Find(std::size_t suit,
                                         const std::array<std::uint8_t, kSeats>& room) const {
  const std::int32_t place = places_.at(KeyOf(suit, room));
  return place < 0 ? nullptr : &steps_[static_cast<std::size_t>(place)];
}

std::vector<LengthDraw::Split> LengthDraw::SplitsOf(
    std::size_t suit, const std::array<std::uint8_t, kSeats>& room) const {
  std::vector<Split> splits;
  const auto fits = [&](std::size_t seat, int cards) {
    const int asked = asked_.at(seat).at(suit);
    return cards >= 0 && cards <= room.at(seat) && (asked < 0 || asked == cards);
  };
  const int all = free_.at(suit);
  for (int north = 0; north <= all; ++north) {
    if (!fits(0, north)) continue;
    for (int east = 0; north + east <= all; ++east) {
      if (!fits(1, east)) continue;
      for (int south = 0; north + east + south <= all; ++south) {
        const int west = all - north - east - south;
        if (!fits(2, south) || !fits(3, west)) continue;
        const double ways = Factorial(all) / (Factorial(north) * Factorial(east) *
                                              Factorial(south) * Factorial(west));
        const auto narrow = [](int cards) { return static_cast<std::uint8_t>(cards); };
        splits.push_back({{narrow(north), narrow(east), narrow(south), narrow(west)}, ways});
      }
    }
  }
  return splits;
}

double LengthDraw::WeightFrom(std::size_t suit, const std::array<std::uint8_t, kSeats>& room) {
  if (suit == kSuits) return 1;  // as many cards were free as there was room
  if (const Step* const known = Find(suit, room); known != nullptr) return known->weight;
  Step step{.suit = suit, .room = room, .splits = SplitsOf(suit, room)};
  for (Split& split : step.splits) {
    auto rest = room;
    for (std::size_t seat = 0; seat < rest.size(); ++seat) {
      rest.at(seat) = static_cast<std::uint8_t>(rest.at(seat) - split.cards.at(seat));
    }
    split.weight *= WeightFrom(suit + 1, rest);
    step.weight += split.weight;
  }
  const double weight = step.weight;
  std::erase_if(step.splits, [](const Split& split) { return split.weight <= 0; });
  places_.at(KeyOf(suit, room)) = static_cast<std::int32_t>(steps_.size());
  steps_.push_back(std::move(step));
  return weight;
}

LengthDraw::Lengths LengthDraw::Draw(RandomSource& random) const {
  Lengths lengths{};
  auto room = room_;
  for (const Suit suit : kAllSuits) {
    const Step& step = *Find(static_cast<std::size_t>(suit), room);
    double x = random.Rnd() * step.weight;
    const Split* split = &step.splits.back();  // also when rounding has made x too large
    for (const Split& candidate : step.splits) {
      x -= candidate.weight;
      if (x >= 0) continue;
      split = &candidate;
      break;
    }
    for (const Seat seat : kAllSeats) {
      const std::uint8_t cards = split->cards.at(static_cast<std::size_t>(seat));
      lengths[seat][suit] = cards;
      auto& left = room.at(static_cast<std::size_t>(seat));
      left = static_cast<std::uint8_t>(left - cards);
    }
  }
  return lengths;
}

}  // namespace tricklet
