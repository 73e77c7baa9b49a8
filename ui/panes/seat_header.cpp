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
  painter->drawText(rect, Qt::AlignCenter, model()->headerData(section, orientation()).toString());
  painter->restore();
}

}  // namespace tricklet::ui
