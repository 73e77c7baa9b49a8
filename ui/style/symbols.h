// Suit symbols in texts of the window.
#pragma once

#include <functional>

#include <QPalette>
#include <QString>

#include "core/notation.h"
#include "ui/style/text.h"
#include "ui/style/theme.h"

namespace tricklet::ui {

/// The symbol of `suit` as rich text in its colour.
inline QString ColouredSymbol(Suit suit, bool fourColours, const QPalette& palette) {
  const QColor colour = SuitColourOnWindow(suit, fourColours, palette);
  return QStringLiteral("<span style=\"color:%1\">%2</span>")
      .arg(colour.name(), ToQt(SuitSymbol[suit]));
}

/// A text with the suits of its contracts ("4S by South", "4Sx-1") as what `symbol` gives for them.
QString WithSymbols(QString text, const std::function<QString(Suit)>& symbol);
/// As plain symbols.
QString WithSymbols(const QString& text);

/// The suit that `strain` is; not for no-trump.
constexpr Suit ToSuit(Strain strain) {
  return static_cast<Suit>(IndexOf(strain));
}

}  // namespace tricklet::ui
