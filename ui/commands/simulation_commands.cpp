// The command that simulates a board.
#include "play/played_record.h"
#include "ui/commands/commands.h"
#include "ui/control/play_control.h"
#include "ui/dialogs/frmSimulate.h"

namespace tricklet::ui {

void Commands::Simulate() {
  Run([this] {
    const RecordedPlay record = play_.Play().PlayMode()
                                    ? RecordOfPlay(play_.Play())
                                    : RecordedPlay{session_.board, {}, std::nullopt};
    frmSimulate dialog(session_, record, faceDown_ ? faceDown_() : PerSeat<bool>{}, sheetFolder_,
                       window_);
    dialog.exec();
  });
}

}  // namespace tricklet::ui
