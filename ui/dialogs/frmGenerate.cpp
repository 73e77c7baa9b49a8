#include "ui/dialogs/frmGenerate.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/dialogs/generate_hand.h"
#include "ui/dialogs/number_range.h"
#include "ui/dialogs/option_group.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr int kTwoHands = 1;    // of optnGen
constexpr int kFromDealer = 1;  // of optSpecify

/// A row of option buttons after their caption.
void AddOptions(QGridLayout* grid, const QString& caption, const QButtonGroup* options) {
  const int row = grid->rowCount();
  grid->addWidget(new QLabel(caption), row, 0);
  auto* buttons = new QHBoxLayout;
  for (QAbstractButton* option : options->buttons()) {
    option->setAccessibleName(QStringLiteral("%1: %2").arg(caption, option->text().remove(u'&')));
    buttons->addWidget(option);
  }
  buttons->addStretch(1);
  grid->addLayout(buttons, row, 1);
}

}  // namespace

frmGenerate::frmGenerate(Session& session, const GenerateChoices& choices, QWidget* parent)
    : QDialog(parent),
      session_(session),
      optnGen(MakeOptions(QStringLiteral("optnGen"), {tr("&One"), tr("&Two")}, this)),
      optSpecify(MakeOptions(QStringLiteral("optSpecify"),
                             {tr("&Seats"), tr("Steps from the &dealer")}, this)),
      chkPreview(new QCheckBox(tr("Show each deal before it is &kept"), this)) {
  setObjectName(QStringLiteral("frmGenerate"));
  setWindowTitle(tr("Generate deals"));
  chkPreview->setObjectName(QStringLiteral("chkPreview"));
  for (const GenHand hand : kGenHands) {
    hands_[hand] = new GenerateHand(hand, choices.constraints, session.settings.suitColour, this);
  }
  auto* hands = new QHBoxLayout;
  for (GenerateHand* hand : hands_) hands->addWidget(hand, 1);
  auto* column = new QVBoxLayout(this);
  column->addLayout(BuildRun());
  column->addLayout(hands);
  column->addWidget(chkPreview);
  QDialogButtonBox* buttons = BuildButtons();
  column->addWidget(buttons);
  Connect();
  SetTabOrder(*buttons);
  Fill(choices);
  boards_->Minimum()->setFocus();
  boards_->Minimum()->lineEdit()->selectAll();
}

/// The choices that hold for both hands.
QLayout* frmGenerate::BuildRun() {
  const auto board = [this](int index, const QString& title) {
    return new NumberCombo(QStringLiteral("cmbBoards_%1").arg(index), title, kFirstBoardNumber,
                           kLastBoardNumber, this);
  };
  boards_ = new NumberRange(board(0, tr("First board")), board(1, tr("Last board")), this);
  auto* caption = new QLabel(tr("&Boards"), this);
  caption->setBuddy(boards_->Minimum());
  auto* numbers = new QHBoxLayout;
  numbers->addWidget(boards_->Minimum());
  numbers->addWidget(new QLabel(tr("to"), this));
  numbers->addWidget(boards_->Maximum());
  numbers->addStretch(1);
  auto* grid = new QGridLayout;
  grid->addWidget(caption, 0, 0);
  grid->addLayout(numbers, 0, 1);
  AddOptions(grid, tr("Constrained hands"), optnGen);
  AddOptions(grid, tr("Directions"), optSpecify);
  grid->setColumnStretch(1, 1);
  return grid;
}

QDialogButtonBox* frmGenerate::BuildButtons() {
  auto* buttons = new QDialogButtonBox(this);
  auto* cmdGo = buttons->addButton(tr("&Generate"), QDialogButtonBox::AcceptRole);
  cmdGo->setObjectName(QStringLiteral("cmdGo"));
  cmdGo->setDefault(true);
  buttons->addButton(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, &frmGenerate::Go);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

void frmGenerate::Connect() {
  connect(optnGen, &QButtonGroup::idToggled, this,
          [this] { hands_[GenHand::Second]->setEnabled(optnGen->checkedId() == kTwoHands); });
  connect(optSpecify, &QButtonGroup::idToggled, this, [this] {
    for (GenerateHand* hand : hands_) {
      hand->SetRelativeToDealer(optSpecify->checkedId() == kFromDealer);
    }
  });
}

void frmGenerate::SetTabOrder(const QDialogButtonBox& buttons) {
  QList<QWidget*> order{boards_->Minimum(), boards_->Maximum()};
  for (const QButtonGroup* options : {optnGen, optSpecify}) {
    for (QAbstractButton* option : options->buttons()) order += option;
  }
  for (const GenerateHand* hand : hands_) order += hand->TabOrder();
  order += chkPreview;
  for (QAbstractButton* button : buttons.buttons()) order += button;
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order.at(i - 1), order.at(i));
}

void frmGenerate::Fill(const GenerateChoices& choices) {
  const Constraints& constraints = choices.constraints;
  boards_->SetValue({constraints.genBoards.front(), constraints.genBoards.back()});
  optnGen->button(constraints.numGenHands - 1)->setChecked(true);
  optSpecify->button(constraints.relativeToDealer ? kFromDealer : 0)->setChecked(true);
  hands_[GenHand::Second]->setEnabled(constraints.numGenHands == 2);
  chkPreview->setChecked(choices.preview);
}

GenerateChoices frmGenerate::Chosen() const {
  GenerateChoices choices;
  Constraints& constraints = choices.constraints;
  const Limits boards = boards_->Value();
  constraints.genBoards = {boards.minimum, boards.maximum};
  constraints.numGenHands = optnGen->checkedId() + 1;
  constraints.relativeToDealer = optSpecify->checkedId() == kFromDealer;
  for (const GenerateHand* hand : hands_) hand->Take(constraints);
  choices.preview = chkPreview->isChecked();
  return choices;
}

void frmGenerate::Go() {
  if (const auto contradiction = CheckConstraints(Chosen().constraints)) {
    session_.host.Tell(contradiction->text);
    hands_[contradiction->hand]->FocusOn(contradiction->part, contradiction->suit);
    return;
  }
  accept();
}

}  // namespace tricklet::ui
