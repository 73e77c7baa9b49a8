// What tests ask of places and pictures.
#pragma once

#include <ostream>
#include <vector>

#include <QImage>
#include <QSizeF>
#include <gtest/gtest.h>

#include "ui/table/edit_layout.h"

/// "760x680"; found by GoogleTest because it is in the namespace of the type.
inline void PrintTo(const QSizeF& size, std::ostream* out) {
  *out << size.width() << "x" << size.height();
}

namespace tricklet::ui {

/// Where the card can be seized: no other one lies over its index.
inline QPointF SeizePoint(const EditLayout& layout, Card card) {
  constexpr QPointF kIntoTheIndex(4, 4);
  for (const PlacedCard& placed : layout.table.cards) {
    if (placed.card == card) return placed.rect.topLeft() + kIntoTheIndex;
  }
  return layout.packPlaces.at(static_cast<std::size_t>(card.Index())).topLeft() + kIntoTheIndex;
}

/// All of the parts lie in the room, and none of them over another.
inline void ExpectApart(const QRectF& room, const std::vector<QRectF>& parts) {
  for (std::size_t i = 0; i < parts.size(); ++i) {
    EXPECT_FALSE(parts[i].isEmpty()) << "part " << i;
    EXPECT_TRUE(room.contains(parts[i])) << "part " << i;
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(parts[i].intersects(parts[j])) << "parts " << i << " and " << j;
    }
  }
}

/// No two of the pictures are the same.
inline void ExpectDifferent(const std::vector<QImage>& pictures) {
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(pictures[i], pictures[j]) << i << " and " << j;
  }
}

}  // namespace tricklet::ui
