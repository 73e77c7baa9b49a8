#include "ui/table/edit_layout.h"

#include <algorithm>
#include <cmath>

namespace tricklet::ui {
namespace {

constexpr double kPackShare = 0.28;  // of the widget's width
/// A suit of the pack lies in two rows: seven cards, and below them the other six.
constexpr int kRowCards = 7;
// In cards' widths and heights.
constexpr double kLeastAcross = 0.27;  // the index still shows
constexpr double kMostAcross = 0.6;
constexpr double kLeastDown = 0.4;
constexpr double kRowDown = 0.46;        // within a suit
constexpr double kMostSuitDown = 1.56;   // from one suit to the next: nothing is covered
constexpr double kLeastSuitShare = 2.2;  // from one suit to the next where room is short, in rows

double PackWidth(QSizeF size) {
  return std::round(kPackShare * size.width());
}

/// A card of the table, or smaller where the pack would not fit.
QSizeF PackCardSize(const QRectF& area, QSizeF card) {
  const double wide = area.width() / (1 + (kRowCards - 1) * kLeastAcross);
  const double rows = 1 + kLeastDown * (1 + (kSuits - 1) * kLeastSuitShare);
  const double high = area.height() / rows / (card.height() / card.width());
  const double width = std::max(1.0, std::floor(std::min({card.width(), wide, high})));
  return {width, std::round(width * card.height() / card.width())};
}

void PlacePack(EditLayout& layout) {
  layout.packCardSize = PackCardSize(layout.packArea, layout.table.cardSize);
  const double width = layout.packCardSize.width();
  const double height = layout.packCardSize.height();
  const double across =
      std::min((layout.packArea.width() - width) / (kRowCards - 1), kMostAcross * width);
  const double free = layout.packArea.height() - height;
  const double row = std::min(kRowDown * height, free / (1 + (kSuits - 1) * kLeastSuitShare));
  const double suit = std::min((free - row) / (kSuits - 1), kMostSuitDown * height);
  const double left = layout.packArea.center().x() - (width + across * (kRowCards - 1)) / 2;
  double top = layout.packArea.top();
  for (const Suit each : kTableSuits) {
    for (int rank = 0; rank < kRanks; ++rank) {
      const QPointF corner(left + across * (rank % kRowCards), rank < kRowCards ? top : top + row);
      const auto index = static_cast<std::size_t>(Card{each, static_cast<Rank>(rank)}.Index());
      layout.packPlaces.at(index) = QRectF(corner, layout.packCardSize);
    }
    top += suit;
  }
}

}  // namespace

HandFrame FrameHolding(const HandTable& hands, Card card) {
  const int seat = SeatHolding(hands, card);
  return seat < 0 ? HandFrame::Pack : static_cast<HandFrame>(seat);
}

const QRectF& EditLayout::Caption(HandFrame frame) const {
  const auto seat = SeatOf(frame);
  return seat ? table.hands[*seat].caption : packCaption;
}
const QRectF& EditLayout::Area(HandFrame frame) const {
  const auto seat = SeatOf(frame);
  return seat ? table.hands[*seat].area : packArea;
}

EditLayout LayOutEdit(QSizeF size, const HandTable& hands) {
  const double packWidth = PackWidth(size);
  EditLayout layout;
  layout.table = LayOutTable(size - QSizeF(packWidth, 0), hands, {});
  layout.table.felt = QRectF(QPointF(), size);
  const PlacedHand& north = layout.table.hands[Seat::North];
  const double margin = north.caption.top();
  const QRectF strip(size.width() - packWidth, margin, packWidth - margin,
                     size.height() - 2 * margin);
  layout.packCaption = strip;
  layout.packCaption.setHeight(north.caption.height());
  layout.packArea = strip;
  layout.packArea.setTop(north.area.top());
  PlacePack(layout);
  return layout;
}

std::array<Card, kCardsInPack> PackOrder() {
  std::array<Card, kCardsInPack> order;
  auto* next = order.begin();
  for (const Suit suit : kTableSuits) {
    for (int rank = 0; rank < kRanks; ++rank) *next++ = {suit, static_cast<Rank>(rank)};
  }
  return order;
}

std::optional<EditedCard> EditedCardAt(const EditLayout& layout, const HandTable& hands,
                                       QPointF point) {
  if (const auto held = CardAt(layout.table, point)) return EditedCard{held->card, held->rect};
  std::optional<EditedCard> uppermost;
  for (const Card card : PackOrder()) {
    const QRectF& place = layout.packPlaces.at(static_cast<std::size_t>(card.Index()));
    if (place.contains(point) && SeatHolding(hands, card) < 0) uppermost = EditedCard{card, place};
  }
  return uppermost;
}

std::optional<HandFrame> FrameAt(const EditLayout& layout, QPointF point) {
  for (const HandFrame frame : kAllFrames) {
    if (layout.Caption(frame).contains(point) || layout.Area(frame).contains(point)) return frame;
  }
  return std::nullopt;
}

}  // namespace tricklet::ui
