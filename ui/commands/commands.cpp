#include "ui/commands/commands.h"

#include <QApplication>
#include <QClipboard>
#include <QInputDialog>

#include "core/fault.h"
#include "formats/exchange/export.h"
#include "formats/exchange/import.h"
#include "formats/exchange/text_deals.h"
#include "library/board_clipboard.h"
#include "library/board_store.h"
#include "library/library_choice.h"
#include "library/recent_files.h"
#include "library/unsaved_changes.h"
#include "ui/commands/documents.h"
#include "ui/control/edit_control.h"
#include "ui/control/play_control.h"
#include "ui/dialogs/frmExport.h"
#include "ui/dialogs/frmImport.h"
#include "ui/dialogs/frmOptions.h"
#include "ui/dialogs/frmPrint.h"
#include "ui/dialogs/frmUpdate.h"
#include "ui/dialogs/library_name_dialog.h"
#include "ui/style/qt_text.h"
#include "ui/style/theme.h"
#include "ui/updates/updates.h"

namespace tricklet::ui {

Commands::Commands(Session& session, PlayControl& play, EditControl& edit, Updates& updates,
                   QWidget* window)
    : QObject(window),
      session_(session),
      play_(play),
      edit_(edit),
      updates_(updates),
      window_(window) {}

/// False, with nothing done, when another command is running.
bool Commands::Attempt(const std::function<void()>& procedure) {
  if (running_) return false;
  running_ = true;
  try {
    procedure();
  } catch (const std::exception& failure) {
    ErrorReport(session_.host, FaultFrom(failure));
  }
  running_ = false;
  return true;
}

void Commands::Run(const std::function<void()>& procedure) {
  if (!running_ && finishTyping_ && !finishTyping_()) return;
  if (Attempt(procedure)) emit Done();
}

/// For what would not keep a hand that is being typed: one that is refused must not stand in its
/// way.
void Commands::RunUntyped(const std::function<void()>& procedure) {
  if (giveUpTyping_) giveUpTyping_();
  Run(procedure);
}

/// For what may bring another board, or this one afresh from its file.
void Commands::Leave(const std::function<void()>& procedure) {
  Run([&] {
    if (play_.Leave()) procedure();
  });
}

/// For what reads the board afresh only when its changes are given up.
void Commands::LeaveUnsaved(const std::function<void()>& procedure) {
  Run([&] {
    if (!session_.board.handChanged || play_.Leave()) procedure();
  });
}

void Commands::Import() {
  Leave([this] { Remember(tricklet::Import(session_, Look())); });
}

void Commands::ImportLin() {
  Leave([this] { Remember(tricklet::ImportLin(session_, Look())); });
}

/// Somebody looks at a file before anything of it is lost.
Looker Commands::Look() const {
  return LookDialog(window_, session_);
}

/// A file that has been read is offered under "Open recent".
void Commands::Remember(const ImportOutcome& outcome) {
  if (outcome.file.empty() || outcome.failed) return;
  Settings& settings = session_.settings;
  settings.recentFiles = WithRecentFile(settings.recentFiles, outcome.file);
  SaveSetting(session_, &Settings::recentFiles);
}

void Commands::ImportText(const QString& text) {
  const std::string records = FromQt(text);
  Leave([&] {
    if (const auto deal = DealInText(records)) {
      edit_.PasteDeal(*deal);
    } else {
      tricklet::ImportText(session_, records, Look());
    }
  });
}

void Commands::PasteRecords() {
  ImportText(QApplication::clipboard()->text());
}

void Commands::Open() {
  std::vector<std::filesystem::path> files;
  Leave([&] { files = ChooseHandRecords(session_.host); });
  ImportFiles(files);
}

void Commands::ImportFiles(const std::vector<std::filesystem::path>& files) {
  for (const std::filesystem::path& file : files) {
    bool goOn = false;
    Run([&] {
      goOn = IsMissing(session_.host, file);
      if (goOn || !play_.Leave()) return;
      const ImportOutcome outcome = ImportAnyFile(session_, file, Look());
      Remember(outcome);
      goOn = !outcome.cancelled && !outcome.refused;
    });
    if (!goOn) return;
  }
}

void Commands::Export() {
  LeaveUnsaved([this] {
    if (!SettleChanges(session_) || !HasHandsToExport(session_)) return;
    frmExport dialog(session_, window_);
    if (dialog.exec() == QDialog::Accepted) {
      tricklet::Export(session_, dialog.Range(), exportPath_);
    }
  });
}

void Commands::Print() {
  LeaveUnsaved([this] {
    if (!SettleChanges(session_)) return;
    frmPrint dialog(session_, sheetFolder_, window_);
    if (dialog.Gather()) dialog.exec();
  });
}

void Commands::Save() {
  Run([this] { SaveHand(session_); });
}

/// Ends at once but for a play that is under way, whose cards no draft keeps.
void Commands::Exit() {
  if (play_.Leave()) session_.host.EndProgram();
}

void Commands::SelectLibrary(int index) {
  Leave([&] { tricklet::SelectLibrary(session_, index); });
}

void Commands::NewLibrary() {
  bool begun = false;
  Leave([&] {
    if (play_.Unfinished()) play_.Stop();
    begun = true;
  });
  if (begun) emit NewLibraryAsked();
}

void Commands::CreateLibrary(const QString& name) {
  Leave([&] { tricklet::CreateLibrary(session_, FromQt(name)); });
}

void Commands::RenameLibrary() {
  Run([this] {
    const QString before = ToQt(session_.LibraryName());
    LibraryNameDialog dialog(session_, tr("New name of the library"), tr("New name"), before,
                             window_);
    dialog.setObjectName(QStringLiteral("dlgRename"));
    dialog.setWindowTitle(tr("Rename library"));
    if (dialog.exec() != QDialog::Accepted || ToQt(dialog.Name()) == before) return;
    tricklet::RenameLibrary(session_, dialog.Name());
  });
}

void Commands::RefreshLibraries() {
  Leave([this] {
    if (CheckSaveChanges(session_) == Answer::Cancel) return;
    const std::string library = session_.LibraryName();
    const int boardNumber = session_.board.boardNumber;
    GetLibraryNames(session_);
    if (session_.LibraryName() == library) tricklet::SelectBoard(session_, boardNumber);
  });
}

void Commands::SelectBoard(int boardNumber) {
  Leave([&] { tricklet::SelectBoard(session_, boardNumber); });
}

void Commands::StepBoard(bool backward) {
  Leave([&] { tricklet::StepBoard(session_, backward); });
}

void Commands::FirstBoard() {
  SelectBoard(kFirstBoardNumber);
}
void Commands::LastBoard() {
  SelectBoard(session_.library.maxBoard);
}

void Commands::GoToBoard() {
  Leave([this] {
    QInputDialog dialog(window_);
    dialog.setObjectName(QStringLiteral("dlgGoTo"));
    dialog.setWindowTitle(tr("Go to board"));
    dialog.setLabelText(tr("Board (1 to %1)").arg(session_.library.maxBoard));
    dialog.setInputMode(QInputDialog::IntInput);
    dialog.setIntRange(kFirstBoardNumber, session_.library.maxBoard);
    dialog.setIntValue(session_.board.boardNumber);
    if (dialog.exec() == QDialog::Accepted) tricklet::SelectBoard(session_, dialog.intValue());
  });
}

void Commands::SetMaxBoard(int boardNumber) {
  Leave([&] { tricklet::SetMaxBoard(session_, boardNumber); });
}

void Commands::CopyHand() {
  Run([this] { tricklet::CopyHand(session_); });
}

void Commands::PasteHand() {
  Leave([this] {
    tricklet::PasteHand(session_);
    edit_.Note("paste");
  });
}

void Commands::Toggle(bool Settings::*setting) {
  Run([&] {
    session_.settings.*setting = !(session_.settings.*setting);
    SaveSetting(session_, setting);
  });
}

void Commands::SetColourScheme(ColourScheme scheme) {
  Run([&] {
    session_.settings.colourScheme = scheme;
    SaveSetting(session_, &Settings::colourScheme);
    ApplyColourScheme(*qApp, scheme);
  });
}

void Commands::SetToolbarStyle(ToolbarStyle style) {
  Run([&] {
    session_.settings.toolbarStyle = style;
    SaveSetting(session_, &Settings::toolbarStyle);
  });
}

void Commands::Options() {
  Run([this] {
    frmOptions dialog(session_, updates_.Obstacle(), window_);
    if (dialog.exec() != QDialog::Accepted) return;
    session_.settings = dialog.Chosen();
    SaveSettings(session_.settings, session_.store);
    StoreSettings(session_);
    ApplyColourScheme(*qApp, session_.settings.colourScheme);
  });
}

void Commands::Help() {
  Run([this] { OpenDocument(session_.host, kManual); });
}
void Commands::NewFeatures() {
  Run([this] { OpenDocument(session_.host, kNewFeatures); });
}

void Commands::CheckForUpdates() {
  Run([this] {
    frmUpdate dialog(updates_, window_);
    if (dialog.exec() == QDialog::Accepted) OpenNewVersion();
  });
}

void Commands::NewVersion() {
  Run([this] { OpenNewVersion(); });
}

void Commands::OpenNewVersion() {
  const UpdateAnswer* newer = updates_.Newer();
  if (newer == nullptr || session_.host.OpenUrl(newer->page)) return;
  session_.host.TellError(
      FromQt(tr("The page could not be opened in the browser:\n%1").arg(ToQt(newer->page))));
}

void Commands::About() {
  Run([this] {
    session_.host.Tell(
        {.text = FromQt(AboutText(session_)), .title = FromQt(tr("About Tricklet"))});
  });
}

}  // namespace tricklet::ui
