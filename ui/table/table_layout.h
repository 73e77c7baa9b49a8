// Where everything lies on the table: plain geometry, no painting.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include "core/board.h"
#include "core/holding.h"
#include "core/notation.h"

namespace tricklet::ui {

/// The suits of a hand from left to right (or top to bottom) in alternating colours.
inline constexpr std::array kTableSuits{Suit::Spades, Suit::Hearts, Suit::Clubs, Suit::Diamonds};

/// From one card of North's and South's fans to the next, in cards' widths, where there is room.
inline constexpr double kFanStep = 0.6;

enum class HandDisplay : std::uint8_t { Cards, Text };

struct PlacedCard {
  Seat seat = Seat::North;
  Card card;
  QRectF rect;  ///< the whole card; cards that are painted later may lie over part of it
};

struct PlacedHand {
  QRectF caption;  ///< room for the caption, which may be smaller
  QRectF area;     ///< room for the cards or the text
};

/// In the widget's pixels. Captions, areas and the centre do not overlap one another.
struct TableLayout {
  QRectF felt;
  QRectF centre;
  QSizeF cardSize;
  PerSeat<PlacedHand> hands;
  std::vector<PlacedCard> cards;  ///< in paint order; empty in the text display
};

/// Lays out the table for a widget of `size`. Card size, areas and captions depend on the size
/// alone, so that nothing jumps from board to board. Any number of cards may be in a hand: North
/// and South close up the fan; West and East close up a row and break it into two where its cards
/// could not be told apart.
TableLayout LayOutTable(QSizeF size, const HandTable& hands, HandDisplay display);

/// The width with which a table of this height shows its largest cards without closing them up.
double WidthOfTable(double height);

/// The uppermost card at `point`.
std::optional<PlacedCard> CardAt(const TableLayout& layout, QPointF point);

}  // namespace tricklet::ui
