// A painting as a picture made of dots.
#pragma once

#include <functional>

#include <QImage>
#include <QSizeF>

class QPainter;

namespace tricklet::ui {

inline constexpr double kPointsPerInch = 72;

/// What `paint` paints on white with a painter whose unit is a point; `size` in points. Null where
/// there is not enough memory.
QImage Raster(QSizeF size, double dotsPerInch, const std::function<void(QPainter&)>& paint);

}  // namespace tricklet::ui
