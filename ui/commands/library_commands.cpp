// The commands for whole libraries.
#include "library/library_transfer.h"
#include "ui/commands/commands.h"
#include "ui/dialogs/frmCopyLib.h"
#include "ui/dialogs/frmDeleteLib.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {

/// Runs `copy`, which copies whole folders, by `run`; says the text that it returns, if any.
void Commands::Copy(Runner run, const std::function<QString()>& copy) {
  QString said;
  emit Waiting(true);
  (this->*run)([&] { said = copy(); });
  emit Waiting(false);
  if (!said.isEmpty()) emit Said(said);
}

void Commands::Copy(Runner run, bool (*copy)(Session&), const QString& said) {
  Copy(run, [&] { return copy(session_) ? said : QString(); });
}

void Commands::ExportLibrary() {
  Copy(&Commands::LeaveUnsaved, &tricklet::ExportLibrary, tr("The library has been exported"));
}
void Commands::ExportLibraries() {
  Copy(&Commands::LeaveUnsaved, &tricklet::ExportLibraries, tr("The libraries have been exported"));
}
void Commands::ImportLibrary() {
  Copy(&Commands::Leave, &tricklet::ImportLibrary, tr("The library has been imported"));
}
void Commands::ImportLibraries() {
  Copy(&Commands::Run, &tricklet::ImportLibraries, tr("The libraries have been imported"));
}
void Commands::MoveLibraries() {
  Copy(&Commands::Leave, &tricklet::MoveLibraries, tr("The libraries are in another folder now"));
}

void Commands::CopyLibrary() {
  Copy(&Commands::LeaveUnsaved, [this] {
    frmCopyLib dialog(session_, window_);
    const bool copied =
        dialog.exec() == QDialog::Accepted && tricklet::CopyLibrary(session_, dialog.Name());
    return copied ? tr("The library has been copied to %1").arg(ToQt(dialog.Name())) : QString();
  });
}

void Commands::DeleteLibrary() {
  QString said;
  Leave([&] {
    const std::vector<std::string> names = RequireLibraries(session_);
    if (names.empty()) return;
    frmDeleteLib dialog(session_, names, window_);
    if (dialog.exec() != QDialog::Accepted) return;
    said = tr("The library %1 is in the recycle bin").arg(dialog.Chosen());
  });
  if (!said.isEmpty()) emit Said(said);
}

}  // namespace tricklet::ui
