// One card of the trick grid.
#pragma once

#include <QStyledItemDelegate>

namespace tricklet::ui {

/// Draws a suit symbol in its colour and a rank. A triangle before them marks the lead, bold type
/// with a line below the winner, and a red mark after them the tricks that the card gave away. A
/// dashed frame is the place of the next card, a whole one the card that was stepped to, and a
/// frame in the program's colour the cell that the keys have come to.
class TrickDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  enum Role {
    SymbolRole = Qt::UserRole,  ///< QString; empty where there is no card
    SymbolColourRole,           ///< QColor
    LedRole,                    ///< bool
    WinsRole,                   ///< bool
    GivenRole,                  ///< QString, "−1"; empty without a mark
    NextRole,                   ///< bool: the next card belongs here
    HereRole,                   ///< bool: the card that was stepped to
    NumberRole,                 ///< int: its place in the play, from 0; none where there is no card
  };

  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace tricklet::ui
