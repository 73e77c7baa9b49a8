#include "ui/style/cell_text.h"

#include <optional>

#include <QApplication>
#include <QPainter>

#include "core/notation.h"
#include "ui/style/qt_text.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

QStyle* StyleOf(const QStyleOptionViewItem& cell) {
  return cell.widget != nullptr ? cell.widget->style() : QApplication::style();
}

/// Where the style places the text of a cell.
QRect TextRoom(const QStyleOptionViewItem& cell) {
  const QStyle* style = StyleOf(cell);
  const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
  return style->subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget)
      .adjusted(margin, 0, -margin, 0);
}

std::optional<Suit> SuitOf(QChar symbol) {
  static const QString symbols = [] {
    QString all;
    for (const Suit suit : kAllSuits) all += ToQt(SuitSymbol[suit]);
    return all;
  }();
  const qsizetype at = symbols.indexOf(symbol);
  return at < 0 ? std::nullopt : std::optional(kAllSuits.at(static_cast<std::size_t>(at)));
}

void Draw(QPainter& painter, QRect room, const QList<TextPiece>& pieces) {
  const QFont plain = painter.font();
  for (const TextPiece& piece : pieces) {
    QFont font = plain;
    font.setBold(plain.bold() || piece.bold);
    painter.setFont(font);
    painter.setPen(piece.colour);
    const QFontMetrics metrics = painter.fontMetrics();
    const int width = metrics.horizontalAdvance(piece.text);
    const bool fits = width <= room.width();
    painter.drawText(
        room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        fits ? piece.text : metrics.elidedText(piece.text, Qt::ElideRight, room.width()));
    if (!fits) return;
    room.setLeft(room.left() + width);
  }
}

}  // namespace

QList<TextPiece> PiecesWithSuits(const QString& text, bool fourColours, const QPalette& palette) {
  const QColor plain = palette.color(QPalette::Text);
  QList<TextPiece> pieces;
  qsizetype done = 0;
  for (qsizetype at = 0; at < text.size(); ++at) {
    const auto suit = SuitOf(text[at]);
    if (!suit) continue;
    if (at > done) pieces += {text.mid(done, at - done), plain};
    pieces += {text.mid(at, 1), SuitColourOnWindow(*suit, fourColours, palette)};
    done = at + 1;
  }
  if (done < text.size()) pieces += {text.mid(done), plain};
  return pieces;
}

void DrawCellInPieces(QPainter& painter, QStyleOptionViewItem cell, QList<TextPiece> pieces) {
  const QRect room = TextRoom(cell);
  cell.text.clear();
  DrawCell(painter, cell);
  const QColor chosen = cell.palette.color(QPalette::HighlightedText);
  if (cell.state.testFlag(QStyle::State_Selected) && chosen != cell.palette.color(QPalette::Text)) {
    for (TextPiece& piece : pieces) piece.colour = chosen;
  }
  painter.save();
  painter.setClipRect(cell.rect);
  painter.setFont(cell.font);
  Draw(painter, room, pieces);
  painter.restore();
}

void DrawCell(QPainter& painter, const QStyleOptionViewItem& cell) {
  StyleOf(cell)->drawControl(QStyle::CE_ItemViewItem, &cell, &painter, cell.widget);
}

}  // namespace tricklet::ui
