#include "ui/style/highlight.h"

#include "ui/style/theme.h"

namespace tricklet::ui {

QColor MarkedRowColour(const QPalette& palette) {
  return IsDark(palette) ? QColor(0x51, 0x48, 0x1C) : QColor(0xFF, 0xF3, 0xC4);
}

}  // namespace tricklet::ui
