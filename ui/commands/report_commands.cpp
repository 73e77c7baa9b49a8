// The commands that report on the boards of a library.
#include <optional>

#include "library/library_choice.h"
#include "library/unsaved_changes.h"
#include "ui/commands/commands.h"
#include "ui/control/play_control.h"
#include "ui/dialogs/frmReport.h"
#include "ui/dialogs/frmStatistics.h"

namespace tricklet::ui {

void Commands::Report() {
  std::optional<ReportPlace> place;
  emit Dealing(true);
  LeaveUnsaved([&] {
    if (!SettleChanges(session_)) return;
    frmReport dialog(session_, reportLook_, sheetFolder_, window_);
    if (dialog.exec() != QDialog::Accepted || !play_.Leave()) return;
    place = dialog.Place();
    if (place && place->boardNumber != session_.board.boardNumber) {
      tricklet::SelectBoard(session_, place->boardNumber);
    }
  });
  emit Dealing(false);
  // Once the board's traveller has been read.
  if (place && place->row >= 0 && place->boardNumber == session_.board.boardNumber) {
    emit RecordAsked(place->row);
  }
}

void Commands::DealStatistics() {
  emit Dealing(true);
  LeaveUnsaved([this] {
    if (!SettleChanges(session_)) return;
    frmStatistics dialog(session_, sheetFolder_, window_);
    dialog.exec();
  });
  emit Dealing(false);
}

}  // namespace tricklet::ui
