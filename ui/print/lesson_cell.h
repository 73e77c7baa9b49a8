// A board of a lesson: diagram, auction, contract, lead and notes.
#pragma once

#include <QRectF>

#include "publish/lesson_text.h"
#include "ui/print/print_style.h"

class QPainter;

namespace tricklet::ui {

/// Paints nothing outside `cell`.
void PaintLesson(QPainter& painter, const PublishedBoard& published, const LessonParts& parts,
                 const QRectF& cell, const PrintStyle& style);

}  // namespace tricklet::ui
