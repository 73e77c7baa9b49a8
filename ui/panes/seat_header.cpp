#include "ui/panes/seat_header.h"

#include <QAbstractItemModel>
#include <QBrush>
#include <QPainter>

namespace tricklet::ui {

SeatHeader::SeatHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

void SeatHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
  const auto brush = [&](int role, QPalette::ColorRole otherwise) {
    const QVariant given = model()->headerData(section, orientation(), role);
    return given.isValid() ? given.value<QBrush>() : palette().brush(otherwise);
  };
  painter->save();
  painter->fillRect(rect, brush(Qt::BackgroundRole, QPalette::Button));
  painter->setPen(palette().color(QPalette::Mid));
  painter->drawLine(rect.bottomLeft(), rect.bottomRight());
  if (section + 1 < count()) painter->drawLine(rect.topRight(), rect.bottomRight());
  painter->setFont(font());
  painter->setPen(brush(Qt::ForegroundRole, QPalette::ButtonText).color());
  QString text = model()->headerData(section, orientation()).toString();
  if (fontMetrics().horizontalAdvance(text) > rect.width()) {
    text = model()->headerData(section, orientation(), kShortRole).toString();
  }
  QFont fitting = font();
  const int width = fontMetrics().horizontalAdvance(text);
  if (width > rect.width()) {
    fitting.setPointSizeF(fitting.pointSizeF() * rect.width() / width);
    painter->setFont(fitting);
  }
  painter->drawText(rect, Qt::AlignCenter, text);
  painter->restore();
}

}  // namespace tricklet::ui
