// Draws cards fast: every face is rendered once for a size, a screen and a design.
#pragma once

#include <array>

#include <QColor>
#include <QPainter>
#include <QPixmap>
#include <QRect>
#include <QSizeF>

#include "core/holding.h"
#include "core/settings.h"

namespace tricklet::ui {

/// Radius of the corners, as a share of a card's width.
inline constexpr double kCornerShare = 0.07;
/// What cards are printed on, and what they seem to be printed on when they cannot be played.
inline const QColor kPaper(0xFF, 0xFE, 0xF9);
inline const QColor kDimPaper(0xC9, 0xD1, 0xCC);
/// Least contrast of what is printed with either (WCAG 2.1, success criterion 1.4.3).
inline constexpr double kCardContrast = 4.5;

/// The colour of `suit` on a card that cannot be played.
QColor DimmedSuitColour(Suit suit, bool fourColours);

/// All that the picture of a card depends on, besides the card.
struct CardLook {
  QSizeF size;            ///< in the widget's pixels
  double pixelRatio = 1;  ///< device pixels to one of the widget's
  CardDesign design = CardDesign::IndexAndSymbol;
  bool fourColours = true;
  friend bool operator==(const CardLook&, const CardLook&) = default;
};

/// Holds at most two pictures of each card of the pack; a new look drops them all.
class CardPainter {
 public:
  void SetLook(const CardLook& look);
  /// Draws the card, and a slight shadow round it, with its upper left corner at `corner`.
  void Draw(QPainter& painter, QPointF corner, Card card);
  /// Draws the card as `Draw` does, but dimmed: it cannot be played.
  void DrawDimmed(QPainter& painter, QPointF corner, Card card);

 private:
  void DrawOnPixel(QPainter& painter, QPointF corner, const QPixmap& picture) const;
  QPixmap RenderBlank(const QColor& paper) const;
  double Margin() const;

  /// The pictures of one paper.
  struct Pack {
    QPixmap blank;
    std::array<QPixmap, kCardsInPack> faces;
  };
  void DrawFrom(Pack& pack, QPainter& painter, QPointF corner, Card card, const QColor& ink,
                const QColor& paper);

  CardLook look_;
  Pack pack_;
  Pack dimmed_;
};

/// Some cards of a design, close up as in a hand, as large as `room` allows.
void PaintThumbnail(QPainter& painter, const QRect& room, CardDesign design, bool fourColours);

}  // namespace tricklet::ui
