#include "ui/panes/contract_pane.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/scoring.h"
#include "ui/actions/action_grid.h"
#include "ui/actions/actions.h"
#include "ui/style/follow_font.h"
#include "ui/style/qt_text.h"
#include "ui/style/side_column.h"
#include "ui/style/symbols.h"

namespace tricklet::ui {
namespace {

QLabel* MakeLabel(const QString& name, double size, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  new FollowFont(label, size, true);
  return label;
}

/// A text with a contract, its suit as the symbol in its colour.
void SetContractText(QLabel* label, const std::string& text, const Settings& settings) {
  label->setText(WithSymbols(ToQt(text).toHtmlEscaped(), [&](Suit suit) {
    return ColouredSymbol(suit, settings.suitColour, label->palette());
  }));
  label->setAccessibleName(ToQt(text));
  label->setVisible(!text.empty());
}

/// The result of a board that needs no play.
std::string PassedOutText(const Board& board) {
  return board.contract == kAllPass ? ResultLine(board, 0) : "";
}

}  // namespace

ContractPane::ContractPane(const Actions& actions, QWidget* parent)
    : QWidget(parent),
      fraPlay_(new QWidget(this)),
      cmdUndo(MakeActionButton("cmdUndo", actions.Of("mnuUndoCard"))),
      cmdClaim(MakeActionButton("cmdClaim", actions.Of("mnuClaim"), ButtonText::OfMenus)),
      lblScore(MakeLabel(QStringLiteral("lblScore"), 1.0, this)) {
  setObjectName(QStringLiteral("fraContract"));
  fraPlay_->setObjectName(QStringLiteral("fraPlay"));
  auto* buttons = new QHBoxLayout(fraPlay_);
  buttons->setContentsMargins(0, 0, 0, 0);
  buttons->addWidget(cmdUndo, 2);
  buttons->addWidget(cmdClaim, 5);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  column->addWidget(lblScore);
  column->addWidget(fraPlay_);
}

QList<QWidget*> ContractPane::TabOrder() const {
  return {cmdUndo, cmdClaim};
}

void ContractPane::Show(const Session& session, const CardPlay& play) {
  const Board& board = session.board;
  KeepRoom(this, board.NumCalls() > 0);
  SetContractText(lblScore, play.PlayMode() ? play.ScoreText() : PassedOutText(board),
                  session.settings);
  ShowPlay(play);
}

void ContractPane::ShowRecord(const Replay& record, const Settings& settings) {
  KeepRoom(this, true);
  SetContractText(lblScore, record.ScoreText(), settings);
  fraPlay_->setVisible(false);
}

void ContractPane::ShowPlay(const CardPlay& play) {
  fraPlay_->setVisible(play.PlayMode());
}

}  // namespace tricklet::ui
