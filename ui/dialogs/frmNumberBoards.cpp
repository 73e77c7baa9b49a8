#include "ui/dialogs/frmNumberBoards.h"

#include <array>

#include <QButtonGroup>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/fault.h"
#include "finding/board_copies.h"
#include "ui/dialogs/name_filter.h"
#include "ui/dialogs/number_range.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"

namespace tricklet::ui {
namespace {

struct Choice {
  NewNumbering numbering;
  const char* name;
  const char* text;
};
constexpr std::array kChoices{
    Choice{NewNumbering::SameDeal, "optSameDeal",
           QT_TRANSLATE_NOOP("tricklet::ui::frmNumberBoards",
                             "The next &free number with the same dealer and vulnerability")},
    Choice{NewNumbering::InTurn, "optInTurn",
           QT_TRANSLATE_NOOP("tricklet::ui::frmNumberBoards",
                             "One after &another, in the order of the list")},
    Choice{NewNumbering::Keep, "optKeep",
           QT_TRANSLATE_NOOP("tricklet::ui::frmNumberBoards", "The numbers that they &have")}};

}  // namespace

frmNumberBoards::frmNumberBoards(Session& session, For what, int boards, QWidget* parent)
    : QDialog(parent), session_(session) {
  const bool copying = what == For::Copying;
  setObjectName(QStringLiteral("frmNumberBoards"));
  const QString title = copying ? (boards == 1 ? tr("Copy a board") : tr("Copy %1 boards"))
                                : (boards == 1 ? tr("Renumber a board") : tr("Renumber %1 boards"));
  setWindowTitle(boards == 1 ? title : title.arg(boards));
  auto* form = new QFormLayout;
  if (copying) AddLibrary(form);
  form->addRow(copying ? tr("Numbers there") : tr("New numbers"), MakeNumbering(what));
  cmbFirst = new NumberCombo(QStringLiteral("cmbFirst"), tr("From number"), kFirstBoardNumber,
                             kLastBoardNumber, this);
  form->addRow(tr("From &number"), cmbFirst);
  lblNumbering = new QLabel(
      copying ? tr("Deal, auction, double-dummy table and notes are copied; results stay where "
                   "they were played. Where the dealer becomes another one the auction is left "
                   "out. No board is replaced.")
              : tr("Notes and results go along; boards with results keep dealer and "
                   "vulnerability. Where the dealer becomes another one the auction is left out. "
                   "The old files go to the recycle bin."),
      this);
  lblNumbering->setWordWrap(true);
  MakeQuiet(lblNumbering);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  cmdOK = buttons->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setText(copying ? tr("Copy") : tr("Renumber"));
  connect(buttons, &QDialogButtonBox::accepted, this, &frmNumberBoards::Go);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->addLayout(form);
  column->addWidget(lblNumbering);
  column->addWidget(buttons);
  connect(optNumbering, &QButtonGroup::idToggled, this, &frmNumberBoards::ProposeFirst);
  ProposeFirst();
}

void frmNumberBoards::AddLibrary(QFormLayout* form) {
  cmbLibrary = new QComboBox(this);
  cmbLibrary->setObjectName(QStringLiteral("cmbLibrary"));
  cmbLibrary->setEditable(true);
  cmbLibrary->setInsertPolicy(QComboBox::NoInsert);
  cmbLibrary->setMinimumContentsLength(28);
  for (const std::string& name : session_.libraryNames) cmbLibrary->addItem(ToQt(name));
  cmbLibrary->setCurrentIndex(-1);
  cmbLibrary->lineEdit()->setPlaceholderText(tr("A library, or the name of a new one"));
  new NameFilter(cmbLibrary->lineEdit(), session_.host);
  form->addRow(tr("&Library"), cmbLibrary);
  connect(cmbLibrary, &QComboBox::currentTextChanged, this, &frmNumberBoards::ProposeFirst);
}

QWidget* frmNumberBoards::MakeNumbering(For what) {
  auto* choices = new QWidget(this);
  auto* column = new QVBoxLayout(choices);
  column->setContentsMargins(0, 0, 0, 0);
  optNumbering = new QButtonGroup(this);
  for (const Choice& choice : kChoices) {
    if (what == For::Renumbering && choice.numbering == NewNumbering::Keep) continue;
    auto* button = new QRadioButton(tr(choice.text), choices);
    button->setObjectName(QString::fromLatin1(choice.name));
    optNumbering->addButton(button, static_cast<int>(choice.numbering));
    column->addWidget(button);
  }
  optNumbering->button(static_cast<int>(NewNumbering::SameDeal))->setChecked(true);
  return choices;
}

std::string frmNumberBoards::Library() const {
  return cmbLibrary == nullptr ? std::string() : FromQt(cmbLibrary->currentText().trimmed());
}

void frmNumberBoards::SetLibrary(const std::string& name) {
  if (cmbLibrary != nullptr) cmbLibrary->setCurrentText(ToQt(name));
}

/// One after another: after those that are there. The others are free to begin at the first.
void frmNumberBoards::ProposeFirst() {
  const bool inTurn = Plan().numbering == NewNumbering::InTurn;
  int first = kFirstBoardNumber;
  if (inTurn && cmbLibrary != nullptr && !Library().empty()) {
    try {
      first = NumberAfterLast(session_, Library());
    } catch (const Fault&) {
      // It is told when the boards are copied.
    }
  }
  cmbFirst->SetValue(first);
  ShowState();
}

void frmNumberBoards::ShowState() {
  cmbFirst->setEnabled(Plan().numbering != NewNumbering::Keep);
  cmdOK->setEnabled(cmbLibrary == nullptr || !Library().empty());
}

NumberPlan frmNumberBoards::Plan() const {
  return {static_cast<NewNumbering>(optNumbering->checkedId()), cmbFirst->Value()};
}

void frmNumberBoards::Go() {
  if (action_(Library(), Plan())) accept();
}

}  // namespace tricklet::ui
