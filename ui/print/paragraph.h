// Texts of several lines on paper.
#pragma once

#include <QRectF>
#include <QString>

#include "ui/print/print_style.h"

class QPainter;

namespace tricklet::ui {

/// The height of `text` in lines of `width`, broken at words; "\n" begins a new line.
double ParagraphHeight(const QString& text, double width, double size);

/// Paints the lines from the top of `room`. They are made smaller where they do not fit, down to 70
/// per cent, and then end in "...".
void PaintParagraph(QPainter& painter, const QRectF& room, const QString& text,
                    const TextStyle& style);

}  // namespace tricklet::ui
