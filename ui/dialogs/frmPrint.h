// The dialog that prints sheets of boards and stores them as files.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include <QDialog>

#include "publish/remembered_sheets.h"
#include "publish/sheet_boards.h"
#include "ui/dialogs/sheet_saving.h"

class QLabel;
class QPushButton;
class QTimer;

namespace tricklet::ui {

class ProgressFrame;
class SheetOptions;
class SheetPreview;

/// Shows the sheets as they will be printed, follows every choice at once, and stays open until it
/// is closed, so that several layouts can be printed one after the other. What was chosen is
/// remembered in the settings. Tables that the boards lack are computed while it is open; until
/// then, and when the person cancels that, the sheets are without them.
class frmPrint : public QDialog {
  Q_OBJECT

 public:
  /// For the library of `session`. `folder`, where sheets were saved last, takes each that is
  /// chosen; it may be empty. Both are to outlive the dialog.
  frmPrint(Session& session, std::filesystem::path& folder, QWidget* parent);

  /// Reads the boards, of `chosen` only these. False, after a message, when there is nothing that
  /// could be printed: the dialog is not to be shown then.
  bool Gather(const std::set<int>& chosen = {});

  /// By default `AskForPrinter`.
  void SetPrinterChooser(PrinterChooser chooser) { choosePrinter_ = std::move(chooser); }

  /// Closes, and remembers what was chosen; while work goes on that is cancelled first.
  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void MakeFields();
  QWidget* MakePreview();
  QWidget* MakeButtons();
  void SetTabOrder();
  void BeginAtRange();
  void SetFirstSize();

  std::optional<BoardRange> Range() const;
  std::string Nothing(const SheetChoices& choices) const;
  void Choose();
  void Show();
  void ShowPlace();
  void ShowState();

  void Compute();

  /// Says what it has done with the sheets; nothing when that is nothing.
  using Output = std::function<QString(const Sheets&)>;
  void PutOut(const Output& output);
  void Remember();

  Session& session_;
  std::filesystem::path& folder_;
  QTimer* timCompute;  // until what was chosen has been drawn
  SheetProposal proposal_;
  PrinterChooser choosePrinter_ = AskForPrinter;
  SheetBoards boards_;
  std::shared_ptr<const Published> shown_;  // those of them that are in `shownRange_`
  BoardRange shownRange_;
  SheetLayout shownLayout_ = SheetLayout::Records;
  std::optional<BoardRange> tried_;  // whose tables were computed, as far as that went
  bool wantsTables_ = false;         // the sheets that are chosen
  bool computing_ = false;
  bool again_ = false;    // other boards were chosen while tables were computed
  bool closing_ = false;  // as soon as the work has ended
  SheetOptions* options_ = nullptr;
  SheetPreview* picSheet = nullptr;
  QLabel* lblPage = nullptr;
  QLabel* lblSaid = nullptr;
  QPushButton* cmdPreviousPage = nullptr;
  QPushButton* cmdNextPage = nullptr;
  QPushButton* cmdPrint = nullptr;
  QPushButton* cmdPdf = nullptr;
  QPushButton* cmdPictures = nullptr;
  QPushButton* cmdClose = nullptr;
  ProgressFrame* progress_ = nullptr;
};

}  // namespace tricklet::ui
