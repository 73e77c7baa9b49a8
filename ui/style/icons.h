// The drawn icons of the program.
#pragma once

#include <QIcon>

namespace tricklet::ui {

/// The drawing `name` of `ui/style/icons` as an icon: in the text colour of the program's palette,
/// dimmed when disabled, drawn afresh for every size and scale. An empty icon for an empty name.
QIcon DrawnIcon(const QString& name);

}  // namespace tricklet::ui
