#include "ui/dialogs/frmPrint.h"

#include <algorithm>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

#include "core/local_time.h"
#include "library/library_scan.h"
#include "publish/sheet_pages.h"
#include "ui/dialogs/sheet_options.h"
#include "ui/dialogs/sheet_preview.h"
#include "ui/style/dialog_parts.h"
#include "ui/style/progress_frame.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"

namespace tricklet::ui {
namespace {

SheetProposal ProposalFor(const Session& session) {
  return {.library = session.LibraryName(),
          .title = session.LibraryName(),
          .subtitle = TodayText(),
          .range = {session.library.firstBoard, session.library.lastBoard}};
}

}  // namespace

frmPrint::frmPrint(Session& session, std::filesystem::path& folder, QWidget* parent)
    : QDialog(parent),
      session_(session),
      folder_(folder),
      timCompute(new QTimer(this)),
      boards_(session) {
  setObjectName(QStringLiteral("frmPrint"));
  setWindowTitle(tr("Print"));
  timCompute->setSingleShot(true);
  connect(timCompute, &QTimer::timeout, this, &frmPrint::Compute);
}

bool frmPrint::Gather(const std::set<int>& chosen) {
  CountHands(session_);
  if (session_.library.boardCount == 0) {
    session_.host.Tell(FromQt(tr("There are no hands to print")));
    return false;
  }
  proposal_ = ProposalFor(session_);
  if (!chosen.empty()) proposal_.range = BoardRangeOf(chosen);
  shownRange_ = proposal_.range;
  if (!boards_.Read(proposal_.range)) return false;
  MakeFields();
  wantsTables_ = WantsTables(options_->Choices());
  return true;
}

void frmPrint::MakeFields() {
  options_ = new SheetOptions(session_.settings.print, proposal_, this);
  auto* scroll = new QScrollArea(this);
  scroll->setWidget(options_);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setMinimumWidth(options_->sizeHint().width() + fontMetrics().height());

  auto* fields = new QHBoxLayout;
  fields->addWidget(scroll);
  fields->addWidget(MakePreview(), 1);
  auto* column = new QVBoxLayout(this);
  column->addLayout(fields, 1);
  column->addWidget(MakeButtons());
  SetTabOrder();
  SetFirstSize();
  connect(options_, &SheetOptions::Changed, this, &frmPrint::Choose);
  connect(progress_, &ProgressFrame::Begun, this, &frmPrint::ShowState);
  connect(progress_, &ProgressFrame::Ended, this, &frmPrint::ShowState);
  Show();
}

/// The page, and what turns it.
QWidget* frmPrint::MakePreview() {
  auto* preview = new QWidget(this);
  picSheet = new SheetPreview(preview);
  cmdPreviousPage = MakeCommandButton("cmdPreviousPage", QStringLiteral("\u25C0"), this);
  cmdPreviousPage->setAccessibleName(tr("Previous page"));
  cmdPreviousPage->setToolTip(tr("Previous page (Page Up)"));
  cmdNextPage = MakeCommandButton("cmdNextPage", QStringLiteral("\u25B6"), this);
  cmdNextPage->setAccessibleName(tr("Next page"));
  cmdNextPage->setToolTip(tr("Next page (Page Down)"));
  lblPage = new QLabel(preview);
  lblPage->setObjectName(QStringLiteral("lblPage"));
  lblPage->setAlignment(Qt::AlignCenter);
  auto* turn = new QHBoxLayout;
  turn->addStretch(1);
  turn->addWidget(cmdPreviousPage);
  turn->addWidget(lblPage);
  turn->addWidget(cmdNextPage);
  turn->addStretch(1);
  auto* column = new QVBoxLayout(preview);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(picSheet, 1);
  column->addLayout(turn);

  const auto back = [this] { picSheet->TurnTo(picSheet->Page() - 1); };
  const auto forward = [this] { picSheet->TurnTo(picSheet->Page() + 1); };
  connect(cmdPreviousPage, &QPushButton::clicked, this, back);
  connect(cmdNextPage, &QPushButton::clicked, this, forward);
  new QShortcut(Qt::Key_PageUp, this, back);
  new QShortcut(Qt::Key_PageDown, this, forward);
  connect(picSheet, &SheetPreview::Turned, this, &frmPrint::ShowPlace);
  return preview;
}

QWidget* frmPrint::MakeButtons() {
  auto* buttons = new QWidget(this);
  lblSaid = new ElidedLabel(buttons);
  lblSaid->setObjectName(QStringLiteral("lblSaid"));
  progress_ = new ProgressFrame(buttons);
  MakeQuiet(lblSaid);
  cmdPrint = MakeCommandButton("cmdPrint", tr("&Print..."), this);
  cmdPrint->setDefault(true);
  cmdPdf = MakeCommandButton("cmdPdf", tr("Save as P&DF..."), this);
  cmdPictures = MakeCommandButton("cmdPictures", tr("Sa&ve as pictures..."), this);
  cmdClose = MakeCommandButton("cmdClose", tr("Close"), this);
  auto* row = new QHBoxLayout(buttons);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(lblSaid, 1);
  row->addWidget(progress_, 1);  // in its place, so that nothing moves
  for (QPushButton* button : {cmdPrint, cmdPdf, cmdPictures, cmdClose}) row->addWidget(button);

  auto* formats = new QMenu(cmdPictures);
  const auto offer = [&](const char* name, const QString& text, PictureFormat format) {
    QAction* action = formats->addAction(text, this, [this, format] {
      PutOut([this, format](const Sheets& sheets) {
        return SaveAsPictures(session_, sheets, format, folder_);
      });
    });
    action->setObjectName(QString::fromLatin1(name));
  };
  offer("mnuPng", tr("P&NG, for letters and web pages..."), PictureFormat::Png);
  offer("mnuSvg", tr("&SVG, for drawing programs..."), PictureFormat::Svg);
  cmdPictures->setMenu(formats);
  connect(cmdPrint, &QPushButton::clicked, this, [this] {
    PutOut([this](const Sheets& sheets) {
      return PrintOnPaper(session_, sheets, choosePrinter_, this);
    });
  });
  connect(cmdPdf, &QPushButton::clicked, this, [this] {
    PutOut([this](const Sheets& sheets) { return SaveAsPdf(session_, sheets, folder_); });
  });
  connect(cmdClose, &QPushButton::clicked, this, &frmPrint::reject);
  return buttons;
}

void frmPrint::SetTabOrder() {
  QList<QWidget*> order = options_->TabOrder();
  order += {picSheet, cmdPreviousPage, cmdNextPage, cmdPrint, cmdPdf, cmdPictures, cmdClose};
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order.at(i - 1), order.at(i));
  BeginAtRange();
}

/// So that the next number that is typed takes the place of the one that is there.
void frmPrint::BeginAtRange() {
  options_->FirstField()->setFocus();
  options_->FirstField()->lineEdit()->selectAll();
}

/// So large that the page can be read, on its side too, where the screen has room for that.
void frmPrint::SetFirstSize() {
  const QSize room = RoomForDialog(*this);
  const int height = std::min(room.height(), picSheet->sizeHint().height() * 5 / 4);
  const int width = sizeHint().width() - picSheet->sizeHint().width() + height;
  resize(QSize(width, height).boundedTo(room));
}

/// The range as it is typed; nothing while it is none.
std::optional<BoardRange> frmPrint::Range() const {
  auto range = BoardRangeBetween(FromQt(options_->From()), FromQt(options_->To()));
  if (range) range->only = proposal_.range.only;
  return range;
}

/// Why the sheets cannot be printed; empty when they can.
std::string frmPrint::Nothing(const SheetChoices& choices) const {
  return WhyNothingToPrint(*shown_, choices);
}

void frmPrint::Choose() {
  const bool wanted = WantsTables(options_->Choices());
  if (wanted && !wantsTables_) tried_.reset();  // asked for once more
  wantsTables_ = wanted;
  Show();
  timCompute->start(0);  // once what was chosen can be seen
}

/// Draws the sheets as they are chosen. While a number is being typed the boards before stay.
void frmPrint::Show() {
  const auto range = Range();
  if (range) shownRange_ = *range;
  shown_ = boards_.Of(shownRange_);
  const SheetChoices choices = options_->Choices();
  const std::string nothing = Nothing(choices);
  if (nothing.empty()) {
    if (choices.layout != std::exchange(shownLayout_, choices.layout)) picSheet->TurnTo(0);
    picSheet->Show(Sheets(shown_, choices));
  } else {
    picSheet->ShowNothing(ToQt(nothing));
  }
  lblSaid->clear();
  ShowState();
}

void frmPrint::ShowPlace() {
  const int pages = picSheet->Pages();
  lblPage->setText(pages == 0 ? QString()
                              : tr("Page %1 of %2").arg(picSheet->Page() + 1).arg(pages));
  cmdPreviousPage->setEnabled(picSheet->Page() > 0);
  cmdNextPage->setEnabled(picSheet->Page() + 1 < pages);
}

/// Nothing is printed while the tables for it are still coming.
void frmPrint::ShowState() {
  ShowPlace();
  for (QPushButton* button : {cmdPrint, cmdPdf, cmdPictures}) {
    button->setEnabled(!progress_->IsWorking());
  }
  lblSaid->setVisible(!progress_->IsWorking());
}

void frmPrint::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  timCompute->start(0);
}

/// Computes the tables that the chosen sheets want and lack. The person can go on choosing
/// meanwhile; for other boards it begins anew.
void frmPrint::Compute() {
  const auto range = Range();
  if (computing_) {
    again_ = again_ || (range && !(range == tried_));
    if (again_) progress_->Cancel();
    return;
  }
  const bool wanted = range && WantsTables(options_->Choices()) && boards_.LackTables(*range);
  if (!wanted || range == tried_) return;
  tried_ = range;
  computing_ = true;
  boards_.ComputeTables(*range);
  computing_ = false;
  if (closing_) {
    reject();
    return;
  }
  Show();
  if (std::exchange(again_, false)) {
    tried_.reset();  // the person has not cancelled it
    timCompute->start(0);
  }
}

/// Puts out what the preview shows.
void frmPrint::PutOut(const Output& output) {
  if (!Range()) {
    session_.host.Tell(kInvalidRange);
    BeginAtRange();
    return;
  }
  Show();
  if (const std::string nothing = Nothing(options_->Choices()); !nothing.empty()) {
    session_.host.TellError(nothing);
    return;
  }
  const QString said = output(Sheets(shown_, options_->Choices()));
  ShowState();
  lblSaid->setText(said);
  const std::string remark = said.isEmpty() ? std::string() : RemarkOn(*shown_, wantsTables_);
  if (!remark.empty()) session_.host.Tell(remark);
  if (closing_) reject();
}

void frmPrint::Remember() {
  RememberSheets(session_.settings.print, proposal_,
                 {.range = Range().value_or(shownRange_), .choices = options_->Choices()});
  SavePrintSettings(session_.settings, session_.store);
  StoreSettings(session_);
}

void frmPrint::reject() {
  if (progress_ != nullptr && progress_->IsWorking()) {
    closing_ = true;
    progress_->Cancel();
    return;
  }
  if (options_ != nullptr) Remember();
  QDialog::reject();
}

}  // namespace tricklet::ui
