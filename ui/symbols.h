// Suit symbols in texts of the window.
#pragma once

#include <QPalette>
#include <QString>

#include "core/notation.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace tricklet::ui {

/// The symbol of `suit` as rich text in its colour.
inline QString ColouredSymbol(Suit suit, bool fourColours, const QPalette& palette) {
  const QColor colour = SuitColourOnWindow(suit, fourColours, palette);
  return QStringLiteral("<span style=\"color:%1\">%2</span>")
      .arg(colour.name(), ToQt(SuitSymbol[suit]));
}

/// The suit that `strain` is; not for no-trump.
constexpr Suit ToSuit(Strain strain) {
  return static_cast<Suit>(IndexOf(strain));
}

}  // namespace tricklet::ui
