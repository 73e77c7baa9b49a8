#include "ui/dialogs/design_thumbnail.h"

#include <QPainter>
#include <QPixmap>

#include "ui/cards/card_painter.h"

namespace tricklet::ui {

QIcon DesignThumbnail(CardDesign design, QSize size, double pixelRatio) {
  QPixmap picture(size * pixelRatio);
  picture.setDevicePixelRatio(pixelRatio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  PaintThumbnail(painter, QRect(QPoint(), size), design, true);
  return picture;
}

}  // namespace tricklet::ui
