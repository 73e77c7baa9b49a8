// The command that fills boards with random deals.
#include "generate/generate.h"
#include "ui/commands/commands.h"
#include "ui/control/edit_control.h"
#include "ui/dialogs/frmPreview.h"

namespace tricklet::ui {

void Commands::Generate() {
  emit Dealing(true);
  Leave([this] {
    frmGenerate dialog(session_, generateChoices_, window_);
    if (dialog.exec() != QDialog::Accepted) return;
    generateChoices_ = dialog.Chosen();
    GenerateOptions options{.analyse = session_.settings.autoMakeable};
    if (generateChoices_.preview) {
      options.preview = [this](const Board& board) {
        return frmPreview(board, session_.settings, window_).Ask();
      };
    }
    tricklet::Generate(session_, generateChoices_.constraints, options);
    edit_.Note("dealt hands");
  });
  emit Dealing(false);
}

}  // namespace tricklet::ui
