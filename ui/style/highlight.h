// The row of a grid that stands out.
#pragma once

#include <QColor>
#include <QPalette>

namespace tricklet::ui {

/// Behind the row that is looked at or worked on; `palette`'s text colours can be read on it. Never
/// the only sign of that row.
QColor MarkedRowColour(const QPalette& palette);

/// A red that white text can be read on, for a small mark.
inline const QColor kMarkRed(0xC8, 0x1E, 0x2E);

/// Of a dot and of text that tell of a trick given away, on the window and in its lists. Never the
/// only sign of it.
QColor MistakeColour(const QPalette& palette);
/// Of the line that the contract needs, on a list's background.
QColor NeedColour(const QPalette& palette);

}  // namespace tricklet::ui
