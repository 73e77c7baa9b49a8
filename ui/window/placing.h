// Where windows and dialogs stand on the screen.
#pragma once

class QWidget;

namespace tricklet::ui {

/// Gives a window that has no place yet a size that fits on its screen, frame included, and makes
/// one that is too large for it smaller.
void FitOnScreen(QWidget& window, bool hasPlace);

/// Puts the dialog at the lower edge of the window, `left` pixels from its left edge, but wholly on
/// the screen.
void PlaceAtLowerEdge(const QWidget& window, QWidget& dialog, int left);

}  // namespace tricklet::ui
