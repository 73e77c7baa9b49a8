#include "ui/dialogs/import_rows_delegate.h"

#include <utility>

#include <QApplication>
#include <QList>
#include <QPainter>

#include "ui/dialogs/import_rows_model.h"
#include "ui/style/qt_text.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

/// A piece of a cell's text in a look of its own.
struct Piece {
  QString text;
  QColor colour;
  bool bold = false;
};

/// "\u2660AK4 \u2665T98": each symbol is a piece, and what stands between two of them.
QList<Piece> PiecesOfHand(const QString& text, const QStyleOptionViewItem& cell, bool fourColours) {
  const QColor plain = cell.palette.color(QPalette::Text);
  QList<Piece> pieces;
  qsizetype done = 0;
  for (const Suit suit : kAllSuits) {
    const QString symbol = ToQt(SuitSymbol[suit]);
    const qsizetype at = text.indexOf(symbol, done);
    if (at < 0) continue;
    pieces += {text.mid(done, at - done), plain};
    pieces += {symbol, SuitColourOnWindow(suit, fourColours, cell.palette)};
    done = at + symbol.size();
  }
  pieces += {text.mid(done), plain};
  return pieces;
}

/// What is out of the ordinary comes first; what is done about it follows a colon, anything else a
/// semicolon.
QList<Piece> PiecesOfOddity(const QString& text, const QColor& colour) {
  qsizetype end = 0;
  while (end < text.size() && text[end] != u':' && text[end] != u';') ++end;
  return {{text.left(end), colour, true}, {text.mid(end), colour}};
}

/// Draws the pieces one after another; one that does not fit ends in "...".
void Draw(QPainter& painter, QRect room, const QList<Piece>& pieces) {
  const QFont plain = painter.font();
  for (const Piece& piece : pieces) {
    QFont font = plain;
    font.setBold(piece.bold);
    painter.setFont(font);
    painter.setPen(piece.colour);
    const QFontMetrics metrics = painter.fontMetrics();
    const int width = metrics.horizontalAdvance(piece.text);
    const bool fits = width <= room.width();
    painter.drawText(
        room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        fits ? piece.text : metrics.elidedText(piece.text, Qt::ElideRight, room.width()));
    if (!fits) break;
    room.setLeft(room.left() + width);
  }
  painter.setFont(plain);
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
  const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
  const auto column = static_cast<ImportColumn>(index.column());
  const bool oddity =
      column == ImportColumn::What && !index.data(ImportRowsModel::OrdinaryRole).toBool();
  if (column != ImportColumn::Hand && !oddity) {
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    return;
  }
  const QString text = std::exchange(cell.text, QString());
  style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
  const bool chosen = cell.state.testFlag(QStyle::State_Selected);
  const QColor chosenText = cell.palette.color(QPalette::HighlightedText);
  QList<Piece> pieces = oddity ? PiecesOfOddity(text, cell.palette.color(QPalette::Text))
                               : PiecesOfHand(text, cell, fourColours_);
  for (Piece& piece : pieces) {
    if (chosen) piece.colour = chosenText;
  }
  const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
  painter->save();
  painter->setClipRect(cell.rect);
  painter->setFont(cell.font);
  Draw(*painter, cell.rect.adjusted(margin, 0, -margin, 0), pieces);
  painter->restore();
}

}  // namespace tricklet::ui
