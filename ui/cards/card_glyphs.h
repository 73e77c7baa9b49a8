// Suit symbols and ranks as outlines, for drawing at any scale.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include "core/notation.h"

namespace tricklet::ui {

/// The symbol of `suit`, `height` high (and at most as wide), with the middle of its box at
/// `middle`.
QPainterPath SuitOutline(Suit suit, QPointF middle, double height);

/// The display text of `rank` in `box`: as high as the box, on its lower edge and centred; narrowed
/// where it would be wider than the box.
QPainterPath RankOutline(Rank rank, const QRectF& box);

}  // namespace tricklet::ui
