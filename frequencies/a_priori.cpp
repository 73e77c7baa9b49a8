#include "frequencies/a_priori.h"

#include <algorithm>
#include <functional>

namespace tricklet {
namespace {

using WaysTable = std::array<std::array<std::int64_t, kCardsInPack + 1>, kCardsInPack + 1>;

constexpr WaysTable MakeWays() {
  WaysTable ways{};
  for (std::size_t n = 0; n <= kCardsInPack; ++n) {
    ways.at(n).at(0) = 1;
    for (std::size_t k = 1; k <= n; ++k) {
      ways.at(n).at(k) = ways.at(n - 1).at(k - 1) + ways.at(n - 1).at(k);
    }
  }
  return ways;
}

constexpr int kHonours = 4;    // aces, and so on
constexpr int kSpots = 36;     // cards without points
constexpr int kTwoHands = 26;  // cards of two hands

/// In how many different orders the lengths can be given to the suits.
int Orders(Shape shape) {
  std::sort(shape.begin(), shape.end());
  int orders = 0;
  do {
    ++orders;
  } while (std::next_permutation(shape.begin(), shape.end()));
  return orders;
}

std::int64_t HandsOfShape(const Shape& shape) {
  std::int64_t hands = Orders(shape);
  for (const int length : shape) hands *= Ways(kRanks, length);
  return hands;
}

std::array<Shape, kShapes> MakeShapes() {
  std::array<Shape, kShapes> shapes{};
  std::size_t next = 0;
  for (int a = kCardsInHand; a > 0; --a) {
    for (int b = std::min(a, kCardsInHand - a); b >= 0; --b) {
      for (int c = std::min(b, kCardsInHand - a - b); c >= 0; --c) {
        const int d = kCardsInHand - a - b - c;
        if (d <= c) shapes.at(next++) = {a, b, c, d};
      }
    }
  }
  std::sort(shapes.begin(), shapes.end(), [](const Shape& left, const Shape& right) {
    return HandsOfShape(left) > HandsOfShape(right);
  });
  return shapes;
}

/// By the four lengths, the longest first; three of them say the fourth.
constexpr std::size_t Code(const Shape& shape) {
  const int index = (shape[0] * (kRanks + 1) + shape[1]) * (kRanks + 1) + shape[2];
  return static_cast<std::size_t>(index);
}

using ShapeCodes = std::array<std::int8_t, std::size_t{kRanks + 1} * (kRanks + 1) * (kRanks + 1)>;

ShapeCodes MakeCodes() {
  ShapeCodes codes{};
  std::int8_t index = 0;
  for (const Shape& shape : AllShapes()) codes.at(Code(shape)) = index++;
  return codes;
}

}  // namespace

std::int64_t Ways(int n, int k) {
  static constexpr WaysTable kWays = MakeWays();
  if (k < 0 || k > n) return 0;
  return kWays.at(static_cast<std::size_t>(n)).at(static_cast<std::size_t>(k));
}

std::span<const Shape, kShapes> AllShapes() {
  static const std::array<Shape, kShapes> shapes = MakeShapes();
  return shapes;
}

int ShapeIndex(Shape lengths) {
  static const ShapeCodes codes = MakeCodes();
  std::sort(lengths.begin(), lengths.end(), std::greater<>());
  return codes.at(Code(lengths));
}

double ChanceOfShape(const Shape& shape) {
  return static_cast<double>(HandsOfShape(shape)) /
         static_cast<double>(Ways(kCardsInPack, kCardsInHand));
}

double ChanceOfPoints(int points, int cards) {
  std::int64_t ways = 0;
  for (int a = 0; a <= kHonours; ++a) {
    for (int k = 0; k <= kHonours; ++k) {
      for (int q = 0; q <= kHonours; ++q) {
        const int j = points - 4 * a - 3 * k - 2 * q;
        ways += Ways(kHonours, a) * Ways(kHonours, k) * Ways(kHonours, q) * Ways(kHonours, j) *
                Ways(kSpots, cards - a - k - q - j);
      }
    }
  }
  return static_cast<double>(ways) / static_cast<double>(Ways(kCardsInPack, cards));
}

double ChanceOfBreak(int missing, int longer) {
  const std::int64_t ways =
      Ways(missing, longer) * Ways(kTwoHands - missing, kCardsInHand - longer);
  const int orders = longer * 2 == missing ? 1 : 2;
  return static_cast<double>(orders * ways) / static_cast<double>(Ways(kTwoHands, kCardsInHand));
}

}  // namespace tricklet
