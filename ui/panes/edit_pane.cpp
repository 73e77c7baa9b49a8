#include "ui/panes/edit_pane.h"

#include <chrono>

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/actions/action_grid.h"
#include "ui/actions/actions.h"
#include "ui/commands/commands.h"
#include "ui/control/edit_control.h"
#include "ui/style/qt_text.h"
#include "ui/table/table_edit.h"

namespace tricklet::ui {
namespace {

/// The most characters of a line: more than any hand takes, blanks included.
constexpr int kMostCharacters = 60;
/// How long after a line has been left its text is looked at again.
constexpr std::chrono::milliseconds kLookAgain{20};

/// "AKT2.QJ5.-.98"; nothing for a hand without cards.
QString HandLine(const PerSuit<Holding>& hand) {
  QStringList suits;
  int cards = 0;
  for (const Suit suit : kAllSuits) {
    const QString ranks = ToQt(PBNFormat(hand[suit], cards));
    suits << (ranks.isEmpty() ? QStringLiteral("-") : ranks);
  }
  return cards == 0 ? QString() : suits.join(u'.');
}

/// Examples are on lines of their own, so that they are not broken.
QString HintFor(EditMethod method) {
  const QString keys = EditPane::tr("By keys: suit, rank and seat, as in\nH A N");
  switch (method) {
    case EditMethod::Dragging:
      return EditPane::tr("Drag cards between the hands and the pack.") + u' ' + keys;
    case EditMethod::Clicking:
      return EditPane::tr("Click a card and then its hand, or a hand and then its cards.") + u' ' +
             keys;
    default:
      return EditPane::tr(
          "Type a hand as spades, hearts, diamonds and clubs, and press Enter:\n"
          "AKT2.QJ5.-.98");
  }
}

}  // namespace

EditPane::EditPane(Commands& commands, const Actions& actions, QWidget* parent)
    : Section(QStringLiteral("fraEdit"), parent),
      commands_(commands),
      cmbEditMethod_(new QComboBox(this)),
      hint_(new QLabel(this)),
      lines_(nullptr),
      lineLeft_(new QTimer(this)) {
  lineLeft_->setSingleShot(true);
  lineLeft_->setInterval(kLookAgain);
  connect(lineLeft_, &QTimer::timeout, this, &EditPane::FinishLinesLeft);
  BuildMethod();
  lines_ = BuildLines();
  BuildButtons(actions);
}

void EditPane::BuildMethod() {
  cmbEditMethod_->setObjectName(QStringLiteral("cmbEditMethod"));
  cmbEditMethod_->setAccessibleName(tr("Edit hands by"));
  cmbEditMethod_->addItems({tr("Drag and drop"), tr("Click a seat"), tr("Type the holding")});
  connect(cmbEditMethod_, &QComboBox::activated, &commands_,
          [this](int index) { commands_.SetEditMethod(static_cast<EditMethod>(index + 1)); });
  hint_->setWordWrap(true);
  MakeQuiet(hint_);
  Body()->addWidget(cmbEditMethod_);
  Body()->addWidget(hint_);
}

QWidget* EditPane::BuildLines() {
  auto* lines = new QWidget(this);
  auto* grid = new QGridLayout(lines);
  grid->setContentsMargins(0, 0, 0, 0);
  for (const Seat seat : kAllSeats) {
    auto* line = new QLineEdit(lines);
    line->setObjectName(QStringLiteral("txtHand_%1").arg(IndexOf(seat)));
    line->setAccessibleName(tr("Hand of %1").arg(ToQt(SeatName[seat])));
    line->setMaxLength(kMostCharacters);
    line->setPlaceholderText(tr("no cards"));
    connect(line, &QLineEdit::returnPressed, this, [this, seat] { EnterLine(seat); });
    connect(line, &QLineEdit::editingFinished, lineLeft_, qOverload<>(&QTimer::start));
    auto* giveUp = new QAction(tr("Leave the hand as it is"), line);
    giveUp->setShortcut(Qt::Key_Escape);
    giveUp->setShortcutContext(Qt::WidgetShortcut);
    connect(giveUp, &QAction::triggered, line,
            [this, seat] { txtHand[seat]->setText(shown_[seat]); });
    line->addAction(giveUp);
    auto* label = new QLabel(ToQt(SeatName[seat]), lines);
    label->setBuddy(line);
    grid->addWidget(label, IndexOf(seat), 0);
    grid->addWidget(line, IndexOf(seat), 1);
    txtHand[seat] = line;
  }
  Body()->addWidget(lines);
  return lines;
}

void EditPane::BuildButtons(const Actions& actions) {
  auto* grid = new ActionGrid;
  const std::pair<const char*, const char*> buttons[] = {
      {"cmdRandom", "mnuRandom"},       {"cmdFillFourth", "mnuFillFourth"},
      {"cmdUndoFill", "mnuUndoFill"},   {"cmdClear", "mnuClearBoard"},
      {"cmdUndoClear", "mnuUndoClear"},
  };
  for (const auto& [name, action] : buttons) buttons_ << grid->Add(name, actions.Of(action));
  Body()->addLayout(grid);
}

QList<QWidget*> EditPane::TabOrder() const {
  QList<QWidget*> order{cmbEditMethod_};
  for (QLineEdit* line : txtHand) order << line;
  return order + buttons_;
}

QWidget* EditPane::FirstLine() const {
  return lines_->isHidden() ? nullptr : txtHand[Seat::North];
}

void EditPane::Show(const Session& session, const EditControl& edit) {
  if (!edit.Editing()) {
    ForgetTyping();
    return;
  }
  SetTitle(tr("Edit board %1").arg(session.board.boardNumber));
  ShowMethod(session.settings);
  ShowLines(session.board);
}

void EditPane::ShowMethod(const Settings& settings) {
  cmbEditMethod_->setCurrentIndex(IndexOf(settings.editMethod) - 1);
  hint_->setText(HintFor(settings.editMethod));
  lines_->setVisible(settings.editMethod == EditMethod::Typing);
}

/// What is being typed stays until the hand changes.
void EditPane::ShowLines(const Board& board) {
  for (const Seat seat : kAllSeats) {
    const QString text = HandLine(board.hands[seat]);
    if (text == shown_[seat] && txtHand[seat]->isModified()) continue;
    shown_[seat] = text;
    txtHand[seat]->setText(text);
  }
}

void EditPane::ForgetTyping() {
  for (QLineEdit* line : txtHand) line->setModified(false);
}

void EditPane::GiveUpTyping() {
  for (const Seat seat : kAllSeats) txtHand[seat]->setText(shown_[seat]);
}

bool EditPane::FinishTyping() {
  if (lines_->isHidden()) return true;
  for (const Seat seat : kAllSeats) {
    if (!FinishLine(seat)) return false;
  }
  return true;
}

/// Not in the middle of a click: a message would keep the button that was pressed from being let
/// go.
void EditPane::FinishLinesLeft() {
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    lineLeft_->start();
    return;
  }
  for (const Seat seat : kAllSeats) {
    if (!txtHand[seat]->hasFocus() && !FinishLine(seat)) return;
  }
}

/// A hand that has been taken leads on to the next seat.
void EditPane::EnterLine(Seat seat) {
  if (!FinishLine(seat)) return;
  QLineEdit* next = txtHand[SeatAfter(seat)];
  next->setFocus();
  next->selectAll();
}

bool EditPane::FinishLine(Seat seat) {
  QLineEdit* line = txtHand[seat];
  if (!line->isModified()) return true;
  if (!commands_.TypeHand(seat, line->text())) {
    line->setFocus();
    line->selectAll();
    return false;
  }
  line->setText(shown_[seat]);
  return true;
}

}  // namespace tricklet::ui
