// The choice of a folder, new or existing.
#pragma once

#include <QFileDialog>

class QLineEdit;
class QPushButton;

namespace tricklet::ui {

/// A folder browser that takes the name of a folder that is not there yet, too; whoever has asked
/// makes it. The system's own browsers refuse such a name.
class FolderBrowser : public QFileDialog {
  Q_OBJECT

 public:
  /// Begins in `folder`, with `proposed`, the name of a folder in it, typed already; may be empty.
  FolderBrowser(QWidget* parent, const QString& title, const QString& folder,
                const QString& proposed);

  /// What was chosen, once accepted.
  QString Folder() const { return chosen_; }

  void accept() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AllowTyped();

  QLineEdit* typed_ = nullptr;
  QPushButton* choose_ = nullptr;
  QString chosen_;
};

}  // namespace tricklet::ui
