#include "ui/panes/makeable_pane.h"

#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "analysis/makeable_view.h"
#include "analysis/par.h"
#include "ui/style/follow_font.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr int kSeatColumn = 0;
constexpr int kFirstStrainColumn = 1;
constexpr int kRowPadding = 8;

}  // namespace

MakeablePane::MakeablePane(QWidget* parent)
    : FoldingSection(QStringLiteral("fraMakeable"), QStringLiteral("cmdMake"),
                     {tr("Show the makeable table"), tr("Show the makeable table"),
                      tr("Hide the makeable table")},
                     parent),
      lvwMake(new QTableWidget(kSeats, 1 + kStrains, this)),
      lblPar(new ElidedLabel(this)) {
  lvwMake->setObjectName(QStringLiteral("lvwMake"));
  lvwMake->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lvwMake->setSelectionMode(QAbstractItemView::NoSelection);
  lvwMake->setShowGrid(false);
  lvwMake->setTabKeyNavigation(false);
  lvwMake->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lvwMake->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lvwMake->horizontalHeader()->setMinimumSectionSize(1);
  lvwMake->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  lvwMake->horizontalHeader()->setSectionResizeMode(kSeatColumn, QHeaderView::ResizeToContents);
  lvwMake->horizontalHeader()->setSectionsClickable(false);
  StyleHeads();
  lvwMake->verticalHeader()->hide();
  lvwMake->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  lvwMake->verticalHeader()->setMinimumSectionSize(1);
  for (int row = 0; row < kSeats; ++row) {
    lvwMake->setItem(row, kSeatColumn, new QTableWidgetItem);
    for (int column = 0; column < kStrains; ++column) {
      auto* cell = new QTableWidgetItem;
      cell->setTextAlignment(Qt::AlignCenter);
      lvwMake->setItem(row, kFirstStrainColumn + column, cell);
    }
  }
  ContentLayout()->addWidget(lvwMake);
  tableFont_ = new FollowFont(lvwMake, 1);
  lblPar->setObjectName(QStringLiteral("lblPar"));
  lblPar->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  MakeQuiet(lblPar);
  TitleRow()->insertWidget(1, lblPar);
  parFont_ = new FollowFont(lblPar, 1);
  SetSizes();
}

void MakeablePane::SetFromAfar(bool afar) {
  FoldingSection::SetFromAfar(afar);
  if (afar == afar_) return;
  afar_ = afar;
  tableFont_->SetFactor(afar ? kAfar : 1);
  parFont_->SetFactor(afar ? kAfar : 1);
  PlacePar();
  StyleHeads();
  SetSizes();
}

/// Beside the title, or below it where one of the two would be cut. That depends on the widths of
/// the column and of the longest usual text, so that nothing moves from board to board.
void MakeablePane::PlacePar() {
  const QFontMetrics metrics = fontMetrics();
  QFont bold = font();
  bold.setBold(true);
  const int needed = QFontMetrics(bold).horizontalAdvance(tr("Makeable contracts")) +
                     metrics.horizontalAdvance(WithSymbols(tr("Par 4H=, 4S= EW +1430"))) +
                     Button()->sizeHint().width() + 3 * TitleRow()->spacing();
  const bool below = afar_ || WidthInColumn() < needed;
  if (below == parBelow_) return;
  parBelow_ = below;
  if (below) {
    Body()->insertWidget(1, lblPar);
  } else {
    TitleRow()->insertWidget(1, lblPar);
  }
  lblPar->setAlignment((below ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
}

/// A hidden pane keeps its room but is not resized until it is shown.
int MakeablePane::WidthInColumn() const {
  const QWidget* column = parentWidget();
  if (column == nullptr || column->layout() == nullptr) return width();
  return column->rect().marginsRemoved(column->layout()->contentsMargins()).width();
}

bool MakeablePane::event(QEvent* event) {
  if (event->type() == QEvent::ParentChange && parentWidget() != nullptr) {
    parentWidget()->installEventFilter(this);
  }
  return FoldingSection::event(event);
}

bool MakeablePane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize) PlacePar();
  return FoldingSection::eventFilter(watched, event);
}

/// A style sheet keeps the colours and the font that it was set with, so it is set again when they
/// change. The colours are the program's, as the table's own palette changes later.
void MakeablePane::StyleHeads() {
  const QString sheet =
      QStringLiteral(
          "QHeaderView, QHeaderView::section { border: none; background: %1; font-size: %2pt; }")
          .arg(QGuiApplication::palette().color(QPalette::Base).name())
          .arg(QFontInfo(lvwMake->font()).pointSizeF());
  QHeaderView* heads = lvwMake->horizontalHeader();
  if (heads->styleSheet() != sheet) heads->setStyleSheet(sheet);
}

void MakeablePane::changeEvent(QEvent* event) {
  FoldingSection::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) StyleHeads();
  if (event->type() == QEvent::FontChange) {
    StyleHeads();
    SetSizes();
    PlacePar();
  }
}

void MakeablePane::SetSizes() {
  lvwMake->verticalHeader()->setDefaultSectionSize(lvwMake->fontMetrics().height() + kRowPadding);
  lvwMake->setFixedHeight(lvwMake->horizontalHeader()->sizeHint().height() +
                          lvwMake->verticalHeader()->length() + 2 * lvwMake->frameWidth());
}

QList<QWidget*> MakeablePane::TabOrder() const {
  return {Button(), lvwMake};
}

void MakeablePane::ShowHeads(const Settings& settings) {
  for (const Suit suit : kAllSuits) {
    auto* head = new QTableWidgetItem(ToQt(SuitSymbol[suit]));
    head->setForeground(SuitColourOnWindow(suit, settings.suitColour, palette()));
    head->setToolTip(ToQt(SuitName[suit]));
    head->setData(Qt::AccessibleTextRole, head->toolTip());
    lvwMake->setHorizontalHeaderItem(kFirstStrainColumn + IndexOf(suit), head);
  }
  lvwMake->setHorizontalHeaderItem(kFirstStrainColumn + IndexOf(Strain::NoTrump),
                                   new QTableWidgetItem(tr("NT")));
  lvwMake->setHorizontalHeaderItem(kSeatColumn, new QTableWidgetItem);
}

void MakeablePane::Show(const Session& session) {
  SetUnfolded(session.settings.showMakeTable);
  ShowHeads(session.settings);
  if (session.board.makeableValid) ShowTable(session);
  SetSizes();
}

void MakeablePane::ShowTable(const Session& session) {
  const Board& board = session.board;
  const MakeableView view = MakeMakeableView(board.makeable, session.settings.makeableContract);
  SetTitle(ToQt(view.caption));
  lvwMake->setAccessibleName(ToQt(view.caption));
  int row = 0;
  for (const MakeableView::Row& line : view.rows) {
    lvwMake->item(row, kSeatColumn)->setText(ToQt(line.seat));
    int column = kFirstStrainColumn;
    for (const std::string& cell : line.cells) lvwMake->item(row, column++)->setText(ToQt(cell));
    ++row;
  }
  const QString par =
      ToQt(ParText(ComputePar(board.makeable, board.Dealer(), board.Vulnerability())));
  lblPar->setText(WithSymbols(par));
  lblPar->setAccessibleName(par);
}

}  // namespace tricklet::ui
