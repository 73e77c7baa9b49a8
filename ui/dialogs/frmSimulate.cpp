#include "ui/dialogs/frmSimulate.h"

#include <array>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "core/fault.h"
#include "disk/file_io.h"
#include "simulation/keep_deals.h"
#include "ui/background/worker.h"
#include "ui/dialogs/condition_editor.h"
#include "ui/dialogs/library_name_dialog.h"
#include "ui/dialogs/simulation_grid.h"
#include "ui/report/report_view.h"
#include "ui/report/trick_histogram.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"
#include "ui/style/symbols.h"

namespace tricklet::ui {
namespace {

constexpr int kDealsStep = 500;
constexpr int kHighestSeed = 999999;
constexpr int kWide = 960;
constexpr int kHigh = 620;

QString HandText(const PerSuit<Holding>& hand, const Session& session, const QPalette& palette) {
  QString text;
  for (const Suit suit : kAllSuits) {
    text += ColouredSymbol(suit, session.settings.suitColour, palette) +
            ToQt(HoldingText(hand[suit])) + QStringLiteral(" &nbsp;");
  }
  return text;
}

/// The hands that count as known unless the person says otherwise.
PerSeat<bool> UsualHands(SimulatedQuestion question, Seat declarer, const RecordedPlay& record) {
  PerSeat<bool> known;
  if (question == SimulatedQuestion::Lead) {
    known[SeatAfter(declarer)] = true;
  } else if (question == SimulatedQuestion::Contract) {
    known[declarer] = known[PartnerOf(declarer)] = true;
  } else {
    std::string why;
    if (const auto point = FollowTo(record.board, record.cards, why)) known = SeenOnPlay(*point);
  }
  return known;
}

}  // namespace

frmSimulate::frmSimulate(Session& session, const RecordedPlay& record,
                         std::filesystem::path& folder, QWidget* parent)
    : QDialog(parent), session_(session), record_(record), folder_(folder) {
  setObjectName(QStringLiteral("frmSimulate"));
  setWindowTitle(tr("Simulate board %1").arg(record_.board.boardNumber));
  auto* panes = new QHBoxLayout;
  panes->addWidget(MakeQuestion(), 2);
  panes->addWidget(MakeResult(), 3);
  auto* column = new QVBoxLayout(this);
  column->addLayout(panes, 1);
  column->addWidget(MakeFoot());
  for (auto* choice : {cmbQuestion, cmbDeclarer}) {
    connect(choice, &QComboBox::currentIndexChanged, this, &frmSimulate::ShowUsualHands);
  }
  for (QCheckBox* known : chkKnown) {
    connect(known, &QCheckBox::toggled, this, &frmSimulate::ShowHands);
  }
  connect(grdTable, &ReportView::RowChosen, this, &frmSimulate::ShowCounts);
  ShowUsualHands();
  SetTabOrder();
  ShowState();
  resize(QSize(kWide, kHigh));
}

frmSimulate::~frmSimulate() {
  Stop();
}

QPushButton* frmSimulate::MakeButton(const char* name, const QString& text) {
  auto* button = new QPushButton(text, this);
  button->setObjectName(QString::fromLatin1(name));
  button->setAutoDefault(false);
  return button;
}

QWidget* frmSimulate::MakeQuestion() {
  auto* pane = new QWidget(this);
  cmbQuestion = new QComboBox(pane);
  cmbQuestion->setObjectName(QStringLiteral("cmbQuestion"));
  cmbQuestion->addItem(tr("Opening lead"), static_cast<int>(SimulatedQuestion::Lead));
  cmbQuestion->addItem(tr("Contract"), static_cast<int>(SimulatedQuestion::Contract));
  if (!record_.cards.empty()) {
    cmbQuestion->addItem(tr("Next card of the play"), static_cast<int>(SimulatedQuestion::Play));
    cmbQuestion->setCurrentIndex(cmbQuestion->count() - 1);
  }
  const bool bid = record_.board.contractLevel > 0;
  const SimulatedContract contract = bid ? ContractOf(record_.board) : SimulatedContract{3};
  const std::string crosses(static_cast<std::size_t>(contract.doubling), 'x');
  txtContract = new QLineEdit(
      QString::number(contract.level) + ToQt(StrainLetter[contract.strain]) + ToQt(crosses), pane);
  txtContract->setObjectName(QStringLiteral("txtContract"));
  cmbDeclarer = new QComboBox(pane);
  cmbDeclarer->setObjectName(QStringLiteral("cmbDeclarer"));
  for (const Seat seat : kAllSeats) cmbDeclarer->addItem(ToQt(SeatName[seat]));
  cmbDeclarer->setCurrentIndex(IndexOf(contract.declarer));
  txtAgainst = new QLineEdit(pane);
  txtAgainst->setObjectName(QStringLiteral("txtAgainst"));
  txtAgainst->setPlaceholderText(tr("none, or another contract"));
  spnDeals = new QSpinBox(pane);
  spnDeals->setObjectName(QStringLiteral("spnDeals"));
  spnDeals->setRange(1, kMostSimulatedDeals);
  spnDeals->setSingleStep(kDealsStep);
  spnDeals->setValue(kUsualSimulatedDeals);
  spnSeed = new QSpinBox(pane);
  spnSeed->setObjectName(QStringLiteral("spnSeed"));
  spnSeed->setRange(1, kHighestSeed);
  spnSeed->setToolTip(tr("The same number gives the same table"));
  auto* hands = new QGroupBox(tr("Known hands"), pane);
  auto* grid = new QGridLayout(hands);
  grid->setColumnStretch(1, 1);
  for (const Seat seat : kAllSeats) {
    chkKnown[seat] = new QCheckBox(ToQt(SeatName[seat]), hands);
    chkKnown[seat]->setObjectName(QStringLiteral("chkKnown") + ToQt(SeatName[seat]));
    lblHand[seat] = new QLabel(hands);
    lblHand[seat]->setTextFormat(Qt::RichText);
    grid->addWidget(chkKnown[seat], IndexOf(seat), 0);
    grid->addWidget(lblHand[seat], IndexOf(seat), 1);
  }
  txtCondition = new ConditionEditor(pane);
  txtCondition->setAccessibleName(tr("Condition of the other hands"));
  txtCondition->setPlaceholderText(tr("hcp(south) >= 15 && hcp(south) <= 17"));
  auto* lblCondition = new QLabel(tr("C&ondition of the other hands"), pane);
  lblCondition->setBuddy(txtCondition);
  auto* form = new QFormLayout;
  form->addRow(tr("&Find out"), cmbQuestion);
  form->addRow(tr("Con&tract"), txtContract);
  form->addRow(tr("&Declarer"), cmbDeclarer);
  form->addRow(tr("Compare &with"), txtAgainst);
  auto* numbers = new QFormLayout;
  numbers->addRow(tr("D&eals at the most"), spnDeals);
  numbers->addRow(tr("See&d"), spnSeed);
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(form);
  column->addWidget(hands);
  column->addWidget(lblCondition);
  column->addWidget(txtCondition, 1);
  column->addLayout(numbers);
  return pane;
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
  grdTable = new ReportView(QStringLiteral("grdTable"), pane);
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
  cmdRun = MakeButton("cmdRun", tr("&Run"));
  cmdStop = MakeButton("cmdStop", tr("&Stop"));
  cmdKeep = MakeButton("cmdKeep", tr("&Keep deals in library..."));
  cmdSave = MakeButton("cmdSave", tr("S&ave table..."));
  cmdCopy = MakeButton("cmdCopy", tr("&Copy"));
  cmdCopy->setToolTip(tr("The table with tabs between its columns, to be pasted elsewhere"));
  cmdClose = MakeButton("cmdClose", tr("Close"));
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
  QList<QWidget*> order{cmbQuestion, txtContract, cmbDeclarer, txtAgainst};
  for (QCheckBox* known : chkKnown) order += known;
  order += {txtCondition, spnDeals, spnSeed, grdTable, cmdRun,
            cmdStop,      cmdKeep,  cmdSave, cmdCopy,  cmdClose};
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order.at(i - 1), order.at(i));
}

SimulatedQuestion frmSimulate::Question() const {
  return static_cast<SimulatedQuestion>(cmbQuestion->currentData().toInt());
}

/// The hands that such a question is asked with.
void frmSimulate::ShowUsualHands() {
  const auto declarer = static_cast<Seat>(cmbDeclarer->currentIndex());
  const PerSeat<bool> known = UsualHands(Question(), declarer, record_);
  for (const Seat seat : kAllSeats) chkKnown[seat]->setChecked(known[seat]);
  ShowHands();
  ShowState();
}

void frmSimulate::ShowHands() {
  for (const Seat seat : kAllSeats) {
    const bool known = chkKnown[seat]->isChecked();
    lblHand[seat]->setText(known ? HandText(record_.board.hands[seat], session_, palette())
                                 : QStringLiteral("<i>%1</i>").arg(tr("unknown")));
  }
}

std::optional<SimulatedContract> frmSimulate::ReadContract(const QLineEdit* text,
                                                           std::string& why) const {
  Board board;
  if (!SetContract(board, FromQt(text->text().trimmed()))) {
    why = FromQt(tr("%1 is no contract").arg(text->text()));
    return std::nullopt;
  }
  board.declarer = static_cast<Seat>(cmbDeclarer->currentIndex());
  return ContractOf(board);
}

std::optional<SimulationPlan> frmSimulate::ReadPlan(std::string& why) const {
  SimulationPlan plan;
  plan.question = Question();
  plan.hands = record_.board.hands;
  plan.cards = record_.cards;
  plan.vulnerability = record_.board.Vulnerability();
  const auto contract = ReadContract(txtContract, why);
  if (!contract) return std::nullopt;
  plan.contract = *contract;
  if (plan.question == SimulatedQuestion::Contract && !txtAgainst->text().trimmed().isEmpty()) {
    plan.against = ReadContract(txtAgainst, why);
    if (!plan.against) return std::nullopt;
  }
  PerSeat<bool> known;
  for (const Seat seat : kAllSeats) known[seat] = chkKnown[seat]->isChecked();
  plan.known = known;
  plan.condition = FromQt(txtCondition->toPlainText().trimmed());
  plan.deals = spnDeals->value();
  plan.seed = static_cast<std::uint64_t>(spnSeed->value());
  return plan;
}

void frmSimulate::Run() {
  if (running_) return;
  std::string why;
  const auto plan = ReadPlan(why);
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
  proDeals->setRange(0, plan->deals);
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
  txtAgainst->setEnabled(Question() == SimulatedQuestion::Contract);
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
  if (!table_) return;
  const auto file =
      session_.host.ChooseSaveFile({.description = FromQt(tr("Tables for spreadsheets")),
                                    .extensions = {"csv"},
                                    .suggested = folder_ / PathFromQt(tr("simulation.csv"))});
  if (!file) return;
  folder_ = file->parent_path();
  try {
    ReplaceWholeFile(*file, CsvText(SheetOf(*table_)));
    Said(tr("Saved as %1").arg(ToQt(ShownPath(*file))));
  } catch (const Fault& fault) {
    session_.host.TellError(fault.Description());
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

/// What the worker is at ends first, in about a second.
void frmSimulate::done(int result) {
  Stop();
  QDialog::done(result);
}

}  // namespace tricklet::ui
