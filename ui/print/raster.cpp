#include "ui/print/raster.h"

#include <QPainter>

namespace tricklet::ui {

QImage Raster(QSizeF size, double dotsPerInch, const std::function<void(QPainter&)>& paint) {
  constexpr double kMetresPerInch = 0.0254;
  const double scale = dotsPerInch / kPointsPerInch;
  QImage image((size * scale).toSize(), QImage::Format_RGB32);
  if (image.isNull()) return image;
  const int dotsPerMetre = qRound(dotsPerInch / kMetresPerInch);
  image.setDotsPerMeterX(dotsPerMetre);
  image.setDotsPerMeterY(dotsPerMetre);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.scale(scale, scale);
  paint(painter);
  return image;
}

}  // namespace tricklet::ui
