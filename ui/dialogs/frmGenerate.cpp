#include "ui/dialogs/frmGenerate.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "generate/constraints_text.h"
#include "ui/dialogs/condition_editor.h"
#include "ui/dialogs/condition_panel.h"
#include "ui/dialogs/generate_hand.h"
#include "ui/dialogs/number_range.h"
#include "ui/dialogs/option_group.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr int kTwoHands = 1;    // of optnGen
constexpr int kFromDealer = 1;  // of optSpecify
constexpr int kConditionPage = 1;
constexpr int kMargin = 9;  // of the page with the condition, in pixels

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
      chkPreview(new QCheckBox(tr("Show each deal before it is &kept"), this)),
      tabs_(new QTabWidget(this)),
      condition_(new ConditionPanel(session, this)) {
  setObjectName(QStringLiteral("frmGenerate"));
  setWindowTitle(tr("Generate deals"));
  chkPreview->setObjectName(QStringLiteral("chkPreview"));
  tabs_->setObjectName(QStringLiteral("tabGenerate"));
  tabs_->setAccessibleName(tr("What deals are wanted"));
  tabs_->addTab(BuildForm(choices), tr("&Hands"));
  tabs_->addTab(condition_, tr("Cond&itions"));
  condition_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  auto* column = new QVBoxLayout(this);
  column->addLayout(BuildBoards());
  column->addWidget(tabs_, 1);
  QDialogButtonBox* buttons = BuildButtons();
  column->addWidget(buttons);
  Connect();
  SetTabOrder(*buttons);
  Fill(choices);
  boards_->Minimum()->setFocus();
  boards_->Minimum()->lineEdit()->selectAll();
}

QLayout* frmGenerate::BuildBoards() {
  const auto board = [this](int index, const QString& title) {
    return new NumberCombo(QStringLiteral("cmbBoards_%1").arg(index), title, kFirstBoardNumber,
                           kLastBoardNumber, this);
  };
  boards_ = new NumberRange(board(0, tr("First board")), board(1, tr("Last board")), this);
  auto* caption = new QLabel(tr("&Boards"), this);
  caption->setBuddy(boards_->Minimum());
  auto* numbers = new QHBoxLayout;
  numbers->addWidget(caption);
  numbers->addWidget(boards_->Minimum());
  numbers->addWidget(new QLabel(tr("to"), this));
  numbers->addWidget(boards_->Maximum());
  numbers->addStretch(1);
  return numbers;
}

/// One or two hands, and what holds for both.
QWidget* frmGenerate::BuildForm(const GenerateChoices& choices) {
  auto* form = new QWidget(this);
  auto* grid = new QGridLayout;
  AddOptions(grid, tr("Constrained hands"), optnGen);
  AddOptions(grid, tr("Directions"), optSpecify);
  grid->setColumnStretch(1, 1);
  auto* hands = new QHBoxLayout;
  for (const GenHand hand : kGenHands) {
    hands_[hand] = new GenerateHand(hand, choices.constraints, session_.settings.suitColour, this);
    hands->addWidget(hands_[hand], 1);
  }
  cmdAsText = new QPushButton(tr("&As text"), this);
  cmdAsText->setObjectName(QStringLiteral("cmdAsText"));
  cmdAsText->setAutoDefault(false);
  cmdAsText->setToolTip(tr("Write what is asked here as a condition, to go on from there"));
  connect(cmdAsText, &QPushButton::clicked, this, &frmGenerate::WriteAsText);
  auto* last = new QHBoxLayout;
  last->addWidget(chkPreview, 1);
  last->addWidget(cmdAsText);
  auto* column = new QVBoxLayout(form);
  column->addLayout(grid);
  column->addLayout(hands);
  column->addLayout(last);
  return form;
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
  // Whoever goes there wants to write; the arrow keys go on from page to page.
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int page) {
    if (page == kConditionPage && !tabs_->tabBar()->hasFocus()) condition_->Editor()->setFocus();
  });
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
  order += cmdAsText;
  order += condition_->TabOrder();
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
  condition_->SetText(choices.condition);
  tabs_->setCurrentIndex(choices.byCondition ? kConditionPage : 0);
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
  choices.byCondition = tabs_->currentIndex() == kConditionPage;
  choices.condition = condition_->Text();
  if (choices.byCondition) choices.script = condition_->Editor()->Outcome().script;
  return choices;
}

/// Steps from the dealer are counted on the first board: a condition names seats.
void frmGenerate::WriteAsText() {
  const Constraints constraints = Chosen().constraints;
  condition_->SetText(ConditionText(constraints, DealerOfBoard(constraints.genBoards.front())));
  tabs_->setCurrentIndex(kConditionPage);
  condition_->Editor()->setFocus();
}

/// False after a message of what has to be changed.
bool frmGenerate::Agrees() {
  if (tabs_->currentIndex() == kConditionPage) return condition_->Take() != nullptr;
  const auto contradiction = CheckConstraints(Chosen().constraints);
  if (!contradiction) return true;
  session_.host.Tell(contradiction->text);
  hands_[contradiction->hand]->FocusOn(contradiction->part, contradiction->suit);
  return false;
}

void frmGenerate::Go() {
  if (Agrees()) accept();
}

}  // namespace tricklet::ui
