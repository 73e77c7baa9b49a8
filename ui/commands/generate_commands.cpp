// The command that fills boards with random deals.
#include "generate/generate.h"
#include "ui/commands/commands.h"
#include "ui/control/edit_control.h"
#include "ui/dialogs/frmPreview.h"

namespace tricklet::ui {

namespace {

/// The boards of a run lie side by side from the first one on, also when it was cancelled.
QString StoredText(const GenerateOutcome& outcome, const Constraints& constraints) {
  const int first = constraints.genBoards.front();
  if (outcome.boardsStored == 0) return {};
  if (outcome.boardsStored == 1) return Commands::tr("Board %1 has been dealt").arg(first);
  return Commands::tr("Boards %1 to %2 have been dealt")
      .arg(first)
      .arg(first + outcome.boardsStored - 1);
}

}  // namespace

/// False when the run was refused before it began. `said` is what it has done, unless that has been
/// told already.
bool Commands::RunGenerator(QString& said) {
  GenerateOptions options{.analyse = session_.settings.autoMakeable};
  if (generateChoices_.preview) {
    options.preview = [this](const Board& board) {
      return frmPreview(board, session_.settings, window_).Ask();
    };
  }
  const GenerateOutcome outcome =
      tricklet::Generate(session_, generateChoices_.constraints, options);
  edit_.Note("dealt hands");
  if (GenerateText(outcome).empty()) said = StoredText(outcome, generateChoices_.constraints);
  return !outcome.refused;
}

void Commands::Generate() {
  QString said;
  emit Dealing(true);
  Leave([&] {
    frmGenerate dialog(session_, generateChoices_, window_);
    // A run that is refused before it began, by a No to overwriting, can be asked for otherwise.
    while (dialog.exec() == QDialog::Accepted) {
      generateChoices_ = dialog.Chosen();
      if (RunGenerator(said)) return;
    }
  });
  emit Dealing(false);
  if (!said.isEmpty()) emit Said(said);
}

}  // namespace tricklet::ui
