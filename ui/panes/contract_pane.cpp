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

/// Of a button that leaves as much room as it can to what stands beside it.
int NarrowWidth(const QPushButton& button) {
  const QFontMetrics metrics = button.fontMetrics();
  return metrics.horizontalAdvance(button.text()) + 2 * metrics.height();
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

  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(fraPlay_);
  row->addWidget(lblScore, 1);
  lblScore->setMinimumWidth(1);  // so that a result does not widen the column
  cmdUndo->setMinimumWidth(1);
  KeepRoom(this, true);
}

QList<QWidget*> ContractPane::TabOrder() const {
  return {cmdUndo, cmdClaim};
}

void ContractPane::Show(const Session& session, const CardPlay& play) {
  const Board& board = session.board;
  // The panes below stay where they are, whatever is shown of this one.
  setMinimumHeight(cmdUndo->sizeHint().height());
  SetContractText(lblScore, play.PlayMode() ? play.ScoreText() : PassedOutText(board),
                  session.settings);
  fraPlay_->setVisible(play.PlayMode());
  if (play.Finished() && cmdClaim->hasFocus()) emit Left();
  cmdClaim->setVisible(!play.Finished());  // the result takes its place
  fraPlay_->setMaximumWidth(play.Finished() ? NarrowWidth(*cmdUndo) : QWIDGETSIZE_MAX);
}

void ContractPane::ShowRecord(const Replay& record, const Settings& settings) {
  SetContractText(lblScore, record.ScoreText(), settings);
  fraPlay_->setVisible(false);
}

}  // namespace tricklet::ui
