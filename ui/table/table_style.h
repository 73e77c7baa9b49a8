// Colours and fonts of the table that its drawings share.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QSizeF>
#include <QStringList>

namespace tricklet::ui {

/// The felt and what lies flat on it; darker where the palette is dark.
struct TableColours {
  QColor feltTop;
  QColor feltBottom;
  QColor caption;  ///< under a caption's text
  QColor centre;   ///< the middle panel
  QColor line;     ///< thin edges
  QColor text;     ///< on any of the above
  QColor dimText;
};
TableColours ColoursFor(const QPalette& palette);

/// Stands out from the felt, and white text from it.
inline const QColor kVulnerableRed(0xC8, 0x20, 0x2F);
inline const QColor kDealerYellow(0xFF, 0xDD, 0x55);
/// Behind the caption of the player to play or to call; cyan when the board has been played out.
/// Black text can be read on both.
inline const QColor kToActYellow(0xFF, 0xD9, 0x4A);
inline const QColor kOverCyan(0x2E, 0xE6, 0xE6);

/// `font` at the largest size in pixels, up to `mostPixels`, at which each of `texts` fits into
/// `room`; never below 5 pixels.
QFont Fitted(QFont font, const QStringList& texts, QSizeF room, double mostPixels);

}  // namespace tricklet::ui
