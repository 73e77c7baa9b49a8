// Geometry of the table while hands are edited.
#include "ui/table/edit_layout.h"

#include <vector>

#include <gtest/gtest.h>

#include "core/board.h"

namespace tricklet::ui {
namespace {

// The table of a window of 1024 x 700, smaller, wide, tall, and up to 4K.
const std::array kSizes{QSizeF(780, 640),  QSizeF(560, 420),  QSizeF(520, 900),
                        QSizeF(1600, 600), QSizeF(1600, 980), QSizeF(3600, 2100)};

TEST(EditLayout, KeepsHandsPackAndCentreApartAndOnTheFelt) {
  for (const QSizeF size : kSizes) {
    const EditLayout layout = LayOutEdit(size, {});
    std::vector<QRectF> parts{layout.table.centre};
    for (const HandFrame frame : kAllFrames) {
      parts.push_back(layout.Caption(frame));
      parts.push_back(layout.Area(frame));
    }
    for (std::size_t i = 0; i < parts.size(); ++i) {
      EXPECT_TRUE(QRectF(QPointF(), size).contains(parts[i])) << size.width() << " part " << i;
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_FALSE(parts[i].intersects(parts[j])) << size.width() << ": " << i << " and " << j;
      }
    }
    for (const HandFrame frame : kAllFrames) {
      EXPECT_EQ(FrameAt(layout, layout.Caption(frame).center()), frame);
      EXPECT_EQ(FrameAt(layout, layout.Area(frame).center()), frame);
    }
    EXPECT_FALSE(FrameAt(layout, layout.table.centre.center()));
    EXPECT_FALSE(FrameAt(layout, {-1, -1}));
  }
}

TEST(EditLayout, ShowsTheIndexOfEveryCardOfAFullPack) {
  for (const QSizeF size : kSizes) {
    const EditLayout layout = LayOutEdit(size, {});
    EXPECT_GE(layout.packCardSize.width(), 30) << size.width();
    for (const Card card : PackOrder()) {
      const QRectF& place = layout.packPlaces.at(static_cast<std::size_t>(card.Index()));
      EXPECT_TRUE(layout.packArea.adjusted(-1, -1, 1, 1).contains(place)) << size.width();
      const QPointF index(0.25 * place.width(), 0.35 * place.height());
      const auto hit = EditedCardAt(layout, {}, place.topLeft() + index);
      ASSERT_TRUE(hit);
      EXPECT_EQ(hit->card, card) << size.width();
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
  ASSERT_TRUE(below);
  EXPECT_EQ(below->card, (Card{Suit::Hearts, Rank::Ace})) << "the card that it lay on";
  const auto held = EditedCardAt(after, hands, after.table.cards.front().rect.center());
  ASSERT_TRUE(held);
  EXPECT_EQ(held->card, king);
}

}  // namespace
}  // namespace tricklet::ui
