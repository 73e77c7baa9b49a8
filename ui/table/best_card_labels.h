// The tricks that cards lead to, on the cards themselves.
#pragma once

#include <span>

#include <QFont>
#include <QPainter>

#include "analysis/solver.h"
#include "ui/table/table_layout.h"

namespace tricklet::ui {

/// A small number in the mark of each card of `best` that lies in `layout`. The cards that lead to
/// most have a filled label, the others an empty one.
void DrawBestCardLabels(QPainter& painter, const TableLayout& layout,
                        std::span<const CardScore> best, const QFont& font);

}  // namespace tricklet::ui
