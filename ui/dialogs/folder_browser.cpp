#include "ui/dialogs/folder_browser.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

namespace tricklet::ui {

FolderBrowser::FolderBrowser(QWidget* parent, const QString& title, const QString& folder,
                             const QString& proposed)
    : QFileDialog(parent, title, folder) {
  setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ShowDirsOnly);
  setFileMode(QFileDialog::Directory);
  setLabelText(QFileDialog::FileName, tr("&Folder, new or existing"));
  setLabelText(QFileDialog::Accept, tr("&Choose"));
  typed_ = findChild<QLineEdit*>();
  const auto* box = findChild<QDialogButtonBox*>();
  if (box != nullptr) choose_ = box->button(QDialogButtonBox::Open);
  if (choose_ != nullptr) choose_->installEventFilter(this);
  if (!proposed.isEmpty()) selectFile(proposed);
  AllowTyped();
}

/// Qt offers the button for folders that exist alone.
void FolderBrowser::AllowTyped() {
  if (choose_ == nullptr || typed_ == nullptr) return;
  if (!choose_->isEnabled() && !typed_->text().isEmpty()) choose_->setEnabled(true);
}

bool FolderBrowser::eventFilter(QObject* watched, QEvent* event) {
  const bool handled = QFileDialog::eventFilter(watched, event);
  if (watched == choose_ && event->type() == QEvent::EnabledChange) AllowTyped();
  return handled;
}

void FolderBrowser::accept() {
  const QStringList typed = selectedFiles();
  if (typed.size() != 1) return;
  chosen_ = typed.constFirst();
  // Qt's own way ends with "Directory not found".
  if (QFileInfo::exists(chosen_)) {
    QFileDialog::accept();
  } else {
    done(QDialog::Accepted);
  }
}

}  // namespace tricklet::ui
