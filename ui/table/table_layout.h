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

/// What is to find room on the table.
struct TableNeeds {
  HandDisplay display = HandDisplay::Cards;
  PerSeat<bool> hidden{};     ///< these hands lie face down
  bool play = false;          ///< a trick in the middle and a line of text below it
  bool presentation = false;  ///< captions that can be read from the back of a room
  int sideLines = 1;          ///< of text in West's and East's captions
};

/// The centre of a table that is at least as wide, in its heights, has all its lines between West
/// and East.
inline constexpr double kWideCentre = 1.25;

/// Least height of the captions' capitals in a presentation, as a share of the table's height.
inline constexpr double kPresentationText = 1.0 / 30;
/// Size of a caption's text, as a share of the height of its room.
inline constexpr double kCaptionText = 0.66;
/// From one line of text to the next, in sizes of the text.
inline constexpr double kLineStep = 1.2;

struct PlacedCard {
  Seat seat = Seat::North;
  Card card;
  QRectF rect;  ///< the whole card; cards that are painted later may lie over part of it
  QRectF mark;  ///< within it, in sight and beside the index: room for a number of two digits
};

/// A card that lies face down.
struct PlacedBack {
  Seat seat = Seat::North;
  QRectF rect;
};

struct PlacedHand {
  QRectF caption;  ///< room for the caption, which may be smaller
  int lines = 1;   ///< of text in the caption, at the most
  QRectF area;     ///< room for the cards or the text
};

/// In the widget's pixels. Captions, areas and the centre do not overlap one another.
struct TableLayout {
  QRectF felt;
  QRectF centre;
  QRectF line;          ///< below the centre: room for contract and tricks; empty outside of play
  int linesInLine = 1;  ///< of text in `line`
  QSizeF cardSize;
  double leastCaption = 0;  ///< size of the captions' text, in pixels, that is not to be missed
  PerSeat<PlacedHand> hands;
  std::vector<PlacedCard> cards;  ///< in paint order; empty in the text display
  std::vector<PlacedBack> backs;  ///< likewise; their places tell how many cards there are, no more
};

/// Lays out the table for a widget of `size`. Card size, areas and captions depend on the size and
/// the needs alone, so that nothing jumps from board to board. Any number of cards may be in a
/// hand: North and South close up the fan; West and East close up a row and break it into two where
/// its cards could not be told apart.
TableLayout LayOutTable(QSizeF size, const HandTable& hands, const TableNeeds& needs);

/// The width with which a table of this height shows its largest cards without closing them up.
double WidthOfTable(double height);

/// The uppermost card at `point`.
std::optional<PlacedCard> CardAt(const TableLayout& layout, QPointF point);

}  // namespace tricklet::ui
