// The command that fills boards with random deals.
#include "generate/generate.h"
#include "generate/store_deals.h"
#include "ui/commands/commands.h"
#include "ui/control/edit_control.h"
#include "ui/dialogs/frmPreview.h"

namespace tricklet::ui {

namespace {

/// The boards of a run lie side by side from the first one on, also when it was cancelled.
QString StoredText(int boardsStored, int first) {
  if (boardsStored == 0) return {};
  if (boardsStored == 1) return Commands::tr("Board %1 has been dealt").arg(first);
  return Commands::tr("Boards %1 to %2 have been dealt").arg(first).arg(first + boardsStored - 1);
}

}  // namespace

/// False when the run was refused before it began. `said` is what it has done, unless that has been
/// told already.
bool Commands::RunGenerator(QString& said) {
  return generateChoices_.byCondition ? DealToCondition(said) : DealToConstraints(said);
}

/// By numbers of the program's own stream, unless the script names its seed.
bool Commands::DealToCondition(QString& said) {
  const int first = generateChoices_.constraints.genBoards.front();
  const int last = generateChoices_.constraints.genBoards.back();
  const Script& script = *generateChoices_.script;
  if (script.UsesSolver() && !RequireSolver(session_)) return false;
  const auto drawn = static_cast<std::uint64_t>(session_.random.Rnd() * 0x1p53);
  const DealRunOptions options{.produce = last - first + 1,
                               .generate = script.Generate(),
                               .seed = script.Content().seed.value_or(drawn)};
  const StoreDealsOutcome outcome = StoreDeals(
      session_, generateChoices_.script, script.UsesSolver() ? &session_.getSolver() : nullptr,
      options, first, session_.settings.autoMakeable);
  edit_.Note("dealt hands");
  if (outcome.told.empty()) said = StoredText(outcome.boardsStored, first);
  return !outcome.refused;
}

bool Commands::DealToConstraints(QString& said) {
  GenerateOptions options{.analyse = session_.settings.autoMakeable};
  if (generateChoices_.preview) {
    options.preview = [this](const Board& board) {
      return frmPreview(board, session_.settings, window_).Ask();
    };
  }
  const GenerateOutcome outcome =
      tricklet::Generate(session_, generateChoices_.constraints, options);
  edit_.Note("dealt hands");
  if (outcome.told.empty())
    said = StoredText(outcome.boardsStored, generateChoices_.constraints.genBoards.front());
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
