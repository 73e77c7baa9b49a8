// The commands for whole libraries.
#include "library/library_transfer.h"
#include "ui/commands.h"
#include "ui/frmCopyLib.h"
#include "ui/frmDeleteLib.h"

namespace tricklet::ui {

/// Runs a procedure that copies whole folders.
void Commands::RunCopy(bool (*procedure)(Session&)) {
  emit Waiting(true);
  Run([&] { procedure(session_); });
  emit Waiting(false);
}

void Commands::ExportLibrary() {
  RunCopy(&tricklet::ExportLibrary);
}
void Commands::ExportLibraries() {
  RunCopy(&tricklet::ExportLibraries);
}
void Commands::ImportLibrary() {
  RunCopy(&tricklet::ImportLibrary);
}
void Commands::ImportLibraries() {
  RunCopy(&tricklet::ImportLibraries);
}
void Commands::MoveLibraries() {
  RunCopy(&tricklet::MoveLibraries);
}

void Commands::CopyLibrary() {
  emit Waiting(true);
  Run([this] {
    frmCopyLib dialog(session_, window_);
    if (dialog.exec() == QDialog::Accepted) tricklet::CopyLibrary(session_, dialog.Name());
  });
  emit Waiting(false);
}

void Commands::DeleteLibrary() {
  Run([this] {
    const std::vector<std::string> names = RequireLibraries(session_);
    if (!names.empty()) frmDeleteLib(session_, names, window_).exec();
  });
}

}  // namespace tricklet::ui
