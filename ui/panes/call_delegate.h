// One cell of the auction grid.
#pragma once

#include <QStyledItemDelegate>

namespace tricklet::ui {

/// Draws a text and, after it, a suit symbol in a colour of its own, and a dot where there is
/// something to be said of the call.
class CallDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  static constexpr int kSymbolRole = Qt::UserRole;            ///< QString; empty when there is none
  static constexpr int kSymbolColourRole = Qt::UserRole + 1;  ///< QColor
  static constexpr int kDotRole = Qt::UserRole + 2;           ///< bool

  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace tricklet::ui
