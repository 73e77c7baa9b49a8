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
/// Behind the captions of the hand on play and of the player to call; black text can be read on
/// both.
inline const QColor kOnPlayYellow(0xFF, 0xE0, 0x55);
inline const QColor kToCallCyan(0x2E, 0xE6, 0xE6);

/// `font` at the largest size in pixels, up to `mostPixels`, at which each of `texts` fits into
/// `room`; never below 5 pixels.
QFont Fitted(QFont font, const QStringList& texts, QSizeF room, double mostPixels);

}  // namespace tricklet::ui
