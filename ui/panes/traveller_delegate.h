// One cell of the traveller's grid.
#pragma once

#include "ui/style/suit_delegate.h"

namespace tricklet::ui {

/// Draws lines above and below par, which is in one colour, and anything else as its base does.
class TravellerDelegate : public SuitDelegate {
  Q_OBJECT

 public:
  using SuitDelegate::SuitDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace tricklet::ui
