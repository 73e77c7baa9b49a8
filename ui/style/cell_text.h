// Texts of cells that are not all in one look.
#pragma once

#include <QColor>
#include <QList>
#include <QPalette>
#include <QString>
#include <QStyleOptionViewItem>

class QPainter;

namespace tricklet::ui {

/// A piece of a cell's text in a look of its own.
struct TextPiece {
  QString text;
  QColor colour;
  bool bold = false;
};

/// "4♠x S", "♠AK4 ♥T98": each suit symbol is a piece in its colour, and what stands between two of
/// them one in that of the palette's text.
QList<TextPiece> PiecesWithSuits(const QString& text, bool fourColours, const QPalette& palette);

/// Draws the cell as its style does, with `pieces` from its left in place of its text; one that
/// does not fit ends in "...". In a chosen cell all have the colour of chosen text, which alone can
/// be read there, unless that is the colour of any text.
void DrawCellInPieces(QPainter& painter, QStyleOptionViewItem cell, QList<TextPiece> pieces);

/// The cell as its style draws it.
void DrawCell(QPainter& painter, const QStyleOptionViewItem& cell);

}  // namespace tricklet::ui
