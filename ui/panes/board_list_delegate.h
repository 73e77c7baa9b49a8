// How the cells of the list of boards are drawn.
#pragma once

#include <QStyledItemDelegate>

namespace tricklet::ui {

/// Draws the suit of a contract in its colour and a vulnerable side in red; in the chosen row all
/// is drawn in the colour of chosen text, which alone can be read there.
class BoardListDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void SetFourColours(bool fourColours) { fourColours_ = fourColours; }

  /// A little higher than the text.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  bool fourColours_ = false;
};

}  // namespace tricklet::ui
