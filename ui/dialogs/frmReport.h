// The dialog with the report of a session.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <QDialog>

#include "library/session.h"
#include "review/session_report.h"
#include "ui/dialogs/sheet_saving.h"
#include "ui/report/report_page.h"

class QLabel;
class QPushButton;
class QTabWidget;

namespace tricklet::ui {

class ProgressFrame;

/// What was looked at when a report was closed, for the next time.
struct ReportLook {
  std::string library;
  int page = 0;
  int entrant = 0;  ///< of the report's
  int board = 0;    ///< likewise
};

/// Shows at once what is known without the plays, reviews these beside the window's thread, and
/// shows what has been reviewed as it comes. Closing cancels that; what has been reviewed is kept
/// with the library.
class frmReport : public QDialog {
  Q_OBJECT

 public:
  /// For the current library of `session`. It begins at `look` where that is of this library, and
  /// leaves there where it was; `folder`, where sheets were saved last, takes each that is chosen.
  /// Both are to outlive the dialog.
  frmReport(Session& session, ReportLook& look, std::filesystem::path& folder, QWidget* parent);

  /// Where the person wants to go, once accepted.
  const std::optional<ReportPlace>& Place() const { return place_; }

  /// By default `AskForPrinter`.
  void SetPrinterChooser(PrinterChooser chooser) { choosePrinter_ = std::move(chooser); }

  /// Closes; while work goes on that is cancelled first.
  void done(int result) override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* MakeFoot();
  void SetTabOrder();
  void SetFirstSize();

  void Review();
  void ShowWithoutPlays(const std::string& why);
  void Show(const SessionReport& report);
  void ShowRemarks(const std::string& why);
  void ShowState();
  void GoTo(const std::optional<ReportPlace>& place);

  void SaveCsv();
  void SavePdf();
  void Print();
  Sheets MakeSheets() const;
  void Said(const QString& text);

  Session& session_;
  ReportLook& look_;
  std::filesystem::path& folder_;
  PrinterChooser choosePrinter_ = AskForPrinter;
  std::shared_ptr<const SessionReport> report_;
  std::optional<ReportPlace> place_;
  bool reviewed_ = false;
  std::optional<int> closing_;  // with this result, as soon as the work has ended
  QTabWidget* tabReport = nullptr;
  ReportPage* entrants_ = nullptr;
  ReportPage* boards_ = nullptr;
  QLabel* lblRemarks = nullptr;
  QLabel* lblSaid = nullptr;
  ProgressFrame* progress_ = nullptr;
  QPushButton* cmdGo = nullptr;
  QPushButton* cmdCsv = nullptr;
  QPushButton* cmdPrint = nullptr;
  QPushButton* cmdPdf = nullptr;
  QPushButton* cmdClose = nullptr;
};

}  // namespace tricklet::ui
