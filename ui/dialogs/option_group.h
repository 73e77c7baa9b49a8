// Groups of option buttons.
#pragma once

#include <QButtonGroup>
#include <QStringList>

class QWidget;

namespace tricklet::ui {

/// Option buttons of these texts, of which one is chosen; their ids are 0, 1, 2 and so on. Each is
/// named by `name` and its id: "optType_1". The tab key stops at the chosen one; the arrow keys
/// choose. The group and its buttons belong to `parent`.
QButtonGroup* MakeOptions(const QString& name, const QStringList& texts, QWidget* parent);

}  // namespace tricklet::ui
