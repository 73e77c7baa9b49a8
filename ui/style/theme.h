// Colours of the window: everything that the palette does not give.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

#include "core/notation.h"
#include "core/settings.h"

class QApplication;

namespace tricklet::ui {

/// Colour of a suit's symbol on paper (card faces) or on the window's own background; four colours
/// or red and black, and readable on a dark background too.
QColor SuitColourOnCard(Suit suit, bool fourColours);
QColor SuitColourOnWindow(Suit suit, bool fourColours, const QPalette& palette);

/// What says that something is wrong, on the window's background and in its fields.
QColor FaultColour(const QPalette& palette);

/// True when the window's background is dark.
bool IsDark(const QPalette& palette);

/// Gives the whole program its colours.
void ApplyColourScheme(QApplication& application, ColourScheme scheme);

/// A stored font and its colour; the system's window-text colour is taken from `palette`.
QFont ToFont(const FontSetting& setting);
QColor ToColour(ColourNumber colour, const QPalette& palette);
ColourNumber FromColour(const QColor& colour);

/// WCAG 2.1, success criterion 1.4.3: the least contrast of text with what it stands on.
inline constexpr double kLeastContrast = 4.5;

/// Contrast of two opaque colours, 1..21, after WCAG 2.1 ("contrast ratio").
double Contrast(const QColor& a, const QColor& b);
/// `wanted` where it can be read on `background`, else black or white, whichever reads better.
QColor ReadableOn(const QColor& background, const QColor& wanted);

}  // namespace tricklet::ui
