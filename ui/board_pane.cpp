#include "ui/board_pane.h"

#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/statistics.h"
#include "ui/commands.h"
#include "ui/edit_control.h"
#include "ui/play_control.h"
#include "ui/text.h"

namespace tricklet::ui {
namespace {

constexpr int kColumns = 2;

}  // namespace

BoardPane::BoardPane(Commands& commands, QWidget* parent)
    : Section(QStringLiteral("fraBoard"), parent), commands_(commands) {
  Body()->insertWidget(0, MakeSeparator(this));
  auto* grid = new QGridLayout;
  for (int column = 0; column < kColumns; ++column) grid->setColumnStretch(column, 1);
  cmdBidding = Add(grid, "cmdBidding", tr("Bidding..."), tr("Enter the auction (Ctrl+B)"),
                   &Commands::Bidding);
  cmdPlay = Add(grid, "cmdPlay", tr("Play"), tr("Play the board card by card (Ctrl+P)"),
                &Commands::PlayOrStop);
  cmdEdit = Add(grid, "cmdEdit", tr("Edit"), tr("Move cards between the hands (Ctrl+H)"),
                &Commands::EditOrStop);
  cmdSwap = Add(grid, "cmdSwap", tr("Swap..."),
                tr("Exchange hands or suits, or rotate the deal (Ctrl+R)"), &Commands::Swap);
  cmdGenerate = Add(grid, "cmdGenerate", tr("Generate..."),
                    tr("Fill boards with random deals (Ctrl+Shift+G)"), &Commands::Generate);
  cmdSave = Add(grid, "cmdSave", tr("Save"), tr("Write the board to its library"), &Commands::Save);
  cmdDDS = Add(grid, "cmdDDS", tr("Analyse"), tr("Compute the double-dummy table (Ctrl+D)"),
               &Commands::AnalyseBoard);
  cmdBSOL = Add(grid, "cmdBSOL", tr("Online"),
                tr("Open the online double-dummy page (Ctrl+Shift+O)"), &Commands::OnlineSolver);
  cmdBidding->setAccessibleName(tr("Bidding"));
  cmdSwap->setAccessibleName(tr("Rotate/Swap"));
  cmdGenerate->setAccessibleName(tr("Generate deals"));
  Body()->addLayout(grid);
}

QPushButton* BoardPane::Add(QGridLayout* grid, const char* name, const QString& text,
                            const QString& tip, void (Commands::*command)()) {
  auto* button = new QPushButton(text, this);
  button->setObjectName(QString::fromLatin1(name));
  button->setToolTip(tip);
  connect(button, &QPushButton::clicked, &commands_, [this, command] { (commands_.*command)(); });
  const int place = grid->count();
  grid->addWidget(button, place / kColumns, place % kColumns);
  return button;
}

QList<QWidget*> BoardPane::TabOrder() const {
  return {cmdBidding, cmdPlay, cmdEdit, cmdSwap, cmdGenerate, cmdSave, cmdDDS, cmdBSOL};
}

void BoardPane::Show(const Board& board) {
  SetTitle(tr("Dealer %1 · %2")
               .arg(ToQt(SeatName[board.Dealer()]), ToQt(VulShort[board.Vulnerability()])));
  cmdSave->setEnabled(board.HandChanged);
  cmdBSOL->setEnabled(GetStats(board.Hands).AllHandsComplete);
}

void BoardPane::ShowPlay(const PlayControl& play, const EditControl& edit) {
  const bool on = play.Play().PlayMode();
  cmdBidding->setEnabled(!play.UnderWay() && !edit.Editing());
  cmdEdit->setText(edit.Editing() ? tr("Stop editing") : tr("Edit"));
  cmdSwap->setEnabled(!play.UnderWay());
  // Its table would not be seen while the hands are edited.
  cmdDDS->setEnabled(play.CanStart() && !edit.Editing());
  cmdPlay->setText(on ? tr("Stop play") : tr("Play"));
  cmdPlay->setEnabled(on || play.CanStart());
}

}  // namespace tricklet::ui
