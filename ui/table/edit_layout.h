// Where everything lies on the table while its hands are edited: plain geometry, no painting.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "ui/table/table_layout.h"

namespace tricklet::ui {

/// Where a card can lie: in one of the four hands, or in the pack.
enum class HandFrame : std::uint8_t { North, East, South, West, Pack };
inline constexpr std::array kAllFrames{HandFrame::North, HandFrame::East, HandFrame::South,
                                       HandFrame::West, HandFrame::Pack};

constexpr HandFrame FrameOf(Seat seat) {
  return static_cast<HandFrame>(seat);
}
/// Nothing for the pack.
constexpr std::optional<Seat> SeatOf(HandFrame frame) {
  if (frame == HandFrame::Pack) return std::nullopt;
  return static_cast<Seat>(frame);
}
/// Where `hands` have the card.
HandFrame FrameHolding(const HandTable& hands, Card card);

/// In the widget's pixels. The hands lie on the left as on the table at any other time; the pack
/// has the strip on their right.
struct EditLayout {
  TableLayout table;  ///< its felt lies below the pack too
  QRectF packCaption;
  QRectF packArea;
  QSizeF packCardSize;
  /// Each card's own place in the pack, by its index. Cards keep it whatever else has been dealt,
  /// so that nothing moves under the mouse.
  std::array<QRectF, kCardsInPack> packPlaces;

  /// Room for the caption and for the cards of a hand or the pack. The ten rooms do not overlap.
  const QRectF& Caption(HandFrame frame) const;
  const QRectF& Area(HandFrame frame) const;
};

EditLayout LayOutEdit(QSizeF size, const HandTable& hands);

/// The cards of the pack in the order in which they are painted.
std::array<Card, kCardsInPack> PackOrder();

struct EditedCard {
  Card card;
  QRectF rect;
};
/// The uppermost card at `point`, in a hand or in the pack.
std::optional<EditedCard> EditedCardAt(const EditLayout& layout, const HandTable& hands,
                                       QPointF point);

/// The hand or the pack whose cards or caption have their room at `point`.
std::optional<HandFrame> FrameAt(const EditLayout& layout, QPointF point);

}  // namespace tricklet::ui
