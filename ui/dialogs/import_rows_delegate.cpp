#include "ui/dialogs/import_rows_delegate.h"

#include "ui/dialogs/import_rows_model.h"
#include "ui/style/cell_text.h"

namespace tricklet::ui {
namespace {

/// What is out of the ordinary comes first; what is done about it follows a colon, anything else a
/// semicolon.
QList<TextPiece> PiecesOfOddity(const QString& text, const QColor& colour) {
  qsizetype end = 0;
  while (end < text.size() && text[end] != u':' && text[end] != u';') ++end;
  return {{text.left(end), colour, true}, {text.mid(end), colour}};
}

}  // namespace

void ImportRowsDelegate::initStyleOption(QStyleOptionViewItem* option,
                                         const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (index.column() != static_cast<int>(ImportColumn::InFile)) return;
  if (index.flags().testFlag(Qt::ItemIsUserCheckable)) return;
  option->state &= ~QStyle::State_Enabled;
  for (const auto role : {QPalette::Text, QPalette::HighlightedText, QPalette::Highlight}) {
    option->palette.setColor(QPalette::Disabled, role,
                             option->palette.color(QPalette::Active, role));
  }
}

void ImportRowsDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const auto column = static_cast<ImportColumn>(index.column());
  const bool oddity =
      column == ImportColumn::What && !index.data(ImportRowsModel::OrdinaryRole).toBool();
  if (column != ImportColumn::Hand && !oddity) {
    DrawCell(*painter, cell);
    return;
  }
  DrawCellInPieces(*painter, cell,
                   oddity ? PiecesOfOddity(cell.text, cell.palette.color(QPalette::Text))
                          : PiecesWithSuits(cell.text, fourColours_, cell.palette));
}

}  // namespace tricklet::ui
