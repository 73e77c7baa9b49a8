// The commands for whole libraries.
#include "library/library_transfer.h"
#include "ui/commands/commands.h"
#include "ui/dialogs/frmCopyLib.h"
#include "ui/dialogs/frmDeleteLib.h"
#include "ui/style/text.h"

namespace tricklet::ui {

/// Runs what copies whole folders, and says what it gives.
void Commands::RunCopy(const std::function<QString()>& copy) {
  QString said;
  emit Waiting(true);
  Run([&] { said = copy(); });
  emit Waiting(false);
  if (!said.isEmpty()) emit Said(said);
}

void Commands::RunCopy(bool (*copy)(Session&), const QString& said) {
  RunCopy([&] { return copy(session_) ? said : QString(); });
}

void Commands::ExportLibrary() {
  RunCopy(&tricklet::ExportLibrary, tr("The library has been exported"));
}
void Commands::ExportLibraries() {
  RunCopy(&tricklet::ExportLibraries, tr("The libraries have been exported"));
}
void Commands::ImportLibrary() {
  RunCopy(&tricklet::ImportLibrary, tr("The library has been imported"));
}
void Commands::ImportLibraries() {
  RunCopy(&tricklet::ImportLibraries, tr("The libraries have been imported"));
}
void Commands::MoveLibraries() {
  RunCopy(&tricklet::MoveLibraries, tr("The libraries are in another folder now"));
}

void Commands::CopyLibrary() {
  RunCopy([this] {
    frmCopyLib dialog(session_, window_);
    const bool copied =
        dialog.exec() == QDialog::Accepted && tricklet::CopyLibrary(session_, dialog.Name());
    return copied ? tr("The library has been copied to %1").arg(ToQt(dialog.Name())) : QString();
  });
}

void Commands::DeleteLibrary() {
  Run([this] {
    const std::vector<std::string> names = RequireLibraries(session_);
    if (!names.empty()) frmDeleteLib(session_, names, window_).exec();
  });
}

}  // namespace tricklet::ui
