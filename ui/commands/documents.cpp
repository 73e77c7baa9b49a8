#include "ui/commands/documents.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QStringList>
#include <QUrl>

#include "core/text.h"
#include "library/session.h"
#include "library/start_up.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Texts of this file are translated under this name.
struct Words {
  Q_DECLARE_TR_FUNCTIONS(Documents)
};

/// "Double-dummy solver: DDS 2.9.0", or why there is none.
QString SolverText(const Session& session) {
  const Solver* solver = session.getSolver ? &session.getSolver() : nullptr;
  if (solver == nullptr) return Words::tr("There is no double-dummy solver");
  if (const std::string missing = solver->Missing(); !missing.empty()) {
    return ToQt(ShowableLines(missing));
  }
  const QString version = ToQt(Showable(solver->Version()));
  return version.isEmpty() ? Words::tr("Double-dummy solver DDS")
                           : Words::tr("Double-dummy solver DDS %1").arg(version);
}

}  // namespace

void OpenDocument(Host& host, const char* fileName) {
  const QDir program(QCoreApplication::applicationDirPath());
  for (const QDir& place :
       {program, QDir(program.filePath(QStringLiteral(TRICKLET_DOCUMENT_DIR)))}) {
    const QFileInfo document(place, QString::fromLatin1(fileName));
    if (!document.exists()) continue;
    const QString path = document.canonicalFilePath();
    if (!host.OpenUrl(FromQt(QUrl::fromLocalFile(path).toString()))) {
      host.TellError(FromQt(
          Words::tr("No program could open this document. Open it yourself:\n%1").arg(path)));
    }
    return;
  }
  host.TellError(FromQt(Words::tr("The help file has not been installed")));
}

QString AboutText(const Session& session) {
  const QString place = session.settings.filelocation.empty()
                            ? Words::tr("No folder of libraries has been chosen")
                            : Words::tr("The libraries are in %1")
                                  .arg(ToQt(ShownName(session.settings.filelocation)));
  const QString licences =
      Words::tr(
          "Free under the MIT licence. It works with Qt %1 (LGPL 3), pugixml (MIT), utf8proc "
          "(MIT), "
          "CLI11 (BSD) and, where it is installed, the double-dummy solver DDS (Apache 2.0). Their "
          "terms and where their sources are come with the package.")
          .arg(QLatin1String(qVersion()));
  return QStringList{ToQt(std::string(kProgramName) + "\n" + VersionText()),
                     Words::tr("A library of bridge deals: keep, look at and exchange hand "
                               "records."),
                     place + u'\n' + SolverText(session), licences}
      .join(QStringLiteral("\n\n"));
}

bool HelpKey::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::KeyPress && QApplication::activeModalWidget() != nullptr) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier) {
      OpenDocument(host_, kManual);
      return true;
    }
  }
  return QObject::eventFilter(receiver, event);
}

}  // namespace tricklet::ui
