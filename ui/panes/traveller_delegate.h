// One cell of the traveller's grid.
#pragma once

#include <QStyledItemDelegate>

namespace tricklet::ui {

/// Draws the suit symbol within a text in its own colour, and lines above and below par.
class TravellerDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace tricklet::ui
