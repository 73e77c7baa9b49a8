// The commands for double-dummy tables.
#include <QInputDialog>

#include "analysis/online_link.h"
#include "library/tables.h"
#include "ui/commands/commands.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Asks for the host of the online page when it is not known yet; false when the person names none.
bool HaveSolverHost(Session& session, QWidget* window) {
  if (!session.settings.solverHost.empty()) return true;
  bool accepted = false;
  const QString host = QInputDialog::getText(
      window, Commands::tr("Online double-dummy page"),
      Commands::tr("Host of the page (like www.example.org). It has to be one "
                   "whose double-dummy page\ntakes deals by their address; "
                   "your club or teacher can name one.\nThe board that is "
                   "shown is sent there when you ask for it."),
      QLineEdit::Normal, QString(), &accepted);
  if (!accepted || host.trimmed().isEmpty()) return false;
  session.settings.solverHost = FromQt(host.trimmed());
  SaveSetting(session, &Settings::solverHost);
  return true;
}

}  // namespace

void Commands::AnalyseBoard() {
  Run([this] { emit TableAsked(); });
}

void Commands::AnalyseLibrary() {
  emit Dealing(true);
  LeaveUnsaved([this] {
    if (RequireSolver(session_)) tricklet::AnalyseLibrary(session_, session_.getSolver());
  });
  emit Dealing(false);
}

void Commands::OnlineSolver() {
  Run([this] {
    const std::string record = linRecord_ ? linRecord_() : std::string();
    const std::string error = SolverAddressError(session_.board);
    if (record.empty() && !error.empty()) {
      session_.host.TellError(error);
      return;
    }
    if (!HaveSolverHost(session_, window_)) return;
    session_.host.OpenUrl(SolverAddress(session_.board, session_.LibraryName(),
                                        session_.settings.solverHost, record));
  });
}

}  // namespace tricklet::ui
