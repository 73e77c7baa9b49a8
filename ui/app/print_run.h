// Prints without a window.
#pragma once

#include <QString>

#include "library/session.h"
#include "ui/app/print_options.h"

namespace tricklet::ui {

/// Writes the boards of `library`, or of the library in the settings where that is empty, to the
/// files that `options` name; files that are there are replaced. Messages go to the host. Returns
/// the exit code: 0 when all has been written.
int RunPrint(Session& session, const QString& library, const PrintOptions& options);

}  // namespace tricklet::ui
