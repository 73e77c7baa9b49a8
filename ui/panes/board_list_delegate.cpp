#include "ui/panes/board_list_delegate.h"

#include <algorithm>

#include <QApplication>
#include <QPainter>

#include "ui/panes/board_list_model.h"
#include "ui/style/qt_text.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

QStyle* StyleOf(const QStyleOptionViewItem& cell) {
  return cell.widget != nullptr ? cell.widget->style() : QApplication::style();
}

/// "4\u2660x S": the symbol in its colour, the rest in the cell's.
void DrawContract(QPainter& painter, const QStyleOptionViewItem& cell, Suit suit,
                  bool fourColours) {
  const QString symbol = ToQt(SuitSymbol[suit]);
  const qsizetype at = cell.text.indexOf(symbol);
  QRect room = StyleOf(cell)->subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget);
  const QColor text = cell.palette.color(QPalette::Text);
  const auto draw = [&](const QString& part, const QColor& colour) {
    painter.setPen(colour);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, part);
    room.setLeft(room.left() + painter.fontMetrics().horizontalAdvance(part));
  };
  room.adjust(StyleOf(cell)->pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1, 0,
              0, 0);
  draw(cell.text.left(at), text);
  draw(symbol, SuitColourOnWindow(suit, fourColours, cell.palette));
  draw(cell.text.mid(at + symbol.size()), text);
}

}  // namespace

QSize BoardListDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
  const QSize size = QStyledItemDelegate::sizeHint(option, index);
  return {size.width(), std::max(size.height(), option.fontMetrics.height() * 4 / 3)};
}

void BoardListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const bool chosen = cell.state.testFlag(QStyle::State_Selected);
  if (!chosen && index.data(BoardListModel::kVulnerableRole).toBool()) {
    // The red of hearts can be read on every background of the window.
    cell.palette.setColor(QPalette::Text, SuitColourOnWindow(Suit::Hearts, false, cell.palette));
  }
  const QVariant suit = index.data(BoardListModel::kSuitRole);
  if (chosen || !suit.isValid()) {
    StyleOf(cell)->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    return;
  }
  const QString text = cell.text;
  cell.text.clear();
  StyleOf(cell)->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
  cell.text = text;
  painter->save();
  painter->setFont(cell.font);
  painter->setClipRect(cell.rect);
  DrawContract(*painter, cell, static_cast<Suit>(suit.toInt()), fourColours_);
  painter->restore();
}

}  // namespace tricklet::ui
