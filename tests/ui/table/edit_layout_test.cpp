// Geometry of the table while hands are edited.
#include "ui/table/edit_layout.h"

#include <vector>

#include <gtest/gtest.h>

#include "tests/ui/geometry.h"

namespace tricklet::ui {
namespace {

TEST(EditLayout, KeepsHandsPackAndCentreApartAndEveryCardOfAFullPackInSight) {
  for (const QSizeF size : kTableSizes) {
    SCOPED_TRACE(testing::PrintToString(size));
    const EditLayout layout = LayOutEdit(size, {});
    std::vector<QRectF> parts{layout.table.centre};
    for (const HandFrame frame : kAllFrames) {
      for (const QRectF& part : {layout.Caption(frame), layout.Area(frame)}) {
        parts.push_back(part);
        EXPECT_EQ(FrameAt(layout, part.center()), frame);
      }
    }
    ExpectApart(QRectF(QPointF(), size), parts);
    EXPECT_FALSE(FrameAt(layout, layout.table.centre.center()) || FrameAt(layout, {-1, -1}));

    EXPECT_GE(layout.packCardSize.width(), 30);
    for (const Card card : PackOrder()) {
      const QRectF& place = layout.packPlaces.at(static_cast<std::size_t>(card.Index()));
      EXPECT_TRUE(layout.packArea.adjusted(-1, -1, 1, 1).contains(place));
      const QPointF index(0.25 * place.width(), 0.35 * place.height());
      const auto hit = EditedCardAt(layout, {}, place.topLeft() + index);
      EXPECT_TRUE(hit && hit->card == card);
    }
  }
}

TEST(EditLayout, LeavesTheOtherCardsWhereTheyAreWhenOneIsDealt) {
  const Card king{Suit::Hearts, Rank::King};
  HandTable hands;
  AddCard(hands, king, Seat::East);
  const EditLayout before = LayOutEdit({780, 640}, {});
  const EditLayout after = LayOutEdit({780, 640}, hands);
  EXPECT_EQ(before.packPlaces, after.packPlaces);
  const QRectF& place = after.packPlaces.at(static_cast<std::size_t>(king.Index()));
  const auto below = EditedCardAt(after, hands, place.topLeft() + QPointF(6, 6));
  const auto held = EditedCardAt(after, hands, after.table.cards.front().rect.center());
  ASSERT_TRUE(below && held);
  EXPECT_EQ(below->card, (Card{Suit::Hearts, Rank::Ace})) << "the card that it lay on";
  EXPECT_EQ(held->card, king);
}

}  // namespace
}  // namespace tricklet::ui
