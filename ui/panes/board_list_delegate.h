// How the cells of the list of boards are drawn.
#pragma once

#include "ui/style/suit_delegate.h"

namespace tricklet::ui {

/// Draws a vulnerable side in red, and a contract as its base does.
class BoardListDelegate : public SuitDelegate {
  Q_OBJECT

 public:
  using SuitDelegate::SuitDelegate;

  /// A little higher than the text.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace tricklet::ui
