// The board on the table as a diagram for other programs.
#pragma once

#include <memory>

#include <QMimeData>

#include "publish/diagram.h"
#include "ui/table/table_scene.h"

namespace tricklet::ui {

/// What is seen on the table: cards that have been played are gone, and of hidden hands nothing is
/// known. `auction` when the calls are in sight beside it.
SeenBoard SeenOn(const TableScene& scene, bool auction);

/// The diagram as picture (at twice the dots of a screen, and as SVG), as HTML and as text, so that
/// each program takes what it shows best.
std::unique_ptr<QMimeData> DiagramForOthers(const SeenBoard& seen, const Settings& settings);

}  // namespace tricklet::ui
