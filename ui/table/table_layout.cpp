#include "ui/table/table_layout.h"

#include <algorithm>
#include <cmath>

namespace tricklet::ui {
namespace {

// Proportions of a card of poker size, 63 x 88 mm.
constexpr double kCardAspect = 1.4;  // height to width
// Lengths in cards' widths.
constexpr double kRowStepAcross = 0.5;  // West and East, where there is room
constexpr double kLeastStep = 0.33;     // the index still shows, that of a ten too
constexpr double kLeastSide = 2.7;      // West and East
constexpr double kWishedSide = 3.2;
constexpr double kLeastCentre = 2.4;
constexpr double kMostCentre = 4.2;
// Lengths in cards' heights.
constexpr double kRowStep = 0.5;  // from one suit's row to the next
constexpr double kMostRowStep = 0.62;
constexpr double kCentreHeight = 2.2;
/// North and South draw the sides towards the middle on a table that is wider than this.
constexpr double kMostAspect = 1.7;

/// The lengths that all parts share.
struct Measures {
  double margin;  // of the felt
  QRectF room;    // the felt without it
  double gap;
  double captionHeight;
  double cardWidth;
  double cardHeight;
};

Measures Measure(QSizeF size) {
  const double width = std::max(1.0, size.width());
  const double height = std::max(1.0, size.height());
  Measures m{};
  m.margin = std::clamp(0.018 * std::min(width, height), 4.0, 28.0);
  m.gap = std::round(0.7 * m.margin);
  m.captionHeight = std::round(std::clamp(0.042 * std::min(width, height), 14.0, 96.0));
  const double across = std::min(width, height * kMostAspect) - 2 * m.margin;
  m.room = QRectF((width - across) / 2, m.margin, across, height - 2 * m.margin);
  const double high = m.room.height() - 3 * m.captionHeight - 5 * m.gap;
  const double wide = m.room.width() - 2 * m.gap;
  m.cardWidth = std::floor(
      std::min(wide / (2 * kLeastSide + kLeastCentre), high / (3 + 3 * kRowStep) / kCardAspect));
  m.cardWidth = std::max(1.0, m.cardWidth);
  m.cardHeight = std::round(m.cardWidth * kCardAspect);
  return m;
}

/// Heights of the four hands' areas; North's and South's are equal.
struct Heights {
  double row;   // North and South
  double side;  // West and East
};

Heights AreaHeights(const Measures& m, HandDisplay display) {
  const double high = m.room.height() - 3 * m.captionHeight - 5 * m.gap;
  if (display == HandDisplay::Text) return {high / 3, high / 3};
  const double side = std::min(high - 2 * m.cardHeight, m.cardHeight * (1 + 3 * kMostRowStep));
  return {m.cardHeight, std::max(side, m.cardHeight)};
}

double CentreWidth(const Measures& m, HandDisplay display) {
  const double wide = m.room.width() - 2 * m.gap;
  if (display == HandDisplay::Text) return std::max(1.0, 0.25 * wide);
  return std::clamp(wide - 2 * kWishedSide * m.cardWidth, kLeastCentre * m.cardWidth,
                    kMostCentre * m.cardWidth);
}

void PlaceAreas(TableLayout& layout, const Measures& m, HandDisplay display) {
  const Heights heights = AreaHeights(m, display);
  const QRectF& room = m.room;
  const double step = m.captionHeight + m.gap;
  PlacedHand& north = layout.hands[Seat::North];
  PlacedHand& south = layout.hands[Seat::South];
  north.caption = {room.left(), room.top(), room.width(), m.captionHeight};
  north.area = {room.left(), room.top() + step, room.width(), heights.row};
  south.caption = {room.left(), room.bottom() - m.captionHeight, room.width(), m.captionHeight};
  south.area = {room.left(), room.bottom() - step - heights.row, room.width(), heights.row};

  const double middle = (north.area.bottom() + south.area.top()) / 2;
  const double top = std::round(middle - (step + heights.side) / 2);
  const double centreWidth = CentreWidth(m, display);
  const double sideWidth = (room.width() - centreWidth) / 2 - m.gap;
  const double captionWidth = (room.width() - m.gap) / 2;
  PlacedHand& west = layout.hands[Seat::West];
  PlacedHand& east = layout.hands[Seat::East];
  west.caption = {room.left(), top, captionWidth, m.captionHeight};
  west.area = {room.left(), top + step, sideWidth, heights.side};
  east.caption = {room.right() - captionWidth, top, captionWidth, m.captionHeight};
  east.area = {room.right() - sideWidth, top + step, sideWidth, heights.side};

  const double centreHeight =
      std::min(heights.side, std::max(kCentreHeight * m.cardHeight, heights.side * 0.7));
  layout.centre = QRectF(0, 0, std::round(centreWidth), std::round(centreHeight));
  layout.centre.moveCenter({room.center().x(), west.area.center().y()});
}

std::vector<Card> CardsOf(Suit suit, Holding holding) {
  std::vector<Card> cards;
  for (int rank = 0; rank < kRanks; ++rank) {
    const Card card{suit, static_cast<Rank>(rank)};
    if (holding.Has(card.rank)) cards.push_back(card);
  }
  return cards;
}

/// From one card to the next, when `count` of them are to lie within `room`.
double StepFor(std::size_t count, double room, double card, double wished) {
  if (count < 2) return 0;
  return std::clamp((room - card) / static_cast<double>(count - 1), 0.0, wished);
}

void PlaceFan(TableLayout& layout, const PerSuit<Holding>& hand, Seat seat) {
  std::vector<Card> cards;
  for (const Suit suit : kTableSuits) {
    const std::vector<Card> held = CardsOf(suit, hand[suit]);
    cards.insert(cards.end(), held.begin(), held.end());
  }
  if (cards.empty()) return;
  const QRectF& area = layout.hands[seat].area;
  const double width = layout.cardSize.width();
  const double step = StepFor(cards.size(), area.width(), width, kFanStep * width);
  const double fan = width + step * static_cast<double>(cards.size() - 1);
  double x = area.center().x() - fan / 2;
  for (const Card card : cards) {
    layout.cards.push_back({seat, card, QRectF({x, area.top()}, layout.cardSize)});
    x += step;
  }
}

/// The rows of a side hand: one for each suit held, or several where a suit is too long for one.
std::vector<std::vector<Card>> RowsOf(const PerSuit<Holding>& hand, std::size_t longest) {
  std::vector<std::vector<Card>> rows;
  for (const Suit suit : kTableSuits) {
    const std::vector<Card> cards = CardsOf(suit, hand[suit]);
    const std::size_t parts = (cards.size() + longest - 1) / longest;
    std::size_t done = 0;
    for (std::size_t part = 1; part <= parts; ++part) {
      const std::size_t upTo = cards.size() * part / parts;
      rows.emplace_back(cards.begin() + static_cast<std::ptrdiff_t>(done),
                        cards.begin() + static_cast<std::ptrdiff_t>(upTo));
      done = upTo;
    }
  }
  return rows;
}

void PlaceRows(TableLayout& layout, const PerSuit<Holding>& hand, Seat seat) {
  const QRectF& area = layout.hands[seat].area;
  const double width = layout.cardSize.width();
  const double fit = std::floor(std::max(0.0, area.width() - width) / (kLeastStep * width));
  const auto rows = RowsOf(hand, static_cast<std::size_t>(fit) + 1);
  const auto across = [&](const std::vector<Card>& row) {
    return StepFor(row.size(), area.width(), width, kRowStepAcross * width);
  };
  double block = 0;
  for (const auto& row : rows) {
    block = std::max(block, width + across(row) * static_cast<double>(row.size() - 1));
  }
  const double down = StepFor(std::max<std::size_t>(rows.size(), kSuits), area.height(),
                              layout.cardSize.height(), kMostRowStep * layout.cardSize.height());
  // Each hand keeps to its own edge of the table.
  const double left = seat == Seat::West ? area.left() : area.right() - block;
  double y = area.top();
  for (const auto& row : rows) {
    double x = left;
    for (const Card card : row) {
      layout.cards.push_back({seat, card, QRectF({x, y}, layout.cardSize)});
      x += across(row);
    }
    y += down;
  }
}

}  // namespace

TableLayout LayOutTable(QSizeF size, const HandTable& hands, HandDisplay display) {
  const Measures measures = Measure(size);
  TableLayout layout;
  layout.felt = QRectF(QPointF(), size);
  layout.cardSize = {measures.cardWidth, measures.cardHeight};
  PlaceAreas(layout, measures, display);
  if (display == HandDisplay::Text) return layout;
  for (const Seat seat : kAllSeats) {
    const bool fan = seat == Seat::North || seat == Seat::South;
    fan ? PlaceFan(layout, hands[seat], seat) : PlaceRows(layout, hands[seat], seat);
  }
  return layout;
}

double WidthOfTable(double height) {
  const Measures m = Measure({height * kMostAspect, height});  // the height alone bounds the cards
  return (2 * kWishedSide + kLeastCentre) * m.cardWidth + 2 * (m.gap + m.margin);
}

std::optional<PlacedCard> CardAt(const TableLayout& layout, QPointF point) {
  std::optional<PlacedCard> uppermost;
  for (const PlacedCard& placed : layout.cards) {
    if (placed.rect.contains(point)) uppermost = placed;
  }
  return uppermost;
}

}  // namespace tricklet::ui
