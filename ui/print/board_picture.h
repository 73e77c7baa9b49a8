// What is seen of a board, as a picture for letters and forums.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSizeF>

#include "publish/diagram.h"

class QPainter;

namespace tricklet::ui {

struct PrintStyle;

/// In points, with a margin round it.
QSizeF BoardPictureSize(const SeenBoard& seen);

/// Paints hands, calls and what stands below them from the upper left corner on. The painter's unit
/// is to be a point.
void PaintBoardPicture(QPainter& painter, const SeenBoard& seen, const PrintStyle& style);

/// On white, with `scale` times as many dots as a screen of 96 dots to the inch has.
QImage BoardImage(const SeenBoard& seen, const PrintStyle& style, double scale);

/// A document of SVG.
QByteArray BoardSvg(const SeenBoard& seen, const PrintStyle& style);

}  // namespace tricklet::ui
