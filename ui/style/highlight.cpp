#include "ui/style/highlight.h"

#include "ui/style/theme.h"

namespace tricklet::ui {

QColor MarkedRowColour(const QPalette& palette) {
  return IsDark(palette) ? QColor(0x51, 0x48, 0x1C) : QColor(0xFF, 0xF3, 0xC4);
}

QColor MistakeColour(const QPalette& palette) {
  return IsDark(palette) ? QColor(0xFF, 0x7A, 0x84) : kMarkRed;
}

QColor NeedColour(const QPalette& palette) {
  return IsDark(palette) ? QColor(0xE0, 0xA8, 0x4A) : QColor(0xA8, 0x6A, 0x00);
}

}  // namespace tricklet::ui
