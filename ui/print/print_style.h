// Colours, fonts and texts of what is printed.
//
// Everything is in points (1/72 inch), the painter's unit. Fonts are taken large and scaled down,
// so that a text is as wide on the screen as it is on paper.
#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>

#include "core/holding.h"
#include "core/notation.h"

class QPainter;

namespace tricklet::ui {

/// The colours of printed pages: paper is white, whatever the window's colours are.
struct PrintStyle {
  bool colours = true;      ///< else black alone
  bool fourColours = true;  ///< of the suits, else red and black

  QColor Text() const;
  QColor Quiet() const;  ///< of what is less important
  QColor Rule() const;   ///< of lines
  QColor Vulnerable() const;
  QColor OfSuit(Suit suit) const;
};

struct TextStyle {
  double size = 8;  ///< of the font, in points
  bool bold = false;
  QColor colour = Qt::black;
  Qt::Alignment align = Qt::AlignLeft;
};

/// The lines of a text are this far apart, as a multiple of the font's size.
inline constexpr double kLineHeight = 1.25;

/// A family with the four suit symbols; others take over what it lacks.
QFont PrintFont(bool bold);

double TextWidth(const QString& text, double size, bool bold = false);

/// Paints from `at`, the left end of the baseline.
void PaintText(QPainter& painter, QPointF at, const QString& text, const TextStyle& style);

/// Paints `text` on one line in the middle of the height of `room` and returns its width. It is
/// made smaller where it is too wide, down to 70 per cent, and then shortened to "...". Suit
/// symbols in it have their colours.
double PaintLine(QPainter& painter, const QRectF& room, const QString& text, const TextStyle& style,
                 const PrintStyle& colours);

/// Paints suit symbol and ranks, a dash for a void, from `at`, the left end of the baseline. Ranks
/// stand apart without blanks between them, so that they are found as "AKQ7". What is wider than
/// `room` is squeezed into it. Returns the width.
double PaintHolding(QPainter& painter, QPointF at, double room, Suit suit, Holding holding,
                    double size, const PrintStyle& colours);

}  // namespace tricklet::ui
