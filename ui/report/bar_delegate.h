// Numbers with a small bar beside them.
#pragma once

#include "ui/style/suit_delegate.h"

namespace tricklet::ui {

/// For the cells of a `ReportModel`. A bar to the right is filled; one to the left, of a number
/// below zero, is an outline. A line across it shows where it would end as expected.
class BarDelegate : public SuitDelegate {
  Q_OBJECT

 public:
  using SuitDelegate::SuitDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tricklet::ui
