#include "ui/table/table_layout.h"

#include <algorithm>
#include <cmath>

#include <QMarginsF>

namespace tricklet::ui {
namespace {

// Proportions of a card of poker size, 63 x 88 mm.
constexpr double kCardAspect = 1.4;  // height to width
// Lengths in cards' widths.
constexpr double kRowStepAcross = 0.5;  // West and East, where there is room
constexpr double kLeastStep = 0.33;     // the index still shows, that of a ten too
constexpr double kLeastSide = 2.7;      // West and East
constexpr double kWishedSide = 3.2;
constexpr double kSideInPlay = 2.8;  // the trick needs its room, and the hands get shorter
constexpr double kLeastCentre = 2.4;
constexpr double kMostCentre = 4.2;
constexpr QMarginsF kMarkMargins(0.035, 0.62, 0.015, 0.015);  // of a mark, in the card's corner
constexpr QSizeF kMark(0.36, 0.24);
constexpr double kLeastMark = 0.15;  // its height where a row below leaves no more
// Lengths in cards' heights.
constexpr double kRowStep = 0.5;  // from one suit's row to the next
constexpr double kMostRowStep = 0.62;
constexpr double kCentreHeight = 2.2;
constexpr double kCentreShare = 0.7;  // of the height of West's and East's areas
constexpr int kBacksInRow = 4;        // West and East face down
/// Contract and tricks would be too small to be read in a single line of less, in pixels.
constexpr double kLeastLine = 160;
/// North and South draw the sides towards the middle on a table that is wider than this.
constexpr double kMostAspect = 1.7;

/// The lengths that all parts share.
struct Measures {
  double margin;  // of the felt
  QRectF room;    // the felt without it
  double gap;
  double captionHeight;
  double sideCaptionHeight;  // West and East
  double lineHeight;         // below the trick
  double cardWidth;
  double cardHeight;
};

/// The size of text whose capitals are high enough for the back of a room.
double PresentationText(double height) {
  constexpr double kCapitals = 0.7;  // of the size, in common fonts
  return kPresentationText / kCapitals * height;
}

/// What is left of the height between the captions and their gaps.
double HeightForHands(const Measures& m) {
  return m.room.height() - 2 * m.captionHeight - m.sideCaptionHeight - 5 * m.gap;
}

Measures Measure(QSizeF size, const TableNeeds& needs = {}) {
  const double width = std::max(1.0, size.width());
  const double height = std::max(1.0, size.height());
  Measures m{};
  m.margin = std::clamp(0.018 * std::min(width, height), 4.0, 28.0);
  m.gap = std::round(0.7 * m.margin);
  m.captionHeight = std::round(std::clamp(0.042 * std::min(width, height), 14.0, 96.0));
  m.lineHeight = m.captionHeight;
  const double text = PresentationText(height);
  if (needs.presentation) {
    m.captionHeight = std::max(m.captionHeight, std::ceil(text / kCaptionText));
    // Contract and tricks, one above the other, as letters of this size need more than the trick.
    m.lineHeight = std::ceil(2 * kLineStep * text);
  }
  m.sideCaptionHeight = m.captionHeight + std::ceil((needs.sideLines - 1) * kLineStep * text);
  const double across = std::min(width, height * kMostAspect) - 2 * m.margin;
  m.room = QRectF((width - across) / 2, m.margin, across, height - 2 * m.margin);
  const double wide = m.room.width() - 2 * m.gap;
  m.cardWidth = std::floor(std::min(wide / (2 * kLeastSide + kLeastCentre),
                                    HeightForHands(m) / (3 + 3 * kRowStep) / kCardAspect));
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
  const double high = HeightForHands(m);
  if (display == HandDisplay::Text) return {high / 3, high / 3};
  const double side = std::min(high - 2 * m.cardHeight, m.cardHeight * (1 + 3 * kMostRowStep));
  return {m.cardHeight, std::max(side, m.cardHeight)};
}

double CentreWidth(const Measures& m, const TableNeeds& needs) {
  const double wide = m.room.width() - 2 * m.gap;
  if (needs.display == HandDisplay::Text) return std::max(1.0, 0.25 * wide);
  const double side = needs.play ? kSideInPlay : kWishedSide;
  return std::clamp(wide - 2 * side * m.cardWidth, kLeastCentre * m.cardWidth,
                    kMostCentre * m.cardWidth);
}

/// The middle between plays; during play it reaches from the side hands' upper edge down to the
/// line below it.
void PlaceCentre(TableLayout& layout, const Measures& m, const TableNeeds& needs) {
  const QRectF& west = layout.hands[Seat::West].area;
  const double left = west.right() + m.gap;
  const double width = layout.hands[Seat::East].area.left() - m.gap - left;
  if (needs.play) {
    layout.linesInLine = needs.presentation || width < kLeastLine ? 2 : 1;
    const double height = needs.presentation ? m.lineHeight : layout.linesInLine * m.captionHeight;
    layout.line = QRectF(left, west.bottom() - height, width, height);
    layout.centre = QRectF(left, west.top(), width, layout.line.top() - m.gap / 2 - west.top());
    return;
  }
  double wished = std::max(kCentreHeight * m.cardHeight, west.height() * kCentreShare);
  if (needs.presentation) wished = std::max(wished, width / kWideCentre);
  const double height = std::min(west.height(), std::floor(wished));
  layout.centre = QRectF(0, 0, width, std::round(height));
  layout.centre.moveCenter({m.room.center().x(), west.center().y()});
}

void PlaceAreas(TableLayout& layout, const Measures& m, const TableNeeds& needs) {
  const Heights heights = AreaHeights(m, needs.display);
  const QRectF& room = m.room;
  const double step = m.captionHeight + m.gap;
  const double sideStep = m.sideCaptionHeight + m.gap;
  PlacedHand& north = layout.hands[Seat::North];
  PlacedHand& south = layout.hands[Seat::South];
  north.caption = {room.left(), room.top(), room.width(), m.captionHeight};
  north.area = {room.left(), room.top() + step, room.width(), heights.row};
  south.caption = {room.left(), room.bottom() - m.captionHeight, room.width(), m.captionHeight};
  south.area = {room.left(), room.bottom() - step - heights.row, room.width(), heights.row};

  const double middle = (north.area.bottom() + south.area.top()) / 2;
  const double top = std::round(middle - (sideStep + heights.side) / 2);
  const double centreWidth = std::round(CentreWidth(m, needs));
  const double sideWidth = (room.width() - centreWidth) / 2 - m.gap;
  const double captionWidth = (room.width() - m.gap) / 2;
  PlacedHand& west = layout.hands[Seat::West];
  PlacedHand& east = layout.hands[Seat::East];
  west.caption = {room.left(), top, captionWidth, m.sideCaptionHeight};
  west.area = {room.left(), top + sideStep, sideWidth, heights.side};
  east.caption = {room.right() - captionWidth, top, captionWidth, m.sideCaptionHeight};
  east.area = {room.right() - sideWidth, top + sideStep, sideWidth, heights.side};
  west.lines = east.lines = needs.sideLines;
  PlaceCentre(layout, m, needs);
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

/// A card at `corner` of which later cards leave `inSight` uncovered, from that corner on.
PlacedCard Placed(const TableLayout& layout, Seat seat, Card card, QPointF corner, QSizeF inSight) {
  const double unit = layout.cardSize.width();
  const QRectF rect(corner, layout.cardSize);
  QRectF mark(0, 0, kMark.width() * unit, 0);
  mark.setWidth(std::min(mark.width(), inSight.width() - 2 * kMarkMargins.left() * unit));
  const double bottom = inSight.height() - kMarkMargins.bottom() * unit;
  mark.moveTop(std::min(kMarkMargins.top() * unit, bottom - kLeastMark * unit));
  mark.setBottom(std::min(bottom, mark.top() + kMark.height() * unit));
  return {seat, card, rect, mark.translated(corner.x() + kMarkMargins.left() * unit, corner.y())};
}

struct Fan {
  double left;
  double step;
};
Fan FanOf(const TableLayout& layout, Seat seat, std::size_t count) {
  const QRectF& area = layout.hands[seat].area;
  const double width = layout.cardSize.width();
  const double step = StepFor(count, area.width(), width, kFanStep * width);
  const double fan = width + step * (static_cast<double>(count) - 1);
  return {area.center().x() - fan / 2, step};
}

void PlaceFan(TableLayout& layout, const PerSuit<Holding>& hand, Seat seat) {
  std::vector<Card> cards;
  for (const Suit suit : kTableSuits) {
    const std::vector<Card> held = CardsOf(suit, hand[suit]);
    cards.insert(cards.end(), held.begin(), held.end());
  }
  const Fan fan = FanOf(layout, seat, cards.size());
  const QSizeF inSight(cards.size() < 2 ? layout.cardSize.width() : fan.step,
                       layout.cardSize.height());
  QPointF corner(fan.left, layout.hands[seat].area.top());
  for (const Card card : cards) {
    layout.cards.push_back(Placed(layout, seat, card, corner, inSight));
    corner.rx() += fan.step;
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
  QPointF corner(left, area.top());
  for (const auto& row : rows) {
    const double step = across(row);
    const QSizeF inSight(row.size() < 2 ? width : step, down);
    corner.rx() = left;
    for (const Card card : row) {
      layout.cards.push_back(Placed(layout, seat, card, corner, inSight));
      corner.rx() += step;
    }
    corner.ry() += down;
  }
}

bool LiesInFan(Seat seat) {
  return seat == Seat::North || seat == Seat::South;
}

/// A hand face down: a fan, or rows of equal length whatever the suits are.
void PlaceBacks(TableLayout& layout, int count, Seat seat) {
  const QRectF& area = layout.hands[seat].area;
  const QSizeF card = layout.cardSize;
  const bool one = LiesInFan(seat);
  const int inRow = one ? count : std::min(count, kBacksInRow);
  Fan row = FanOf(layout, seat, static_cast<std::size_t>(inRow));
  if (!one) {
    row.step = std::min(row.step, kRowStepAcross * card.width());
    const double block = card.width() + row.step * (inRow - 1);
    row.left = seat == Seat::West ? area.left() : area.right() - block;
  }
  const int rows = std::max(kSuits, inRow == 0 ? 0 : (count + inRow - 1) / inRow);
  const double down = StepFor(static_cast<std::size_t>(rows), area.height(), card.height(),
                              kMostRowStep * card.height());
  for (int back = 0; back < count; ++back) {
    const int above = back / inRow;  // whole rows
    const QPointF corner(row.left + row.step * (back % inRow), area.top() + down * above);
    layout.backs.push_back({seat, QRectF(corner, card)});
  }
}

}  // namespace

TableLayout LayOutTable(QSizeF size, const HandTable& hands, const TableNeeds& needs) {
  const Measures measures = Measure(size, needs);
  TableLayout layout;
  layout.felt = QRectF(QPointF(), size);
  layout.cardSize = {measures.cardWidth, measures.cardHeight};
  if (needs.presentation) layout.leastCaption = PresentationText(size.height());
  PlaceAreas(layout, measures, needs);
  if (needs.display == HandDisplay::Text) return layout;
  for (const Seat seat : kAllSeats) {
    if (needs.hidden[seat]) {
      PlaceBacks(layout, CardsIn(hands[seat]), seat);
    } else {
      LiesInFan(seat) ? PlaceFan(layout, hands[seat], seat) : PlaceRows(layout, hands[seat], seat);
    }
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
