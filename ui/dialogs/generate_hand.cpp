#include "ui/dialogs/generate_hand.h"

#include <algorithm>

#include <QAbstractButton>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "ui/dialogs/number_range.h"
#include "ui/dialogs/option_group.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"
#include "ui/style/symbols.h"

namespace tricklet::ui {
namespace {

constexpr int kBySuitLengths = 0;
constexpr int kByHandType = 1;
/// How far the controls that belong to an option button are indented, in pixels.
constexpr int kIndent = 22;

QFrame* MakeFrame(const QString& name, const QString& title, QWidget* parent) {
  auto* frame = new QFrame(parent);
  frame->setObjectName(name);
  frame->setAccessibleName(title);
  return frame;
}

/// What a direction is called: a seat, or the steps from the dealer.
QString DirectionText(Seat seat, bool relativeToDealer) {
  if (!relativeToDealer) return ToQt(SeatName[seat]);
  const int steps = IndexOf(seat);
  return steps == 0 ? GenerateHand::tr("Dealer") : GenerateHand::tr("Dealer+%1").arg(steps);
}

/// Minimum, a dash, maximum.
void AddRange(QHBoxLayout* row, const NumberRange& range) {
  row->addWidget(range.Minimum());
  row->addWidget(new QLabel(QStringLiteral("–")));
  row->addWidget(range.Maximum());
}

}  // namespace

GenerateHand::GenerateHand(GenHand hand, const Constraints& constraints, bool fourColours,
                           QWidget* parent)
    : QGroupBox(parent),
      hand_(hand),
      optSuit(MakeOptions(QStringLiteral("optSuit%1").arg(IndexOf(hand) + 1),
                          {QString(), QString(), QString(), QString()}, this)),
      optType(MakeOptions(QStringLiteral("optType%1").arg(IndexOf(hand) + 1),
                          {tr("Suit lengths"), tr("Hand type")}, this)),
      fraSuitLength(MakeFrame(NameOf("fraSuitLength"), Title(tr("suit lengths")), this)),
      fraHandType(MakeFrame(NameOf("fraHandType"), Title(tr("hand type")), this)),
      cmbHandType(new QComboBox(fraHandType)),
      fraOptions(MakeFrame(NameOf("fraOptions"), Title(tr("options of the hand type")), this)),
      optHandType(MakeOptions(QStringLiteral("optHandType%1").arg(IndexOf(hand) + 1),
                              {QString(), QString()}, fraOptions)) {
  setTitle(tr("Hand %1").arg(IndexOf(hand) + 1));
  auto* column = new QVBoxLayout(this);
  BuildDirection(column);
  BuildPoints(column);
  column->addWidget(MakeSeparator(this));
  BuildLengths(column, fourColours);
  BuildType(column);
  column->addStretch(1);
  connect(optType, &QButtonGroup::idToggled, this, [this] {
    fraSuitLength->setEnabled(optType->checkedId() == kBySuitLengths);
    fraHandType->setEnabled(optType->checkedId() == kByHandType);
  });
  connect(cmbHandType, &QComboBox::currentIndexChanged, this, &GenerateHand::ShowTypeOptions);
  connect(optHandType, &QButtonGroup::idClicked, this,
          [this](int option) { typeOptions_[Type()] = option; });
  Fill(constraints);
}

QString GenerateHand::NameOf(const char* control) const {
  return QStringLiteral("%1_%2").arg(QLatin1String(control)).arg(IndexOf(hand_));
}

QString GenerateHand::Title(const QString& what) const {
  return tr("Hand %1: %2").arg(IndexOf(hand_) + 1).arg(what);
}

void GenerateHand::BuildDirection(QBoxLayout* column) {
  auto* row = new QHBoxLayout;
  for (const Seat seat : kAllSeats) {
    QAbstractButton* option = optSuit->button(IndexOf(seat));
    // So that nothing moves when the names change.
    for (const bool relative : {false, true}) {
      option->setText(DirectionText(seat, relative));
      option->setMinimumWidth(std::max(option->minimumWidth(), option->sizeHint().width()));
    }
    row->addWidget(option);
  }
  row->addStretch(1);
  column->addLayout(row);
}

void GenerateHand::BuildPoints(QBoxLayout* column) {
  points_ = new NumberRange(
      new NumberCombo(NameOf("cmbMinPoints"), Title(tr("least points")), 0, kMaxPoints, this),
      new NumberCombo(NameOf("cmbMaxPoints"), Title(tr("most points")), 0, kMaxPoints, this), this);
  auto* caption = new QLabel(tr("High-card points"), this);
  caption->setBuddy(points_->Minimum());
  auto* row = new QHBoxLayout;
  row->addWidget(caption, 1);
  AddRange(row, *points_);
  column->addLayout(row);
}

void GenerateHand::BuildLengths(QBoxLayout* column, bool fourColours) {
  auto* rows = new QVBoxLayout(fraSuitLength);
  rows->setContentsMargins(kIndent, 0, 0, 0);
  for (const Suit suit : kAllSuits) {
    const auto number = [&](const char* control, const QString& title) {
      const int index = IndexOf(hand_) * kSuits + IndexOf(suit);
      return new NumberCombo(QStringLiteral("%1_%2").arg(QLatin1String(control)).arg(index), title,
                             0, kCardsInHand, fraSuitLength);
    };
    const QString name = ToQt(SuitName[suit]);
    lengths_[suit] = new NumberRange(number("cmbMinCards", Title(tr("least %1").arg(name))),
                                     number("cmbMaxCards", Title(tr("most %1").arg(name))), this);
    auto* caption =
        new QLabel(QStringLiteral("%1 %2").arg(ColouredSymbol(suit, fourColours, palette()), name),
                   fraSuitLength);
    caption->setBuddy(lengths_[suit]->Minimum());
    auto* row = new QHBoxLayout;
    row->addWidget(caption, 1);
    AddRange(row, *lengths_[suit]);
    rows->addLayout(row);
  }
  column->addWidget(optType->button(kBySuitLengths));
  column->addWidget(fraSuitLength);
}

void GenerateHand::BuildType(QBoxLayout* column) {
  cmbHandType->setObjectName(NameOf("cmbHandType"));
  cmbHandType->setAccessibleName(Title(tr("hand type")));
  for (const HandType type : kAllHandTypes) cmbHandType->addItem(ToQt(HandTypes[type]));
  auto* options = new QVBoxLayout(fraOptions);
  options->setContentsMargins(0, 0, 0, 0);
  for (QAbstractButton* option : optHandType->buttons()) options->addWidget(option);
  QSizePolicy policy = fraOptions->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  fraOptions->setSizePolicy(policy);
  auto* rows = new QVBoxLayout(fraHandType);
  rows->setContentsMargins(kIndent, 0, 0, 0);
  rows->addWidget(cmbHandType, 0, Qt::AlignLeft);
  rows->addWidget(fraOptions);
  column->addWidget(optType->button(kByHandType));
  column->addWidget(fraHandType);
}

QList<QWidget*> GenerateHand::TabOrder() const {
  QList<QWidget*> order;
  for (QAbstractButton* option : optSuit->buttons()) order += option;
  order += {points_->Minimum(), points_->Maximum(), optType->button(kBySuitLengths)};
  for (const NumberRange* range : lengths_) order += {range->Minimum(), range->Maximum()};
  order += {optType->button(kByHandType), cmbHandType};
  for (QAbstractButton* option : optHandType->buttons()) order += option;
  return order;
}

void GenerateHand::Fill(const Constraints& constraints) {
  optSuit->button(constraints.handDirection[hand_])->setChecked(true);
  SetRelativeToDealer(constraints.relativeToDealer);
  points_->SetValue(constraints.pointLimits[hand_]);
  for (const Suit suit : kAllSuits) {
    lengths_[suit]->SetValue(constraints.suitLimits[hand_][suit]);
  }
  for (const HandType type : kAllHandTypes) {
    typeOptions_[type] = constraints.handTypeOption[type][hand_];
  }
  cmbHandType->setCurrentIndex(IndexOf(constraints.handTypeIndex[hand_]));
  ShowTypeOptions();
  const bool byLengths = constraints.useSuitLengths[hand_];
  optType->button(byLengths ? kBySuitLengths : kByHandType)->setChecked(true);
}

void GenerateHand::Take(Constraints& constraints) const {
  constraints.handDirection[hand_] = optSuit->checkedId();
  constraints.pointLimits[hand_] = points_->Value();
  for (const Suit suit : kAllSuits) {
    constraints.suitLimits[hand_][suit] = lengths_[suit]->Value();
  }
  constraints.useSuitLengths[hand_] = optType->checkedId() == kBySuitLengths;
  constraints.handTypeIndex[hand_] = Type();
  for (const HandType type : kAllHandTypes) {
    constraints.handTypeOption[type][hand_] = typeOptions_[type];
  }
}

void GenerateHand::SetRelativeToDealer(bool relative) {
  for (const Seat seat : kAllSeats) {
    optSuit->button(IndexOf(seat))->setText(DirectionText(seat, relative));
  }
}

void GenerateHand::ShowTypeOptions() {
  const auto& captions = HandTypeOptions[Type()];
  for (int option = 0; option < kTypeOptions; ++option) {
    optHandType->button(option)->setText(ToQt(captions.at(static_cast<std::size_t>(option))));
  }
  optHandType->button(typeOptions_[Type()])->setChecked(true);
  fraOptions->setVisible(!captions.front().empty());
}

HandType GenerateHand::Type() const {
  return static_cast<HandType>(cmbHandType->currentIndex());
}

void GenerateHand::FocusOn(ConstraintPart part, Suit suit) {
  NumberCombo* number = nullptr;
  switch (part) {
    case ConstraintPart::SuitMinima:
      number = lengths_[suit]->Minimum();
      break;
    case ConstraintPart::SuitMaxima:
      number = lengths_[suit]->Maximum();
      break;
    case ConstraintPart::Points:
      number = points_->Minimum();
      break;
    case ConstraintPart::Direction:
      optSuit->checkedButton()->setFocus();
      return;
  }
  number->setFocus();
  number->lineEdit()->selectAll();
}

}  // namespace tricklet::ui
