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

}  // namespace tricklet::ui
