// The dialog that tells what the deals of a library look like.
#pragma once

#include <atomic>
#include <filesystem>
#include <memory>
#include <optional>

#include <QDialog>

#include "frequencies/library_frequencies.h"
#include "library/session.h"

class QLabel;
class QPushButton;
class QTabWidget;

namespace tricklet::ui {

class ProgressFrame;
class Worker;

/// Reads the boards once it is there, and compares them with deals at random beside the window's
/// thread.
class frmStatistics : public QDialog {
  Q_OBJECT

 public:
  /// For the current library of `session`. `folder`, where tables were saved last, takes each that
  /// is chosen; both outlive the dialog.
  frmStatistics(Session& session, std::filesystem::path& folder, QWidget* parent);
  ~frmStatistics() override;

  /// Closes; while boards are read that is cancelled first, and so is the comparison.
  void done(int result) override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* MakeFoot();
  QPushButton* MakeButton(const char* name, const QString& text, void (frmStatistics::*action)());
  void SetTabOrder();

  void Count();
  void Show();
  void AddTable(const FrequencyTable& table);
  void ShowState();
  void SaveTable();
  void CopyTable();

  Session& session_;
  std::filesystem::path& folder_;
  std::optional<LibraryFrequencies> counted_;
  bool begun_ = false;
  std::shared_ptr<std::atomic<bool>> stop_ = std::make_shared<std::atomic<bool>>(false);
  std::optional<int> closing_;  // with this result, as soon as the work has ended
  QLabel* lblVerdict;
  QTabWidget* tabTables;
  QLabel* lblRemarks;
  QLabel* lblSaid = nullptr;
  ProgressFrame* progress_ = nullptr;
  QPushButton* cmdSave = nullptr;
  QPushButton* cmdCopy = nullptr;
  QPushButton* cmdClose = nullptr;
  std::unique_ptr<Worker> worker_;  // last of what it works on
};

}  // namespace tricklet::ui
