// The command that finds boards.
#include "library/board_range.h"
#include "library/library_choice.h"
#include "library/unsaved_changes.h"
#include "publish/web/publish_web.h"
#include "ui/commands/commands.h"
#include "ui/control/play_control.h"
#include "ui/dialogs/frmPrint.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {

void Commands::FindBoards() {
  emit Dealing(true);
  LeaveUnsaved([&] {
    if (!SettleChanges(session_)) return;
    frmFindBoards dialog(session_, findLook_, window_);
    dialog.SetPrint([&](const std::set<int>& numbers) {
      frmPrint sheets(session_, sheetFolder_, &dialog);
      if (sheets.Gather(numbers)) sheets.exec();
    });
    dialog.SetPublish([&](const std::set<int>& numbers) {
      PublishChoices choices = ProposedPublish(session_);
      choices.boards = BoardRangeOf(numbers);
      PublishBoards(choices, &dialog);
    });
    if (dialog.exec() != QDialog::Accepted || !dialog.Place() || !play_.Leave()) return;
    const BoardPlace& place = *dialog.Place();
    const bool there =
        place.library == session_.LibraryName() || tricklet::SelectLibrary(session_, place.library);
    if (there && place.number != session_.board.boardNumber) {
      tricklet::SelectBoard(session_, place.number);
    }
  });
  emit Dealing(false);
}

void Commands::FindBoardsBy(const QString& text) {
  findLook_.text = FromQt(text);
  FindBoards();
}

}  // namespace tricklet::ui
