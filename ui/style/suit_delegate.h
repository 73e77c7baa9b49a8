// Cells whose texts have suit symbols in them.
#pragma once

#include <QStyledItemDelegate>

namespace tricklet::ui {

/// Draws the symbols in the colours of their suits.
class SuitDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void SetFourColours(bool fourColours) { fourColours_ = fourColours; }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  bool fourColours_ = false;
};

}  // namespace tricklet::ui
