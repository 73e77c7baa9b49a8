#include "ui/style/suit_delegate.h"

#include "ui/style/cell_text.h"

namespace tricklet::ui {

void SuitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const auto pieces = PiecesWithSuits(cell.text, fourColours_, cell.palette);
  const bool oneLine = !cell.text.contains(QChar::LineSeparator);
  if (pieces.size() > 1 && oneLine) {
    DrawCellInPieces(*painter, cell, pieces);
  } else {
    DrawCell(*painter, cell);
  }
}

}  // namespace tricklet::ui
