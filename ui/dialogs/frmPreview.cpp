#include "ui/dialogs/frmPreview.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "ui/table/table_view.h"

namespace tricklet::ui {
namespace {

/// Holdings of seven cards can be read at this size, and the smallest screen has room for it.
constexpr QSize kTableSize(560, 440);

}  // namespace

frmPreview::frmPreview(const Board& board, const Settings& settings, QWidget* parent)
    : QDialog(parent) {
  setObjectName(QStringLiteral("frmPreview"));
  setWindowTitle(tr("Preview"));
  auto* lblMessage = new QLabel(tr("Accept this deal for board %1").arg(board.boardNumber), this);
  lblMessage->setObjectName(QStringLiteral("lblMessage"));
  QFont bold = lblMessage->font();
  bold.setBold(true);
  lblMessage->setFont(bold);

  auto* row = new QHBoxLayout;
  row->addWidget(lblMessage, 1);
  QPushButton* cmdYes = Add("cmdYes", tr("&Yes"), tr("Keep the deal (Y)"), Answer::Yes);
  QPushButton* cmdNo = Add("cmdNo", tr("&No"), tr("Deal again (N)"), Answer::No);
  QPushButton* cmdCancel =
      Add("cmdCancel", tr("Cancel"), tr("Deal no more boards (Esc)"), Answer::Cancel);
  for (QPushButton* button : {cmdYes, cmdNo, cmdCancel}) row->addWidget(button);
  // As in a message box, the letter will do without Alt.
  new QShortcut(Qt::Key_Y, this, cmdYes, &QPushButton::click);
  new QShortcut(Qt::Key_N, this, cmdNo, &QPushButton::click);

  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeTable(board, settings), 1);
  column->addLayout(row);
  cmdYes->setDefault(true);
  cmdYes->setFocus();
}

/// The hands as text, which is read quickly, with their points whatever else the captions show.
QWidget* frmPreview::MakeTable(const Board& board, Settings settings) {
  settings.cardsFaces = false;
  settings.captionHcp = true;
  auto* table = new TableView(this);
  table->setObjectName(QStringLiteral("picPreview"));
  table->Show(board, settings);
  table->setMinimumSize(kTableSize);
  return table;
}

QPushButton* frmPreview::Add(const char* name, const QString& text, const QString& tip,
                             Answer answer) {
  auto* button = new QPushButton(text, this);
  button->setObjectName(QString::fromLatin1(name));
  button->setToolTip(tip);
  connect(button, &QPushButton::clicked, this, [this, answer] {
    answer_ = answer;
    accept();
  });
  return button;
}

Answer frmPreview::Ask() {
  exec();
  return answer_;
}

}  // namespace tricklet::ui
