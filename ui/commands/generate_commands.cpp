// The command that fills boards with random deals.
#include "generate/generate.h"
#include "ui/commands/commands.h"
#include "ui/control/edit_control.h"
#include "ui/dialogs/frmPreview.h"

namespace tricklet::ui {

/// False when the run was refused before it began.
bool Commands::RunGenerator() {
  GenerateOptions options{.analyse = session_.settings.autoMakeable};
  if (generateChoices_.preview) {
    options.preview = [this](const Board& board) {
      return frmPreview(board, session_.settings, window_).Ask();
    };
  }
  const GenerateOutcome outcome =
      tricklet::Generate(session_, generateChoices_.constraints, options);
  edit_.Note("dealt hands");
  return !outcome.refused;
}

void Commands::Generate() {
  emit Dealing(true);
  Leave([this] {
    frmGenerate dialog(session_, generateChoices_, window_);
    // A run that is refused before it began, by a No to overwriting, can be asked for otherwise.
    while (dialog.exec() == QDialog::Accepted) {
      generateChoices_ = dialog.Chosen();
      if (RunGenerator()) return;
    }
  });
  emit Dealing(false);
}

}  // namespace tricklet::ui
