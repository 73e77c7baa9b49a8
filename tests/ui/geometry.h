// What tests ask of places and pictures.
#pragma once

#include <array>
#include <ostream>
#include <vector>

#include <QImage>
#include <QSizeF>
#include <QWidget>
#include <gtest/gtest.h>

#include "tests/support/hands.h"
#include "ui/table/edit_layout.h"

/// "760x680"; found by GoogleTest because it is in the namespace of the type.
inline void PrintTo(const QSizeF& size, std::ostream* out) {
  *out << size.width() << "x" << size.height();
}

namespace tricklet::ui {

/// Of a table: down to its minimum size, square, wide, tall, and up to 4K.
inline constexpr std::array kTableSizes{QSizeF(380, 340),  QSizeF(520, 480),  QSizeF(760, 680),
                                        QSizeF(520, 900),  QSizeF(1600, 600), QSizeF(1600, 1000),
                                        QSizeF(3840, 2160)};

inline const std::string kOrdinaryDeal =
    "N:AQ975.K86.KT2.J4 84.T732.AQ3.T652 KJT3.A4.9654.AK7 62.QJ95.J87.Q983";
/// Its dealer is South.
inline Board OrdinaryBoard() {
  Board board;
  board.boardNumber = 7;
  board.hands = test::HandsOf(kOrdinaryDeal);
  return board;
}

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

inline QImage PictureOf(QWidget& widget) {
  QImage picture(widget.size(), QImage::Format_RGB32);
  picture.fill(Qt::black);
  widget.render(&picture);
  return picture;
}

/// No two of the pictures are the same.
inline void ExpectDifferent(const std::vector<QImage>& pictures) {
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(pictures[i], pictures[j]) << i << " and " << j;
  }
}

}  // namespace tricklet::ui
