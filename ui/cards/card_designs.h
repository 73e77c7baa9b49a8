// The three designs of card faces.
#pragma once

#include <QColor>
#include <QPainter>

#include "core/holding.h"
#include "core/settings.h"

namespace tricklet::ui {

/// The size in which a face is drawn; the painter's transformation brings it to the screen's.
inline constexpr double kFaceWidth = 100;
inline constexpr double kFaceHeight = 140;

/// Draws what is printed on `card`, with the upper left corner at the origin. Where a design prints
/// in reverse, what it leaves out is in the colour of the `paper`.
void DrawFace(QPainter& painter, Card card, CardDesign design, const QColor& ink,
              const QColor& paper);

}  // namespace tricklet::ui
