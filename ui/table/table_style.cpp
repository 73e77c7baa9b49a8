#include "ui/table/table_style.h"

#include <algorithm>

#include <QFontMetricsF>

#include "ui/style/theme.h"

namespace tricklet::ui {

TableColours ColoursFor(const QPalette& palette) {
  if (IsDark(palette)) {
    return {QColor(0x1D, 0x54, 0x41), QColor(0x14, 0x3C, 0x2F), QColor(0x0F, 0x2E, 0x24),
            QColor(0x12, 0x37, 0x2B), QColor(0x2D, 0x62, 0x50), QColor(0xF0, 0xF2, 0xF0),
            QColor(0xA9, 0xC4, 0xB9)};
  }
  return {QColor(0x24, 0x7A, 0x5C), QColor(0x1A, 0x5A, 0x45), QColor(0x12, 0x42, 0x34),
          QColor(0x16, 0x4F, 0x3D), QColor(0x3B, 0x85, 0x6C), QColor(0xFF, 0xFF, 0xFF),
          QColor(0xC4, 0xE0, 0xD5)};
}

QFont Fitted(QFont font, const QStringList& texts, QSizeF room, double mostPixels) {
  // Widths grow almost in proportion to the size; the loop makes up for what hinting adds.
  constexpr int kProbe = 64;
  constexpr int kLeast = 5;
  font.setPixelSize(kProbe);
  const QFontMetricsF metrics(font);
  double widest = 1;
  for (const QString& text : texts) widest = std::max(widest, metrics.horizontalAdvance(text));
  const double fit = kProbe * std::min(room.width() / widest, room.height() / metrics.height());
  int pixels = std::max(kLeast, static_cast<int>(std::min(fit, mostPixels)));
  const auto tooWide = [&] {
    const QFontMetricsF at(font);
    return std::any_of(texts.begin(), texts.end(), [&](const QString& text) {
      return at.horizontalAdvance(text) > room.width();
    });
  };
  for (font.setPixelSize(pixels); pixels > kLeast && tooWide(); font.setPixelSize(--pixels)) {
  }
  return font;
}

}  // namespace tricklet::ui
