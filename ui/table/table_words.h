// Texts that are written on the table.
#pragma once

#include <QCoreApplication>

namespace tricklet::ui {

/// Translates them: `TableWords::tr("Dealer")`.
struct TableWords {
  Q_DECLARE_TR_FUNCTIONS(TableView)
};

}  // namespace tricklet::ui
