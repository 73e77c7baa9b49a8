#include "ui/dialogs/frmStatistics.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "frequencies/frequency_sheet.h"
#include "ui/background/later.h"
#include "ui/background/worker.h"
#include "ui/dialogs/sheet_saving.h"
#include "ui/report/frequency_grid.h"
#include "ui/report/report_view.h"
#include "ui/style/dialog_parts.h"
#include "ui/style/progress_frame.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"

namespace tricklet::ui {
namespace {

constexpr QSize kFirstSize(760, 560);

QLabel* MakeText(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

}  // namespace

frmStatistics::frmStatistics(Session& session, std::filesystem::path& folder, QWidget* parent)
    : QDialog(parent),
      session_(session),
      folder_(folder),
      lblVerdict(MakeText("lblVerdict", this)),
      tabTables(new QTabWidget(this)),
      lblRemarks(MakeText("lblRemarks", this)),
      worker_(std::make_unique<Worker>()) {
  setObjectName(QStringLiteral("frmStatistics"));
  setWindowTitle(tr("Deals of %1").arg(ToQt(session.ShownLibrary())));
  tabTables->setObjectName(QStringLiteral("tabTables"));
  tabTables->setAccessibleName(tr("Statistics"));
  MakeQuiet(lblRemarks);
  auto* column = new QVBoxLayout(this);
  column->addWidget(lblVerdict);
  column->addWidget(tabTables, 1);
  column->addWidget(lblRemarks);
  column->addWidget(MakeFoot());
  const QSize room = RoomForDialog(*this);
  resize(kFirstSize.expandedTo(sizeHint()).boundedTo(room));
  lblVerdict->setText(tr("The boards are being read..."));
  ShowState();
}

frmStatistics::~frmStatistics() {
  *stop_ = true;
}

QPushButton* frmStatistics::MakeButton(const char* name, const QString& text,
                                       void (frmStatistics::*action)()) {
  QPushButton* button = MakeCommandButton(name, text, this);
  connect(button, &QPushButton::clicked, this, action);
  return button;
}

QWidget* frmStatistics::MakeFoot() {
  auto* foot = new QWidget(this);
  lblSaid = new ElidedLabel(foot);
  lblSaid->setObjectName(QStringLiteral("lblSaid"));
  MakeQuiet(lblSaid);
  progress_ = new ProgressFrame(foot);
  cmdSave = MakeButton("cmdSave", tr("Save as &CSV..."), &frmStatistics::SaveTable);
  cmdCopy = MakeButton("cmdCopy", tr("C&opy"), &frmStatistics::CopyTable);
  cmdCopy->setToolTip(tr("Copy all tables as text"));
  cmdClose = MakeButton("cmdClose", tr("Close"), &frmStatistics::reject);
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(lblSaid, 1);
  row->addWidget(progress_, 1);
  for (QPushButton* button : {cmdSave, cmdCopy, cmdClose}) row->addWidget(button);
  connect(progress_, &ProgressFrame::Begun, this, &frmStatistics::ShowState);
  connect(progress_, &ProgressFrame::Ended, this, &frmStatistics::ShowState);
  return foot;
}

void frmStatistics::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (begun_) return;
  begun_ = true;
  Later(this, [this] { Count(); });
}

void frmStatistics::Count() {
  auto tally = TallyLibrary(session_);
  if (closing_ || !tally) {
    done(closing_.value_or(Rejected));  // why there is nothing has been told
    return;
  }
  lblVerdict->setText(tr("The deals are being compared with others, dealt at random..."));
  const auto counted = std::make_shared<std::optional<LibraryFrequencies>>();
  worker_->Post(
      [counted, stop = stop_, tally = std::move(*tally)] {
        *counted = FrequenciesOf(tally, [&stop] { return !*stop; });
      },
      [this, counted] {
        counted_ = std::move(*counted);
        Show();
      });
}

void frmStatistics::Show() {
  if (!counted_) return;
  const DealFrequencies& frequencies = counted_->frequencies;
  lblVerdict->setText(ToQt(frequencies.verdict));
  for (const FrequencyTable& table : frequencies.tables) AddTable(table);
  QStringList remarks;
  for (const std::string& remark : counted_->remarks) remarks += ToQt(remark);
  lblRemarks->setText(remarks.join(u'\n'));
  lblRemarks->setVisible(!remarks.isEmpty());
  SetTabOrder();
  ShowState();
  tabTables->tabBar()->setFocus();
}

void frmStatistics::AddTable(const FrequencyTable& table) {
  auto* page = new QWidget(tabTables);
  auto* rows = new ReportView(QStringLiteral("grdTable"), session_.settings.suitColour, page);
  rows->setAccessibleName(ToQt(table.title));
  rows->Show(FrequencyGrid(table));
  auto* verdict = MakeText("lblTable", page);
  verdict->setText(ToQt(table.verdict));
  verdict->setVisible(!table.verdict.empty());
  auto* column = new QVBoxLayout(page);
  column->addWidget(rows, 1);
  column->addWidget(verdict);
  tabTables->addTab(page, ToQt(table.title));
}

void frmStatistics::SetTabOrder() {
  QWidget* before = tabTables->tabBar();
  QList<QWidget*> order;
  for (auto* rows : tabTables->findChildren<ReportView*>()) order += rows;
  order += {cmdSave, cmdCopy, cmdClose};
  for (QWidget* next : order) {
    setTabOrder(before, next);
    before = next;
  }
}

void frmStatistics::ShowState() {
  for (QPushButton* button : {cmdSave, cmdCopy}) button->setEnabled(counted_.has_value());
  lblSaid->setVisible(!progress_->IsWorking());
}

void frmStatistics::SaveTable() {
  if (!counted_) return;
  lblSaid->setText(SaveAsCsv(session_, tr("%1 deals.csv").arg(ToQt(session_.LibraryName())),
                             CsvFrequencies(counted_->frequencies), folder_));
}

void frmStatistics::CopyTable() {
  if (!counted_) return;
  QString text = ToQt(AlignedFrequencies(counted_->frequencies));
  for (const std::string& remark : counted_->remarks) text += ToQt(remark) + u'\n';
  QApplication::clipboard()->setText(text);
  lblSaid->setText(tr("The tables have been copied"));
}

void frmStatistics::done(int result) {
  if (progress_->IsWorking()) {
    closing_ = result;
    progress_->Cancel();
    return;
  }
  QDialog::done(result);
}

}  // namespace tricklet::ui
