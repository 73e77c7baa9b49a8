// Suit symbols in texts of the window.
#pragma once

#include <QPalette>
#include <QRegularExpression>
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

/// A text with the strains of its contracts ("4Sx-1") as symbols.
inline QString WithSymbols(QString text) {
  static const QRegularExpression contract(QStringLiteral("(?<=\\b[1-7])[SHDC](?=x{0,2}[-+=])"));
  for (auto match = contract.match(text); match.hasMatch(); match = contract.match(text)) {
    const auto suit = static_cast<Suit>(QStringLiteral("SHDC").indexOf(match.captured()));
    text.replace(match.capturedStart(), 1, ToQt(SuitSymbol[suit]));
  }
  return text;
}

/// The suit that `strain` is; not for no-trump.
constexpr Suit ToSuit(Strain strain) {
  return static_cast<Suit>(IndexOf(strain));
}

}  // namespace tricklet::ui
