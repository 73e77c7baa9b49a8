#include "conditions/count_tables.h"

#include <algorithm>
#include <array>
#include <bit>

#include "conditions/cccc.h"

namespace tricklet {
namespace {

/// Three less one for each of ace, king and queen; fewer cards than three have as many losers at
/// the most, and a queen or a lone king saves none there.
int LosersOf(unsigned bits) {
  const int length = std::min(std::popcount(bits), 3);
  const unsigned winners = bits & ((1U << static_cast<unsigned>(length)) - 1U);
  return length - std::popcount(winners);
}

CountTable WholeSuit(int (*value)(unsigned)) {
  CountTable table{.relevant = Holding::kAllBits, .values = {}};
  table.values.reserve(table.relevant + 1U);
  for (unsigned bits = 0; bits <= table.relevant; ++bits) table.values.push_back(value(bits));
  return table;
}

}  // namespace

CountTable PointsTable(std::span<const std::int32_t> points) {
  while (!points.empty() && points.back() == 0) points = points.first(points.size() - 1);
  CountTable table{.relevant = (1U << points.size()) - 1U, .values = {}};
  table.values.reserve(table.relevant + 1U);
  for (unsigned bits = 0; bits <= table.relevant; ++bits) {
    std::uint32_t sum = 0;  // wraps around like all numbers of the language
    for (std::size_t rank = 0; rank < points.size(); ++rank) {
      if ((bits >> rank & 1U) != 0) sum += static_cast<std::uint32_t>(points[rank]);
    }
    table.values.push_back(static_cast<std::int32_t>(sum));
  }
  return table;
}

std::vector<CountTable> DefaultCounts() {
  using Points = std::vector<std::int32_t>;
  const std::array<Points, kCounts - 2> points{
      Points{0, 0, 0, 0, 1}, Points{0, 0, 0, 1}, Points{0, 0, 1},
      Points{0, 1},          Points{1},          Points{1, 1},
      Points{1, 1, 1},       Points{1, 1, 1, 1}, Points{1, 1, 1, 1, 1},
      Points{6, 4, 2, 1},    Points{4, 3, 2, 1}, Points{2, 1}};
  std::vector<CountTable> tables;
  tables.reserve(kCounts);
  for (const Points& count : points) tables.push_back(PointsTable(count));
  tables.push_back(WholeSuit(LosersOf));
  tables.push_back(WholeSuit([](unsigned bits) { return SuitQuality(Holding::FromBits(bits)); }));
  return tables;
}

}  // namespace tricklet
