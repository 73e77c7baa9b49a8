#include "ui/dialogs/frmBidding.h"

#include <utility>
#include <vector>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/dialogs/bid_button.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"

namespace tricklet::ui {
namespace {

constexpr int kGap = 4;          // between buttons
constexpr int kTextMargin = 12;  // of a button, both sides together
constexpr int kCallColumns = 4;  // of the buttons below the bids

/// A key that types a character and is no command; the space bar presses buttons.
bool IsTyped(const QKeyEvent& event) {
  constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const QString text = event.text();
  return text.size() == 1 && text.at(0).isPrint() && text.at(0) != u' ' &&
         (event.modifiers() & kCommands) == Qt::NoModifier;
}

QLabel* MakeSaying(const QString& name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  return label;
}

}  // namespace

frmBidding::frmBidding(Session& session, QWidget* parent)
    : QDialog(parent),
      host_(session.host),
      entry_(session.board, session.host),
      keys_(entry_),
      lblModifyBidding(MakeSaying(QStringLiteral("lblModifyBidding"), this)),
      lblTyped_(MakeSaying(QStringLiteral("lblTyped"), this)) {
  setObjectName(QStringLiteral("frmBidding"));
  setWindowTitle(tr("Bidding - Board %1").arg(session.board.boardNumber));
  auto* hint = new QLabel(tr("Or type calls: 1N 4S P X XX"), this);
  MakeQuiet(hint);

  auto* saying = new QHBoxLayout;
  saying->addWidget(lblModifyBidding, 1);
  saying->addWidget(lblTyped_);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(8);
  column->addLayout(saying);
  column->addLayout(MakeBids(session.settings.suitColour));
  column->addLayout(MakeCalls());
  column->addWidget(hint);
  column->setSizeConstraint(QLayout::SetFixedSize);
  cmdPass->setFocus();
  Show();
}

QGridLayout* frmBidding::MakeBids(bool fourColours) {
  auto* grid = new QGridLayout;
  grid->setSpacing(kGap);
  for (int index = 0; index < Call::kBids; ++index) {
    const int row = index / kStrains;
    const int column = index % kStrains;
    const Call bid = Call::Bid(row + 1, static_cast<BidStrain>(column));
    auto* button = new BidButton(bid, fourColours, this);
    connect(button, &QPushButton::clicked, this,
            [this, index] { Change([&] { entry_.Bid(index); }); });
    grid->addWidget(button, row, column);
    cmdBid.at(static_cast<std::size_t>(index)) = button;
  }
  return grid;
}

QGridLayout* frmBidding::MakeCalls() {
  auto* grid = new QGridLayout;
  grid->setSpacing(kGap);
  for (int column = 0; column < kCallColumns; ++column) grid->setColumnStretch(column, 1);
  cmdPass = Add(grid, "cmdPass", tr("Pass"), &AuctionEntry::pass);
  cmdDbl = Add(grid, "cmdDbl", tr("Dbl"), &AuctionEntry::CallDbl);
  cmdRdb = Add(grid, "cmdRdb", tr("Rdbl"), &AuctionEntry::CallRdb);
  cmdAllPass = Add(grid, "cmdAllPass", tr("All Pass"), &AuctionEntry::AllPass);
  cmdUndo = Add(grid, "cmdUndo", tr("Undo"), &AuctionEntry::UnCall);
  cmdClear = Add(grid, "cmdClear", tr("Clear"), &AuctionEntry::Clear);
  cmdOK = Add(grid, "cmdOK", tr("OK"));
  QPushButton* cmdCancel = Add(grid, "cmdCancel", tr("Cancel"));
  cmdDbl->setAccessibleName(tr("Double"));
  cmdRdb->setAccessibleName(tr("Redouble"));
  cmdUndo->setToolTip(tr("Take back the last call"));
  cmdClear->setToolTip(tr("Take back every call"));
  cmdOK->setDefault(true);
  cmdCancel->setAutoDefault(true);  // Enter on it must not mean OK
  connect(cmdOK, &QPushButton::clicked, this, &frmBidding::OK);
  connect(cmdCancel, &QPushButton::clicked, this, &frmBidding::reject);
  return grid;
}

QPushButton* frmBidding::Add(QGridLayout* grid, const char* name, const QString& text) {
  auto* button = new QPushButton(text, this);
  button->setObjectName(QString::fromLatin1(name));
  button->setAutoDefault(false);
  // As narrow as its text allows, so that the dialog leaves the table in sight.
  button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  button->setMinimumWidth(fontMetrics().horizontalAdvance(text) + kTextMargin);
  const int place = grid->count();
  grid->addWidget(button, place / kCallColumns, place % kCallColumns);
  return button;
}

QPushButton* frmBidding::Add(QGridLayout* grid, const char* name, const QString& text,
                             void (AuctionEntry::*procedure)()) {
  QPushButton* button = Add(grid, name, text);
  connect(button, &QPushButton::clicked, this,
          [this, procedure] { Change([&] { (entry_.*procedure)(); }); });
  return button;
}

void frmBidding::Show() {
  ShowEnabled();
  lblModifyBidding->setText(entry_.Over() ? tr("The auction is over")
                                          : tr("%1 to call").arg(ToQt(SeatName[entry_.ToCall()])));
  lblTyped_->setText(keys_.Typed().empty() ? QString() : tr("%1...").arg(ToQt(keys_.Typed())));
}

void frmBidding::ShowEnabled() {
  std::vector<std::pair<QPushButton*, bool>> buttons{
      {cmdPass, entry_.PassEnabled()},       {cmdDbl, entry_.DblEnabled()},
      {cmdRdb, entry_.RdbEnabled()},         {cmdOK, entry_.OKEnabled()},
      {cmdAllPass, entry_.AllPassEnabled()}, {cmdUndo, entry_.UndoEnabled()},
      {cmdClear, entry_.ClearEnabled()}};
  int index = 0;
  for (BidButton* button : cmdBid) buttons.emplace_back(button, entry_.BidEnabled(index++));
  for (const auto& [button, enabled] : buttons) {
    if (enabled) button->setEnabled(true);
  }
  // A button that is disabled would pass its focus on to the next one that is not.
  QPushButton* next = entry_.Over() ? cmdOK : cmdPass;
  for (const auto& [button, enabled] : buttons) {
    if (enabled) continue;
    if (focusWidget() == button) next->setFocus();
    button->setEnabled(false);
  }
}

template <class Procedure>
void frmBidding::Change(const Procedure& procedure) {
  keys_.Forget();
  procedure();
  Show();
  emit AuctionChanged();
}

void frmBidding::OK() {
  if (keys_.Typed().empty() && entry_.OK()) {
    accept();
  } else {
    host_.Beep();
  }
}

void frmBidding::reject() {
  if (entry_.Cancel()) QDialog::reject();
}

void frmBidding::Type(char key) {
  const CallKeys::Result result = keys_.Type(key);
  if (!result.accepted) host_.Beep();
  if (result.call) entry_.Make(*result.call);
  Show();
  if (result.call) emit AuctionChanged();
}

void frmBidding::TakeBack() {
  if (!keys_.Typed().empty()) {
    keys_.Forget();
    Show();
  } else if (entry_.UndoEnabled()) {
    Change([this] { entry_.UnCall(); });
  } else {
    host_.Beep();
  }
}

void frmBidding::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Backspace) {
    TakeBack();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    OK();
  } else if (IsTyped(*event)) {
    Type(event->text().at(0).toLatin1());
  } else {
    QDialog::keyPressEvent(event);
  }
}

}  // namespace tricklet::ui
