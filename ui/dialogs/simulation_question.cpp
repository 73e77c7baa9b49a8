#include "ui/dialogs/simulation_question.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include "simulation/known_deal.h"
#include "ui/dialogs/condition_editor.h"
#include "ui/dialogs/condition_panel.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"

namespace tricklet::ui {
namespace {

constexpr int kDealsStep = 500;
constexpr int kHighestSeed = 999999;

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

QString LetterText(const SimulatedContract& contract) {
  return QString::number(contract.level) + ToQt(StrainLetter[contract.strain]) +
         QString(static_cast<int>(contract.doubling), u'x');
}

QSpinBox* MakeNumber(const char* name, int highest, QWidget* parent) {
  auto* number = new QSpinBox(parent);
  number->setObjectName(QLatin1String(name));
  number->setRange(1, highest);
  return number;
}

}  // namespace

SimulationQuestion::SimulationQuestion(Session& session, const RecordedPlay& record,
                                       const PerSeat<bool>& faceDown, QWidget* parent)
    : QWidget(parent), session_(session), record_(record), faceDown_(faceDown) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addLayout(MakeContracts());
  column->addWidget(MakeHands());
  condition_ = new ConditionPanel(session, this);
  condition_->Editor()->setAccessibleName(tr("Condition of the other hands"));
  condition_->Editor()->setPlaceholderText(tr("hcp(south) >= 15 && hcp(south) <= 17"));
  condition_->SetDeals([this](std::string& why) { return DealsAsked(why); });
  auto* caption = new QLabel(tr("C&ondition of the other hands"), this);
  caption->setBuddy(condition_->Editor());
  column->addWidget(caption);
  column->addWidget(condition_, 1);
  column->addLayout(MakeNumbers());
  for (auto* choice : {cmbQuestion, cmbDeclarer}) {
    connect(choice, &QComboBox::currentIndexChanged, this, &SimulationQuestion::ShowUsualHands);
  }
  for (QCheckBox* known : chkKnown) {
    connect(known, &QCheckBox::toggled, this, &SimulationQuestion::ShowHands);
  }
  ShowUsualHands();
}

QComboBox* SimulationQuestion::MakeSeats(const char* name, const QString& title) {
  auto* seats = new QComboBox(this);
  seats->setObjectName(QLatin1String(name));
  seats->setAccessibleName(title);
  for (const Seat seat : kAllSeats) seats->addItem(ToQt(SeatName[seat]));
  return seats;
}

QFormLayout* SimulationQuestion::MakeContracts() {
  cmbQuestion = new QComboBox(this);
  cmbQuestion->setObjectName(QStringLiteral("cmbQuestion"));
  cmbQuestion->addItem(tr("Opening lead"), static_cast<int>(SimulatedQuestion::Lead));
  cmbQuestion->addItem(tr("Contract"), static_cast<int>(SimulatedQuestion::Contract));
  if (!record_.cards.empty()) {
    cmbQuestion->addItem(tr("Next card of the play"), static_cast<int>(SimulatedQuestion::Play));
    cmbQuestion->setCurrentIndex(cmbQuestion->count() - 1);
  }
  const bool bid = record_.board.contractLevel > 0;
  const SimulatedContract contract = bid ? ContractOf(record_.board) : SimulatedContract{3};
  txtContract = new QLineEdit(LetterText(contract), this);
  txtContract->setObjectName(QStringLiteral("txtContract"));
  cmbDeclarer = MakeSeats("cmbDeclarer", tr("Declarer"));
  cmbDeclarer->setCurrentIndex(IndexOf(contract.declarer));
  txtAgainst = new QLineEdit(this);
  txtAgainst->setObjectName(QStringLiteral("txtAgainst"));
  txtAgainst->setPlaceholderText(tr("none"));
  cmbAgainst = MakeSeats("cmbAgainst", tr("Declarer of the other contract"));
  cmbAgainst->setCurrentIndex(IndexOf(contract.declarer));
  const auto with = [this](QLineEdit* text, QComboBox* declarer) {
    auto* row = new QHBoxLayout;
    row->addWidget(text, 1);
    row->addWidget(new QLabel(tr("by"), this));
    row->addWidget(declarer);
    return row;
  };
  auto* form = new QFormLayout;
  const auto addRow = [&](const QString& text, QWidget* buddy, QHBoxLayout* row) {
    auto* caption = new QLabel(text, this);
    caption->setBuddy(buddy);
    form->addRow(caption, row);
  };
  form->addRow(tr("&Find out"), cmbQuestion);
  addRow(tr("Con&tract"), txtContract, with(txtContract, cmbDeclarer));
  addRow(tr("Compare &with"), txtAgainst, with(txtAgainst, cmbAgainst));
  return form;
}

QGroupBox* SimulationQuestion::MakeHands() {
  auto* hands = new QGroupBox(tr("Known hands"), this);
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
  return hands;
}

QFormLayout* SimulationQuestion::MakeNumbers() {
  spnDeals = MakeNumber("spnDeals", kMostSimulatedDeals, this);
  spnDeals->setSingleStep(kDealsStep);
  spnDeals->setValue(kUsualSimulatedDeals);
  spnSeed = MakeNumber("spnSeed", kHighestSeed, this);
  spnSeed->setToolTip(tr("The same number gives the same table"));
  auto* numbers = new QFormLayout;
  numbers->addRow(tr("D&eals at the most"), spnDeals);
  chkPrecise = new QCheckBox(tr("Fewer when the errors are s&mall"), this);
  chkPrecise->setObjectName(QStringLiteral("chkPrecise"));
  chkPrecise->setChecked(true);
  chkPrecise->setToolTip(tr("No error above %1 tricks, %2 % or %3 IMP of a comparison of contracts")
                             .arg(kTricksError)
                             .arg(kPercentError)
                             .arg(kImpsError));
  numbers->addRow(QString(), chkPrecise);
  numbers->addRow(tr("See&d"), spnSeed);
  return numbers;
}

QList<QWidget*> SimulationQuestion::TabOrder() const {
  QList<QWidget*> order{cmbQuestion, txtContract, cmbDeclarer, txtAgainst, cmbAgainst};
  for (QCheckBox* known : chkKnown) order += known;
  order += condition_->TabOrder();
  order += {spnDeals, chkPrecise, spnSeed};
  return order;
}

SimulatedQuestion SimulationQuestion::Question() const {
  return static_cast<SimulatedQuestion>(cmbQuestion->currentData().toInt());
}

/// The hands that such a question is asked with.
void SimulationQuestion::ShowUsualHands() {
  const auto declarer = static_cast<Seat>(cmbDeclarer->currentIndex());
  const PerSeat<bool> known = UsualHands(Question(), declarer, record_);
  for (const Seat seat : kAllSeats) chkKnown[seat]->setChecked(known[seat]);
  for (QWidget* of : {static_cast<QWidget*>(txtAgainst), static_cast<QWidget*>(cmbAgainst)}) {
    of->setEnabled(Question() == SimulatedQuestion::Contract);
  }
  ShowHands();
}

void SimulationQuestion::ShowHands() {
  for (const Seat seat : kAllSeats) {
    const bool known = chkKnown[seat]->isChecked();
    const bool shown = known && !faceDown_[seat];
    const QString instead = known ? tr("known, face down") : tr("unknown");
    lblHand[seat]->setText(shown ? HandText(record_.board.hands[seat], session_, palette())
                                 : QStringLiteral("<i>%1</i>").arg(instead));
  }
  condition_->DealsChanged();
}

std::optional<SimulatedContract> SimulationQuestion::ReadContract(const QLineEdit* text,
                                                                  const QComboBox* declarer,
                                                                  std::string& why) const {
  Board board;
  if (!SetContract(board, FromQt(text->text().trimmed()))) {
    why = FromQt(tr("%1 is no contract").arg(text->text()));
    return std::nullopt;
  }
  board.declarer = static_cast<Seat>(declarer->currentIndex());
  return ContractOf(board);
}

std::optional<SimulationPlan> SimulationQuestion::Plan(std::string& why) const {
  SimulationPlan plan;
  plan.question = Question();
  plan.hands = record_.board.hands;
  plan.cards = record_.cards;
  plan.vulnerability = record_.board.Vulnerability();
  const auto contract = ReadContract(txtContract, cmbDeclarer, why);
  if (!contract) return std::nullopt;
  plan.contract = *contract;
  if (plan.question == SimulatedQuestion::Contract && !txtAgainst->text().trimmed().isEmpty()) {
    plan.against = ReadContract(txtAgainst, cmbAgainst, why);
    if (!plan.against) return std::nullopt;
  }
  PerSeat<bool> known;
  for (const Seat seat : kAllSeats) known[seat] = chkKnown[seat]->isChecked();
  plan.known = known;
  if (const std::string text = condition_->Text(); !Trim(text).empty()) plan.condition = text;
  plan.limit = {spnDeals->value(), chkPrecise->isChecked()};
  plan.seed = static_cast<std::uint64_t>(spnSeed->value());
  return plan;
}

std::shared_ptr<const Script> SimulationQuestion::DealsAsked(std::string& why) const {
  const auto plan = Plan(why);
  if (!plan) return nullptr;
  const auto known = KnownOf(*plan, why);
  return known ? ScriptOfDeals(*known, plan->condition, why) : nullptr;
}

}  // namespace tricklet::ui
