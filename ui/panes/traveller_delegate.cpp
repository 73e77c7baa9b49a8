#include "ui/panes/traveller_delegate.h"

#include <QPainter>

#include "ui/panes/traveller_model.h"
#include "ui/style/cell_text.h"

namespace tricklet::ui {
namespace {

void DrawParLines(QPainter& painter, const QRect& room, const QColor& colour) {
  painter.setPen(QPen(colour, 1, Qt::DashLine));
  painter.drawLine(room.topLeft(), room.topRight());
  painter.drawLine(room.bottomLeft(), room.bottomRight());
}

}  // namespace

void TravellerDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  if (!index.data(TravellerModel::ParRole).toBool()) {
    SuitDelegate::paint(painter, option, index);
    return;
  }
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  DrawCell(*painter, cell);
  painter->save();
  DrawParLines(*painter, option.rect, option.palette.color(QPalette::PlaceholderText));
  painter->restore();
}

}  // namespace tricklet::ui
