#include "ui/dialogs/frmReport.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "review/play_review.h"
#include "review/report_sheet.h"
#include "review/report_source.h"
#include "review/session_review.h"
#include "ui/background/later.h"
#include "ui/report/report_sheets.h"
#include "ui/report/report_texts.h"
#include "ui/style/dialog_parts.h"
#include "ui/style/progress_frame.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"

namespace tricklet::ui {
namespace {

constexpr int kMostRemarks = 3;

/// A solver that is loaded when it is first asked for; null, with the reason in `why`, without one.
Solver* SolverOf(const Session& session, std::string& why) {
  if (!session.getSolver) {
    why = "There is no double-dummy solver";
    return nullptr;
  }
  Solver& solver = session.getSolver();
  why = solver.Missing();
  return why.empty() ? &solver : nullptr;
}

ReportSheet AllEntrants(const SessionReport& report) {
  std::vector<std::size_t> all(report.entrants.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  return EntrantSheet(report, all);
}

}  // namespace

frmReport::frmReport(Session& session, ReportLook& look, std::filesystem::path& folder,
                     QWidget* parent)
    : QDialog(parent), session_(session), look_(look), folder_(folder) {
  setObjectName(QStringLiteral("frmReport"));
  setWindowTitle(tr("Session report of %1").arg(ToQt(session.ShownLibrary())));
  if (look_.library != session.LibraryName()) look_ = {.library = session.LibraryName()};
  tabReport = new QTabWidget(this);
  tabReport->setObjectName(QStringLiteral("tabReport"));
  tabReport->setAccessibleName(tr("Session report"));
  const bool fourColours = session_.settings.suitColour;
  entrants_ = new ReportPage(ReportPage::Of::Entrants, fourColours, tabReport);
  boards_ = new ReportPage(ReportPage::Of::Boards, fourColours, tabReport);
  tabReport->addTab(entrants_, EntrantsTitle(Contestants::Pairs));
  tabReport->addTab(boards_, tr("Boards"));
  lblRemarks = new QLabel(this);
  lblRemarks->setObjectName(QStringLiteral("lblRemarks"));
  lblRemarks->setTextFormat(Qt::PlainText);
  lblRemarks->setWordWrap(true);
  MakeQuiet(lblRemarks);
  auto* column = new QVBoxLayout(this);
  column->addWidget(tabReport, 1);
  column->addWidget(lblRemarks);
  column->addWidget(MakeFoot());
  for (ReportPage* page : {entrants_, boards_}) {
    connect(page, &ReportPage::PlaceAsked, this, [this](const ReportPlace& place) { GoTo(place); });
    connect(page, &ReportPage::PlaceChosen, this, &frmReport::ShowState);
  }
  connect(tabReport, &QTabWidget::currentChanged, this, &frmReport::ShowState);
  connect(progress_, &ProgressFrame::Begun, this, &frmReport::ShowState);
  connect(progress_, &ProgressFrame::Ended, this, &frmReport::ShowState);
  SetTabOrder();
  SetFirstSize();
  ShowState();
}

QWidget* frmReport::MakeFoot() {
  auto* foot = new QWidget(this);
  lblSaid = new ElidedLabel(foot);
  lblSaid->setObjectName(QStringLiteral("lblSaid"));
  MakeQuiet(lblSaid);
  progress_ = new ProgressFrame(foot);
  cmdGo = MakeCommandButton("cmdGo", tr("&Go to board"), this);
  cmdGo->setToolTip(tr("Close the report and look at the chosen result (Enter)"));
  cmdCsv = MakeCommandButton("cmdCsv", tr("Save as &CSV..."), this);
  cmdCsv->setToolTip(tr("Save the upper table, with all its numbers, for a spreadsheet"));
  cmdPrint = MakeCommandButton("cmdPrint", tr("&Print..."), this);
  cmdPdf = MakeCommandButton("cmdPdf", tr("Save as P&DF..."), this);
  cmdClose = MakeCommandButton("cmdClose", tr("Close"), this);
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(lblSaid, 1);
  row->addWidget(progress_, 1);  // in its place, so that nothing moves
  for (QPushButton* button : {cmdGo, cmdCsv, cmdPrint, cmdPdf, cmdClose}) row->addWidget(button);
  connect(cmdGo, &QPushButton::clicked, this,
          [this] { GoTo((tabReport->currentWidget() == boards_ ? boards_ : entrants_)->Place()); });
  connect(cmdCsv, &QPushButton::clicked, this, &frmReport::SaveCsv);
  connect(cmdPrint, &QPushButton::clicked, this, &frmReport::Print);
  connect(cmdPdf, &QPushButton::clicked, this, &frmReport::SavePdf);
  connect(cmdClose, &QPushButton::clicked, this, &frmReport::reject);
  return foot;
}

void frmReport::SetTabOrder() {
  QList<QWidget*> order{tabReport->tabBar()};
  order += entrants_->TabOrder() + boards_->TabOrder();
  order += {cmdGo, cmdCsv, cmdPrint, cmdPdf, cmdClose};
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order.at(i - 1), order.at(i));
}

void frmReport::SetFirstSize() {
  const QSize room = RoomForDialog(*this);
  resize((sizeHint() * 5 / 4).boundedTo(room));
}

void frmReport::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (reviewed_) return;
  reviewed_ = true;
  Later(this, [this] { Review(); });
}

/// Everything that can be known, as it becomes known.
void frmReport::Review() {
  std::string why;
  Solver* solver = SolverOf(session_, why);
  if (solver == nullptr) {
    ShowWithoutPlays(why);
    return;
  }
  const ReportOutcome outcome =
      ReportSession(session_, *solver, [this](const SessionReport& report) { Show(report); });
  if (outcome.report) {
    Show(*outcome.report);
    ShowRemarks(outcome.cancelled ? FromQt(tr("Cancelled: plays are missing")) : outcome.failure);
  } else if (!closing_) {
    ShowWithoutPlays(outcome.failure.empty() ? FromQt(tr("Cancelled: plays are missing"))
                                             : outcome.failure);
  }
  ShowState();
  if (closing_) done(*closing_);
}

/// What the stored tables tell.
void frmReport::ShowWithoutPlays(const std::string& why) {
  const auto source = GatherReport(session_, false);
  if (!source) {
    reject();  // why has been told
    return;
  }
  Show(MakeSessionReport(*source, {}));
  ShowRemarks(why);
  ShowState();
}

void frmReport::Show(const SessionReport& report) {
  const bool first = !report_;
  report_ = std::make_shared<const SessionReport>(report);
  tabReport->setTabText(0, EntrantsTitle(report.contestants));
  entrants_->Show(report_);
  boards_->Show(report_);
  ShowRemarks({});
  if (!first) return;
  entrants_->Choose(std::min(look_.entrant, static_cast<int>(report.entrants.size()) - 1));
  boards_->Choose(std::min(look_.board, static_cast<int>(report.boards.size()) - 1));
  tabReport->setCurrentIndex(look_.page);
  (look_.page == 0 ? entrants_ : boards_)->TabOrder().constFirst()->setFocus();
}

/// How far it has come, what is left out, and `why`; what does not fit is in the tool tip.
void frmReport::ShowRemarks(const std::string& why) {
  QStringList lines{ToQt(kDoubleDummyLabel) + u' ' +
                    tr("Plays reviewed: %1 of %2.").arg(report_->reviewed).arg(report_->plays)};
  if (!why.empty()) lines.front() += u' ' + ToQt(why);
  for (const std::string& remark : report_->remarks) lines += ToQt(remark);
  lblRemarks->setToolTip(lines.size() > kMostRemarks ? lines.join(u'\n') : QString());
  const qsizetype more = lines.size() - kMostRemarks;
  if (more > 0) {
    lines = lines.first(kMostRemarks);
    lines.back() += u' ' + tr("(and %1 more)").arg(more);
  }
  lblRemarks->setText(lines.join(u'\n'));
}

/// Nothing is put out while numbers are still coming.
void frmReport::ShowState() {
  const bool working = progress_->IsWorking();
  const bool shown = report_ != nullptr && !working;
  for (QPushButton* button : {cmdCsv, cmdPrint, cmdPdf}) button->setEnabled(shown);
  const ReportPage* page = tabReport->currentWidget() == boards_ ? boards_ : entrants_;
  cmdGo->setEnabled(report_ != nullptr && page->Place().has_value());
  lblSaid->setVisible(!working);
}

void frmReport::GoTo(const std::optional<ReportPlace>& place) {
  if (!place) return;
  place_ = place;
  accept();
}

void frmReport::done(int result) {
  if (progress_->IsWorking()) {
    closing_ = result;
    progress_->Cancel();
    return;
  }
  look_.page = tabReport->currentIndex();
  look_.entrant = std::max(entrants_->Chosen(), 0);
  look_.board = std::max(boards_->Chosen(), 0);
  QDialog::done(result);
}

Sheets frmReport::MakeSheets() const {
  return ReportSheets(*report_, session_.LibraryName(), session_.settings.print);
}

void frmReport::Said(const QString& text) {
  lblSaid->setText(text);
  if (closing_) done(*closing_);
}

/// The table that is shown above, beside the sheets that were saved last.
void frmReport::SaveCsv() {
  const bool boards = tabReport->currentWidget() == boards_;
  const QString name = boards ? tr("%1 boards.csv") : tr("%1 report.csv");
  Said(SaveAsCsv(session_, name.arg(ToQt(session_.LibraryName())),
                 CsvSheet(boards ? BoardSheet(*report_) : AllEntrants(*report_)), folder_));
}

void frmReport::SavePdf() {
  Said(SaveAsPdf(session_, MakeSheets(), folder_));
}

void frmReport::Print() {
  Said(PrintOnPaper(session_, MakeSheets(), choosePrinter_, this));
}

}  // namespace tricklet::ui
