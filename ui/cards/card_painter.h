// Draws cards fast: every face is rendered once for a size, a screen and a design.
#pragma once

#include <array>

#include <QColor>
#include <QPainter>
#include <QPixmap>
#include <QSizeF>

#include "core/holding.h"
#include "core/settings.h"

namespace tricklet::ui {

/// Radius of the corners, as a share of a card's width.
inline constexpr double kCornerShare = 0.07;
/// What cards are printed on.
inline const QColor kPaper(0xFF, 0xFE, 0xF9);

/// All that the picture of a card depends on, besides the card.
struct CardLook {
  QSizeF size;            ///< in the widget's pixels
  double pixelRatio = 1;  ///< device pixels to one of the widget's
  CardDesign design = CardDesign::IndexAndSymbol;
  bool fourColours = true;
  friend bool operator==(const CardLook&, const CardLook&) = default;
};

/// Holds at most one picture of each card of the pack; a new look drops them all.
class CardPainter {
 public:
  void SetLook(const CardLook& look);
  /// Draws the card, and a slight shadow round it, with its upper left corner at `corner`.
  void Draw(QPainter& painter, QPointF corner, Card card);
  /// Draws the card as `Draw` does, but dimmed: it cannot be played.
  void DrawDimmed(QPainter& painter, QPointF corner, Card card);

 private:
  void DrawOnPixel(QPainter& painter, QPointF corner, const QPixmap& picture) const;
  QPixmap RenderBlank() const;
  QPixmap RenderShade() const;
  QPixmap Render(Card card);
  double Margin() const;

  CardLook look_;
  QPixmap blank_;
  QPixmap shade_;
  std::array<QPixmap, kCardsInPack> faces_;
};

}  // namespace tricklet::ui
