// The commands for whole libraries.
#include "library/library_transfer.h"
#include "ui/commands.h"
#include "ui/frmCopyLib.h"
#include "ui/frmDeleteLib.h"
#include "ui/text.h"

namespace tricklet::ui {

/// Runs a procedure that copies whole folders, and says so when it has.
void Commands::RunCopy(bool (*procedure)(Session&), const QString& said) {
  bool copied = false;
  emit Waiting(true);
  Run([&] { copied = procedure(session_); });
  emit Waiting(false);
  if (copied) emit Said(said);
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
  QString name;
  emit Waiting(true);
  Run([&] {
    frmCopyLib dialog(session_, window_);
    if (dialog.exec() != QDialog::Accepted) return;
    if (tricklet::CopyLibrary(session_, dialog.Name())) name = ToQt(dialog.Name());
  });
  emit Waiting(false);
  if (!name.isEmpty()) emit Said(tr("The library has been copied to %1").arg(name));
}

void Commands::DeleteLibrary() {
  Run([this] {
    const std::vector<std::string> names = RequireLibraries(session_);
    if (!names.empty()) frmDeleteLib(session_, names, window_).exec();
  });
}

}  // namespace tricklet::ui
