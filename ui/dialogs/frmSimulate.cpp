#include "ui/dialogs/frmSimulate.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "simulation/keep_deals.h"
#include "ui/background/worker.h"
#include "ui/dialogs/library_name_dialog.h"
#include "ui/dialogs/sheet_saving.h"
#include "ui/dialogs/simulation_grid.h"
#include "ui/dialogs/simulation_question.h"
#include "ui/report/report_view.h"
#include "ui/report/trick_histogram.h"
#include "ui/style/dialog_parts.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"

namespace tricklet::ui {
namespace {

constexpr int kWide = 960;
constexpr int kHigh = 620;

}  // namespace

frmSimulate::frmSimulate(Session& session, const RecordedPlay& record,
                         const PerSeat<bool>& faceDown, std::filesystem::path& folder,
                         QWidget* parent)
    : QDialog(parent),
      session_(session),
      folder_(folder),
      question_(new SimulationQuestion(session, record, faceDown, this)) {
  setObjectName(QStringLiteral("frmSimulate"));
  setWindowTitle(tr("Simulate board %1").arg(record.board.boardNumber));
  auto* panes = new QHBoxLayout;
  panes->addWidget(question_, 2);
  panes->addWidget(MakeResult(), 3);
  auto* column = new QVBoxLayout(this);
  column->addLayout(panes, 1);
  column->addWidget(MakeFoot());
  connect(grdTable, &ReportView::RowChosen, this, &frmSimulate::ShowCounts);
  SetTabOrder();
  ShowState();
  resize(QSize(kWide, kHigh));
}

/// A batch under way takes a second to its end: nobody waits for that.
frmSimulate::~frmSimulate() {
  Stop();
  Worker::Retire(std::move(worker_), parent());
}

QWidget* frmSimulate::MakeResult() {
  auto* pane = new QWidget(this);
  lblTitle = new ElidedLabel(pane);
  lblTitle->setObjectName(QStringLiteral("lblTitle"));
  QFont bold = lblTitle->font();
  bold.setBold(true);
  lblTitle->setFont(bold);
  auto* lblLabel = new QLabel(
      ToQt(kEachDealDoubleDummy) + u' ' + tr("Behind ±: half the width of the interval of 95 %."),
      pane);
  lblLabel->setWordWrap(true);
  MakeQuiet(lblLabel);
  grdTable = new ReportView(QStringLiteral("grdTable"), session_.settings.suitColour, pane);
  grdTable->setAccessibleName(tr("Results of the simulation"));
  picTricks = new TrickHistogram(pane);
  auto* lblTricks = new QLabel(tr("Tricks by declarer in the chosen row"), pane);
  lblSaid = new QLabel(pane);
  lblSaid->setObjectName(QStringLiteral("lblSaid"));
  lblSaid->setWordWrap(true);
  lblSaid->setTextFormat(Qt::PlainText);
  proDeals = new QProgressBar(pane);
  proDeals->setObjectName(QStringLiteral("proDeals"));
  proDeals->setAccessibleName(tr("Deals solved"));
  proDeals->setTextVisible(false);
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(lblTitle);
  column->addWidget(lblLabel);
  column->addWidget(grdTable, 3);
  column->addWidget(lblTricks);
  column->addWidget(picTricks, 2);
  column->addWidget(lblSaid);
  column->addWidget(proDeals);
  return pane;
}

QWidget* frmSimulate::MakeFoot() {
  auto* foot = new QWidget(this);
  cmdRun = MakeCommandButton("cmdRun", tr("&Run"), this);
  cmdStop = MakeCommandButton("cmdStop", tr("&Stop"), this);
  cmdKeep = MakeCommandButton("cmdKeep", tr("&Keep deals in library..."), this);
  cmdSave = MakeCommandButton("cmdSave", tr("S&ave table..."), this);
  cmdCopy = MakeCommandButton("cmdCopy", tr("&Copy"), this);
  cmdCopy->setToolTip(tr("The table with tabs between its columns, to be pasted elsewhere"));
  cmdClose = MakeCommandButton("cmdClose", tr("Close"), this);
  cmdRun->setDefault(true);
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch(1);
  for (QPushButton* button : {cmdRun, cmdStop, cmdKeep, cmdSave, cmdCopy, cmdClose}) {
    row->addWidget(button);
  }
  connect(cmdRun, &QPushButton::clicked, this, &frmSimulate::Run);
  connect(cmdStop, &QPushButton::clicked, this, &frmSimulate::Stop);
  connect(cmdKeep, &QPushButton::clicked, this, &frmSimulate::Keep);
  connect(cmdSave, &QPushButton::clicked, this, &frmSimulate::SaveTable);
  connect(cmdCopy, &QPushButton::clicked, this, &frmSimulate::CopyTable);
  connect(cmdClose, &QPushButton::clicked, this, &frmSimulate::reject);
  return foot;
}

void frmSimulate::SetTabOrder() {
  QList<QWidget*> order = question_->TabOrder();
  order += {grdTable, cmdRun, cmdStop, cmdKeep, cmdSave, cmdCopy, cmdClose};
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order.at(i - 1), order.at(i));
}

void frmSimulate::Run() {
  if (running_) return;
  std::string why;
  const auto plan = question_->Plan(why);
  std::shared_ptr<SimulationRun> run;
  if (plan && session_.getSolver) run = SimulationRun::Begin(*plan, session_.getSolver(), why);
  if (plan && !session_.getSolver) why = FromQt(tr("There is no double-dummy solver"));
  if (!plan || !run) {
    Said(ToQt(why));
    return;
  }
  run_ = std::move(run);
  stop_ = std::make_shared<std::atomic<bool>>(false);
  running_ = true;
  proDeals->setRange(0, plan->limit.deals);
  ShowTable();
  ShowState();
  PostStep();
}

void frmSimulate::Stop() {
  if (stop_) *stop_ = true;
}

/// The worker has the run until `Take`.
void frmSimulate::PostStep() {
  if (!worker_) worker_ = std::make_unique<Worker>();
  const auto more = std::make_shared<bool>(false);
  worker_->Post([run = run_, stop = stop_, more] { *more = run->Step([stop] { return !*stop; }); },
                [this, more] { Take(*more); });
}

void frmSimulate::Take(bool more) {
  ShowTable();
  if (more && !*stop_) {
    PostStep();
    return;
  }
  running_ = false;
  ShowState();
}

void frmSimulate::ShowTable() {
  table_ = run_->Table();
  const int chosen = grdTable->Chosen();
  grdTable->Show(GridOf(*table_));
  if (chosen >= 0) grdTable->Choose(chosen);
  lblTitle->setText(ui::TitleOf(*table_));
  const SimulationProgress& progress = run_->Progress();
  proDeals->setValue(static_cast<int>(progress.deals));
  QStringList said{ToQt(ProgressText(progress))};
  if (const std::string end = EndText(progress); !end.empty()) said += ToQt(end);
  if (const auto* contracts = std::get_if<ContractTable>(&*table_)) {
    if (const std::string text = ComparisonText(*contracts); !text.empty()) said += ToQt(text);
  }
  Said(said.join(u'\n'));
  ShowCounts();
}

void frmSimulate::ShowCounts() {
  if (!table_) return;
  const int row = grdTable->Chosen();
  picTricks->Show(CountsOf(*table_, row), NeededIn(*table_, row));
}

void frmSimulate::ShowState() {
  const bool any = table_ && run_ && !running_ && run_->Progress().deals > 0;
  cmdRun->setEnabled(!running_);
  cmdStop->setEnabled(running_);
  for (QPushButton* button : {cmdKeep, cmdSave, cmdCopy}) button->setEnabled(any);
  proDeals->setVisible(running_);
}

void frmSimulate::Said(const QString& text) {
  lblSaid->setText(text);
}

void frmSimulate::Keep() {
  LibraryNameDialog dialog(session_, tr("Name of the new library"), tr("Library name"), QString(),
                           this);
  if (dialog.exec() == QDialog::Accepted) KeepDeals(session_, run_->Deals(), dialog.Name());
}

void frmSimulate::SaveTable() {
  if (table_) {
    Said(SaveAsCsv(session_, tr("simulation.csv"), CsvText(SheetOf(*table_)), folder_));
  }
}

void frmSimulate::CopyTable() {
  if (!table_) return;
  const SimulationSheet sheet = SheetOf(*table_);
  std::string text = sheet.title + "\n" + TabText(sheet);
  for (const std::string& remark : sheet.remarks) text += remark + "\n";
  QGuiApplication::clipboard()->setText(ToQt(text));
  Said(tr("The table is in the clipboard"));
}

void frmSimulate::done(int result) {
  Stop();
  QDialog::done(result);
}

}  // namespace tricklet::ui
