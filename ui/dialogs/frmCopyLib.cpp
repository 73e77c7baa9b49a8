#include "ui/dialogs/frmCopyLib.h"

#include "library/session.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {

frmCopyLib::frmCopyLib(Session& session, QWidget* parent)
    : LibraryNameDialog(session, tr("Copy library %1").arg(ToQt(session.ShownLibrary())),
                        tr("Name of the copy"), QString(), parent) {
  setObjectName(QStringLiteral("frmCopyLib"));
  setWindowTitle(tr("Copy library"));
}

}  // namespace tricklet::ui
