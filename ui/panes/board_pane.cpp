#include "ui/panes/board_pane.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "core/statistics.h"
#include "ui/commands/commands.h"
#include "ui/control/edit_control.h"
#include "ui/control/play_control.h"
#include "ui/panes/command_grid.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
BoardPane::BoardPane(Commands& commands, QWidget* parent)
    : Section(QStringLiteral("fraBoard"), parent), commands_(commands) {
  Body()->insertWidget(0, MakeSeparator(this));
  auto* grid = new CommandGrid(commands_);
  cmdBidding = grid->Add("cmdBidding", tr("Bidding..."), tr("Enter the auction (Ctrl+B)"),
                         &Commands::Bidding);
  cmdPlay = grid->Add("cmdPlay", tr("Play"), tr("Play the board card by card (Ctrl+P)"),
                      &Commands::PlayOrStop);
  cmdEdit = grid->Add("cmdEdit", tr("Edit"), tr("Move cards between the hands (Ctrl+H)"),
                      &Commands::EditOrStop);
  cmdSwap = grid->Add("cmdSwap", tr("Swap..."),
                      tr("Exchange hands or suits, or rotate the deal (Ctrl+R)"), &Commands::Swap);
  cmdGenerate = grid->Add("cmdGenerate", tr("Generate..."),
                          tr("Fill boards with random deals (Ctrl+Shift+G)"), &Commands::Generate);
  cmdSave = grid->Add("cmdSave", tr("Save"), tr("Write the board to its library"), &Commands::Save);
  cmdDDS = grid->Add("cmdDDS", tr("Analyse"), tr("Compute the double-dummy table (Ctrl+D)"),
                     &Commands::AnalyseBoard);
  cmdBSOL =
      grid->Add("cmdBSOL", tr("Online"), tr("Open the online double-dummy page (Ctrl+Shift+O)"),
                &Commands::OnlineSolver);
  cmdBidding->setAccessibleName(tr("Bidding"));
  cmdSwap->setAccessibleName(tr("Rotate/Swap"));
  cmdGenerate->setAccessibleName(tr("Generate deals"));
  Body()->addLayout(grid);
}

QList<QWidget*> BoardPane::TabOrder() const {
  return {cmdBidding, cmdPlay, cmdEdit, cmdSwap, cmdGenerate, cmdSave, cmdDDS, cmdBSOL};
}

void BoardPane::Show(const Board& board) {
  SetTitle(tr("Dealer %1 · %2")
               .arg(ToQt(SeatName[board.Dealer()]), ToQt(VulShort[board.Vulnerability()])));
  cmdSave->setEnabled(board.handChanged);
  cmdBSOL->setEnabled(GetStats(board.hands).allHandsComplete);
}

void BoardPane::ShowPlay(const PlayControl& play, const EditControl& edit) {
  const bool on = play.Play().PlayMode();
  cmdBidding->setEnabled(!play.Unfinished() && !edit.Editing());
  cmdEdit->setText(edit.Editing() ? tr("Stop editing") : tr("Edit"));
  cmdSwap->setEnabled(!play.Unfinished());
  // Its table would not be seen while the hands are edited.
  cmdDDS->setEnabled(play.CanStart() && !edit.Editing());
  cmdPlay->setText(on ? tr("Stop play") : tr("Play"));
  cmdPlay->setEnabled(on || play.CanStart());
}

}  // namespace tricklet::ui
