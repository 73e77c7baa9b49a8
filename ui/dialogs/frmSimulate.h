// The dialog that deals what is not known many times and shows what comes of it.
#pragma once

#include <atomic>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QDialog>

#include "core/recorded_play.h"
#include "library/session.h"
#include "simulation/simulation_run.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace tricklet::ui {

class ReportView;
class SimulationQuestion;
class TrickHistogram;
class Worker;

/// Runs beside the window's thread, a batch at a time; the table grows with each. Closing ends it.
class frmSimulate : public QDialog {
  Q_OBJECT

 public:
  /// For the deal of `record`, and for the point that its cards have reached, with the hands that
  /// lie face down on the table. `folder`, where tables were saved last, takes each that is chosen;
  /// it outlives the dialog.
  frmSimulate(Session& session, const RecordedPlay& record, const PerSeat<bool>& faceDown,
              std::filesystem::path& folder, QWidget* parent);
  ~frmSimulate() override;

  void done(int result) override;

 private:
  QWidget* MakeResult();
  QWidget* MakeFoot();
  void SetTabOrder();

  void Run();
  void Stop();
  void PostStep();
  void Take(bool more);
  void ShowTable();
  void ShowCounts();
  void ShowState();
  void Said(const QString& text);

  void Keep();
  void SaveTable();
  void CopyTable();

  Session& session_;
  std::filesystem::path& folder_;
  std::shared_ptr<SimulationRun> run_;
  std::shared_ptr<std::atomic<bool>> stop_;
  std::optional<SimulationTable> table_;  // as it is shown
  bool running_ = false;
  std::unique_ptr<Worker> worker_;  // last of what it works on

  SimulationQuestion* question_;
  QLabel* lblTitle = nullptr;
  QLabel* lblSaid = nullptr;
  ReportView* grdTable = nullptr;
  TrickHistogram* picTricks = nullptr;
  QProgressBar* proDeals = nullptr;
  QPushButton* cmdRun = nullptr;
  QPushButton* cmdStop = nullptr;
  QPushButton* cmdKeep = nullptr;
  QPushButton* cmdSave = nullptr;
  QPushButton* cmdCopy = nullptr;
  QPushButton* cmdClose = nullptr;
};

}  // namespace tricklet::ui
