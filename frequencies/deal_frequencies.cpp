#include "frequencies/deal_frequencies.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr int kPointsInPack = 40;
constexpr int kCardsOfSide = 26;

std::string ShapeText(const Shape& shape) {
  std::string text;
  for (const int length : shape) text += (text.empty() ? "" : "-") + std::to_string(length);
  return text;
}

FrequencyRow Row(std::string name, int observed, int of, double chance) {
  return {std::move(name), observed, of, chance * of};
}

FrequencyTable ShapeTable(const DealTally& tally) {
  FrequencyTable table{"Shapes", "hands", {}, {}};
  table.rows.reserve(kShapes);
  for (std::size_t i = 0; i < kShapes; ++i) {
    const Shape& shape = AllShapes()[i];
    table.rows.push_back(
        Row(ShapeText(shape), tally.shapes.at(i), tally.deals * kSeats, ChanceOfShape(shape)));
  }
  return table;
}

/// Of all shapes that `holds` says yes to.
template <class Holds>
FrequencyRow ShapesRow(const DealTally& tally, std::string name, const Holds& holds) {
  int observed = 0;
  double chance = 0;
  for (std::size_t i = 0; i < kShapes; ++i) {
    if (!holds(AllShapes()[i])) continue;
    observed += tally.shapes.at(i);
    chance += ChanceOfShape(AllShapes()[i]);
  }
  return Row(std::move(name), observed, tally.deals * kSeats, chance);
}

FrequencyTable KindTable(const DealTally& tally) {
  FrequencyTable table{"Kinds of hands", "hands", {}, {}};
  table.rows.push_back(ShapesRow(tally, "Balanced", [](const Shape& shape) {
    return shape[3] >= 2 && shape[0] + shape[1] <= 8 && shape[0] <= 5;
  }));
  table.rows.push_back(
      ShapesRow(tally, "With a void", [](const Shape& shape) { return shape[3] == 0; }));
  table.rows.push_back(ShapesRow(tally, "With a singleton", [](const Shape& shape) {
    return shape[3] == 1 || shape[2] == 1;
  }));
  table.rows.push_back(ShapesRow(tally, "Six cards or more in a suit",
                                 [](const Shape& shape) { return shape[0] >= 6; }));
  table.rows.push_back(ShapesRow(tally, "Seven cards or more in a suit",
                                 [](const Shape& shape) { return shape[0] >= 7; }));
  return table;
}

FrequencyTable PointTable(const DealTally& tally) {
  FrequencyTable table{"Points", "hands", {}, {}};
  table.rows.reserve(tally.points.size());
  for (std::size_t i = 0; i < tally.points.size(); ++i) {
    table.rows.push_back(Row(std::to_string(i), tally.points.at(i), tally.deals * kSeats,
                             ChanceOfPoints(static_cast<int>(i))));
  }
  return table;
}

FrequencyTable BreakTable(const DealTally& tally) {
  FrequencyTable table{"Suit breaks", "suits", {}, {}};
  for (std::size_t m = 2; m < tally.breaks.size(); ++m) {
    const auto& row = tally.breaks.at(m);
    const int suits = std::accumulate(row.begin(), row.end(), 0);
    for (std::size_t longer = (m + 1) / 2; longer <= m; ++longer) {
      std::string name = std::to_string(m) + " missing: " + std::to_string(longer) + "-" +
                         std::to_string(m - longer);
      table.rows.push_back(Row(std::move(name), row.at(longer), suits,
                               ChanceOfBreak(static_cast<int>(m), static_cast<int>(longer))));
    }
  }
  return table;
}

/// Deals in which a side has at least so many points; both sides cannot have more than 20.
FrequencyRow PairRow(const DealTally& tally, int least) {
  int observed = 0;
  double chance = 0;
  for (int points = least; points <= kPointsInPack; ++points) {
    observed += tally.pairPoints.at(static_cast<std::size_t>(points));
    chance += 2 * ChanceOfPoints(points, kCardsOfSide);
  }
  return Row("A side has " + std::to_string(least) + " points or more", observed, tally.deals,
             chance);
}

FrequencyTable GameTable(const DealTally& tally, const MakeableTally& makeable) {
  FrequencyTable table{"Games and slams", "deals", {}, {}};
  table.rows = {{"A game is makeable", makeable.games, makeable.deals, {}},
                {"A slam is makeable", makeable.slams, makeable.deals, {}},
                {"A grand slam is makeable", makeable.grandSlams, makeable.deals, {}},
                PairRow(tally, 25),
                PairRow(tally, 33),
                PairRow(tally, 37)};
  return table;
}

std::string BoardsText(int deals) {
  return deals == 1 ? "1 board" : std::to_string(deals) + " boards";
}

/// Of one table.
std::string TableVerdict(const std::optional<double>& share, int deals) {
  if (!share) return "Too few boards to tell how ordinary this is";
  std::string text = ShareText(*share);
  text.front() = ToUpper(text.front());
  return text + " sets of " + BoardsText(deals) +
         " dealt at random are as far from this or farther";
}

std::string Verdict(const std::optional<double>& share, int deals) {
  if (!share) return "Too few boards to tell how ordinary they are";
  constexpr double kRare = 0.01;
  constexpr double kUnusual = 0.05;
  constexpr double kHardlyAny = 0.005;
  if (*share < kHardlyAny) {
    return "Fewer than 1 in 200 sets of " + BoardsText(deals) +
           " dealt at random are like these: hardly by chance";
  }
  const std::string these = "These " + BoardsText(deals) + " are as ordinary as " +
                            ShareText(*share) + " such sets dealt at random";
  if (*share < kRare) return these + ": hardly by chance";
  return *share < kUnusual ? these + ": unusual" : these;
}

}  // namespace

void MakeableTally::Add(const MakeableTable& table) {
  constexpr int kSmallSlam = 12;
  bool game = false;
  int most = 0;
  for (const TableSeat seat : kAllTableSeats) {
    for (const TableStrain strain : kAllTableStrains) {
      const bool minor = strain == TableStrain::Clubs || strain == TableStrain::Diamonds;
      const int wanted = strain == TableStrain::NoTrump ? 9 : minor ? 11 : 10;
      game = game || table[seat][strain] >= wanted;
      most = std::max<int>(most, table[seat][strain]);
    }
  }
  ++deals;
  games += game ? 1 : 0;
  slams += most >= kSmallSlam ? 1 : 0;
  grandSlams += most == kRanks ? 1 : 0;
}

std::string ShareText(double share) {
  constexpr double kNearlyAll = 0.95;
  constexpr double kTenths = 0.05;
  constexpr double kHundredths = 0.005;
  const auto whole = [](double number) { return std::to_string(std::lround(number)); };
  if (share >= kNearlyAll) return "nearly all";
  if (share >= kTenths) return whole(std::max(share * 10, 1.0)) + " in 10";
  if (share >= kHundredths) return whole(std::max(share * 100, 1.0)) + " in 100";
  return "fewer than 1 in 200";
}

DealFrequencies FrequenciesOf(const DealTally& tally, const MakeableTally& makeable,
                              const Ordinariness& ordinary) {
  DealFrequencies frequencies;
  frequencies.deals = tally.deals;
  frequencies.tables = {ShapeTable(tally), KindTable(tally), PointTable(tally), BreakTable(tally),
                        GameTable(tally, makeable)};
  frequencies.tables[0].verdict = TableVerdict(ordinary.share[Aspect::Shapes], tally.deals);
  frequencies.tables[2].verdict = TableVerdict(ordinary.share[Aspect::Points], tally.deals);
  frequencies.tables[3].verdict = TableVerdict(ordinary.share[Aspect::Breaks], tally.deals);
  frequencies.verdict = Verdict(ordinary.together, tally.deals);
  return frequencies;
}

}  // namespace tricklet
