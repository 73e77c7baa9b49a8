// Suit symbols in texts of the window.
#pragma once

#include <functional>

#include <QPainter>
#include <QPalette>
#include <QString>

#include "core/notation.h"
#include "ui/style/qt_text.h"
#include "ui/style/theme.h"

namespace tricklet::ui {

/// The symbol of `suit` as rich text in its colour.
inline QString ColouredSymbol(Suit suit, bool fourColours, const QPalette& palette) {
  const QColor colour = SuitColourOnWindow(suit, fourColours, palette);
  return QStringLiteral("<span style=\"color:%1\">%2</span>")
      .arg(colour.name(), ToQt(SuitSymbol[suit]));
}

/// Draws `text` and after it `symbol` in a colour of its own, in the painter's font and in the
/// middle of `room`, or from its left where they do not fit.
void DrawWithSymbol(QPainter& painter, QRect room, const QString& text, const QColor& colour,
                    const QString& symbol, const QColor& symbolColour);

/// `text` with the suit letter of each contract in it ("4S by South", "4Sx-1") replaced by what
/// `symbol` gives.
QString WithSymbols(QString text, const std::function<QString(Suit)>& symbol);
/// The same with the plain text symbols.
QString WithSymbols(const QString& text);

/// `strain` as a suit. It must not be no-trump.
constexpr Suit ToSuit(Strain strain) {
  return static_cast<Suit>(IndexOf(strain));
}

}  // namespace tricklet::ui
