#include "ui/dialogs/folder_browser.h"

#include <QFileInfo>

namespace tricklet::ui {

FolderBrowser::FolderBrowser(QWidget* parent, const QString& title, const QString& folder,
                             const QString& proposed)
    : QFileDialog(parent, title, folder) {
  setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ShowDirsOnly);
  setFileMode(QFileDialog::Directory);
  setLabelText(QFileDialog::FileName, tr("&Folder, new or existing"));
  setLabelText(QFileDialog::Accept, tr("&Choose"));
  if (!proposed.isEmpty()) selectFile(proposed);
}

void FolderBrowser::accept() {
  const QStringList typed = selectedFiles();
  if (typed.size() != 1) return;
  chosen_ = typed.constFirst();
  // Qt's own way ends with "Directory not found".
  if (QFileInfo::exists(chosen_)) {
    QFileDialog::accept();
  } else {
    QDialog::accept();
  }
}

}  // namespace tricklet::ui
