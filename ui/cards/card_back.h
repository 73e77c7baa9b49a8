// The backs of cards, for tricks that lie face down.
#pragma once

#include <array>

#include <QPainter>
#include <QPixmap>
#include <QRectF>

namespace tricklet::ui {

/// Keeps one picture of an upright back and one of a lying back, each drawn anew when its size
/// changes.
class CardBacks {
 public:
  /// A back that fills `place`, which is taller than wide for an upright card.
  void Draw(QPainter& painter, const QRectF& place);

 private:
  std::array<QPixmap, 2> pictures_;  // upright, lying
};

}  // namespace tricklet::ui
