// The backs of cards, for tricks that lie face down.
#pragma once

#include <array>

#include <QPainter>
#include <QPixmap>
#include <QRectF>

namespace tricklet::ui {

/// Drawn once for each size and way of lying.
class CardBacks {
 public:
  /// A back that fills `place`, which is higher than wide for an upright card.
  void Draw(QPainter& painter, const QRectF& place);

 private:
  std::array<QPixmap, 2> pictures_;  // upright, lying
};

}  // namespace tricklet::ui
