// The heading of the auction's four columns.
#pragma once

#include <QHeaderView>

namespace tricklet::ui {

/// Draws its sections itself: the styles of some systems leave out the colours that the model gives
/// for them, which tell who is vulnerable. Where a text does not fit, the shorter one that the
/// model has for `kShortRole` takes its place, smaller where that does not fit either.
class SeatHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit SeatHeader(QWidget* parent);

  static constexpr int kShortRole = Qt::UserRole;

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int section) const override;
};

}  // namespace tricklet::ui
