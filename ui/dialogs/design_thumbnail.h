// A card design in a picture of its own.
#pragma once

#include <QIcon>
#include <QSize>

#include "core/settings.h"

namespace tricklet::ui {

/// Some cards of the design, `size` in the widget's pixels at `pixelRatio` device
/// pixels each.
QIcon DesignThumbnail(CardDesign design, QSize size, double pixelRatio);

}  // namespace tricklet::ui
