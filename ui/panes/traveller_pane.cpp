#include "ui/panes/traveller_pane.h"

#include <algorithm>
#include <cmath>

#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyle>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/actions/action_grid.h"
#include "ui/actions/actions.h"
#include "ui/panes/traveller_delegate.h"
#include "ui/panes/traveller_model.h"
#include "ui/style/drawn_button.h"
#include "ui/style/focus_ring.h"
#include "ui/style/follow_font.h"
#include "ui/style/highlight.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr int kLeastRows = 3;  // of the grid, before the column scrolls
constexpr int kRowPadding = 6;
constexpr int kLeastNames = 4;      // of a pair, in heights of the font
constexpr int kCellPadding = 7;     // on both sides of a text, with a pixel for rounding
constexpr double kFontSize = 0.88;  // of the window's, so that the numbers fit beside each other
/// So that the pane takes the room that the column has left.
constexpr int kStretch = 100;

}  // namespace

TravellerPane::TravellerPane(Results& results, const Actions& actions, QWidget* parent)
    : FoldingSection(QStringLiteral("secTraveller"), QStringLiteral("cmdTraveller"),
                     {tr("Show the traveller"), tr("Show the traveller"), tr("Hide the traveller")},
                     parent),
      results_(results),
      rows_(new TravellerModel(this)),
      order_(new TravellerOrder(rows_)),
      flexTraveller(new QTableView(Content())),
      cmbLinNames(new QComboBox(Content())),
      lblLinPlace_(new ElidedLabel(Content())),
      lblTables_(new QLabel(this)) {
  MakeQuiet(lblTables_);
  TitleRow()->insertWidget(1, lblTables_);
  Content()->setObjectName(QStringLiteral("fraTraveller"));
  QVBoxLayout* column = ContentLayout();
  cmbLinNames->setObjectName(QStringLiteral("cmbLinNames"));
  cmbLinNames->setAccessibleName(tr("Play records"));
  cmbLinNames->setToolTip(tr("The table whose auction and play are shown"));
  cmbLinNames->setPlaceholderText(tr("Choose a play record"));
  cmbLinNames->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(cmbLinNames, &QComboBox::activated, &results_, &Results::ShowRecord);
  column->addWidget(cmbLinNames);
  BuildSteps(column, actions);
  BuildGrid();
  column->addWidget(flexTraveller, 1);  // last, as its height gives way
  SetSizes();
}

void TravellerPane::BuildGrid() {
  flexTraveller->setObjectName(QStringLiteral("flexTraveller"));
  flexTraveller->setAccessibleName(tr("Traveller"));
  new FollowFont(flexTraveller, kFontSize);
  new FocusRing(flexTraveller);
  flexTraveller->setModel(order_);
  delegate_ = new TravellerDelegate(flexTraveller);
  flexTraveller->setItemDelegate(delegate_);
  flexTraveller->installEventFilter(this);
  flexTraveller->viewport()->installEventFilter(this);
  flexTraveller->setSelectionBehavior(QAbstractItemView::SelectRows);
  flexTraveller->setSelectionMode(QAbstractItemView::SingleSelection);
  flexTraveller->setShowGrid(false);
  flexTraveller->setTabKeyNavigation(false);
  flexTraveller->setWordWrap(false);
  flexTraveller->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  flexTraveller->verticalHeader()->hide();
  flexTraveller->verticalHeader()->setMinimumSectionSize(1);
  QHeaderView* heads = flexTraveller->horizontalHeader();
  heads->setMinimumSectionSize(1);
  heads->setSectionResizeMode(QHeaderView::Fixed);
  heads->setHighlightSections(false);
  heads->setTextElideMode(Qt::ElideRight);
  heads->setSortIndicatorClearable(true);
  flexTraveller->setSortingEnabled(true);
  heads->setSortIndicator(-1, Qt::AscendingOrder);
  connect(heads, &QHeaderView::sortIndicatorChanged, this, &TravellerPane::TravellerResize);
  // The grid takes the height that is left in the column, but at least a few rows; with a preferred
  // height of its own it would make the column scroll.
  flexTraveller->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  auto* sort = new QShortcut(Qt::Key_Space, flexTraveller, nullptr, nullptr, Qt::WidgetShortcut);
  connect(sort, &QShortcut::activated, this, &TravellerPane::SortByCurrentColumn);
  connect(flexTraveller->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    const auto rows = flexTraveller->selectionModel()->selectedRows();
    if (!marking_ && !rows.isEmpty()) ChooseRow(rows_->RowOf(order_->mapToSource(rows.first())));
  });
}

QToolButton* TravellerPane::AddStep(const char* name, const QString& text, QAction* action) {
  auto* button = new DrawnButton(QString::fromLatin1(name), Content());
  button->setText(text);
  button->setAccessibleName(action->whatsThis());
  Follow(button, action);
  steps_ += button;
  return button;
}

void TravellerPane::BuildSteps(QVBoxLayout* column, const Actions& actions) {
  auto* row = new QHBoxLayout;
  row->setSpacing(4);
  row->addWidget(AddStep("cmdLinPreviousTrick", tr("<<"), actions.Of("mnuLinPreviousTrick")));
  row->addWidget(AddStep("cmdLinBack", tr("<"), actions.Of("mnuLinBack")));
  row->addWidget(AddStep("cmdLinForward", tr(">"), actions.Of("mnuLinForward")));
  row->addWidget(AddStep("cmdLinNextTrick", tr(">>"), actions.Of("mnuLinNextTrick")));
  lblLinPlace_->setObjectName(QStringLiteral("lblLinPlace"));
  MakeQuiet(lblLinPlace_);
  steps_.append(MakeActionButton("cmdPlayOn", actions.Of("mnuPlayOn")));
  row->addWidget(steps_.last());
  row->addWidget(lblLinPlace_, 1);
  row->addWidget(AddStep("cmdLinLeave", tr("x"), actions.Of("mnuLinLeave")));
  column->addLayout(row);
}

QList<QWidget*> TravellerPane::TabOrder() const {
  const QList<QWidget*> order{Button(), cmbLinNames};
  return order + steps_ + QList<QWidget*>{flexTraveller};
}

int TravellerPane::RowAt(const QPoint& at) const {
  const QModelIndex index = flexTraveller->indexAt(flexTraveller->viewport()->mapFrom(this, at));
  return index.isValid() ? rows_->RowOf(order_->mapToSource(index)) : -1;
}

/// The grid takes the height that is left in the column, but at least a few rows.
void TravellerPane::SetRowHeight(int lines) {
  const int height = QFontMetrics(flexTraveller->font()).height();
  const int row = height * lines + kRowPadding;
  flexTraveller->verticalHeader()->setDefaultSectionSize(row);
  flexTraveller->setMinimumHeight(kLeastRows * row + 2 * (height + kRowPadding) +
                                  2 * flexTraveller->frameWidth());
}

void TravellerPane::SetSizes() {
  flexTraveller->horizontalHeader()->setFont(flexTraveller->font());
  TravellerResize();
  QPalette marked;  // all but these two is the window's
  marked.setColor(QPalette::Highlight, MarkedRowColour(palette()));
  marked.setColor(QPalette::HighlightedText, palette().color(QPalette::Text));
  flexTraveller->setPalette(marked);
}

void TravellerPane::Show(const Session& session, const PerSeat<bool>& hidden) {
  SetUnfolded(session.settings.showTraveller);
  QSizePolicy policy = sizePolicy();
  policy.setVerticalStretch(Unfolded() ? kStretch : 0);
  setSizePolicy(policy);
  const Board& board = session.board;
  std::optional<Par> par;
  if (board.makeableValid && session.settings.showMakeable) {
    par = ComputePar(board.makeable, board.Dealer(), board.Vulnerability());
  }
  if (shownEdition_ != results_.Edition() || fourColours_ != session.settings.suitColour ||
      par != par_ || hidden != hidden_) {
    shownEdition_ = results_.Edition();
    fourColours_ = session.settings.suitColour;
    par_ = par;
    hidden_ = hidden;
    FillGrid(session);
    FillNames();
  }
  MarkRecord();
  ShowPlace();
}

void TravellerPane::FillGrid(const Session& session) {
  const Traveller& traveller = results_.OfBoard();
  const int tables = static_cast<int>(traveller.rows.size());
  SetTitle(tables == 0 ? tr("No traveller for this board") : tr("Traveller"));
  lblTables_->setText(tables == 1 ? tr("1 table") : tr("%1 tables").arg(tables));
  lblTables_->setVisible(tables > 0);
  delegate_->SetFourColours(session.settings.suitColour);
  rows_->Show(traveller, par_, hidden_, palette());
  TravellerResize();
}

void TravellerPane::FillNames() {
  const QSignalBlocker blocker(cmbLinNames);
  cmbLinNames->clear();
  for (const std::string& names : AddLinNames(results_.OfBoard())) {
    cmbLinNames->addItem(ToQt(names));
  }
  cmbLinNames->setCurrentIndex(-1);
}

/// From column to column without choosing the row: nobody who sorts wants its record.
bool TravellerPane::MoveAcross(int key) {
  const int step = key == Qt::Key_Right ? 1 : key == Qt::Key_Left ? -1 : 0;
  if (step == 0 || results_.Record() != nullptr || rows_->rowCount() == 0) return false;
  const QModelIndex now = flexTraveller->currentIndex();
  int column = now.isValid() ? now.column() + step : 0;
  const int lead = static_cast<int>(TravellerColumn::Lead);
  if (column == lead && flexTraveller->isColumnHidden(lead)) column += step;
  const QModelIndex next = order_->index(now.isValid() ? now.row() : 0, column);
  if (next.isValid()) {
    flexTraveller->selectionModel()->setCurrentIndex(next, QItemSelectionModel::NoUpdate);
    flexTraveller->scrollTo(next);
  }
  return true;
}

/// Does what a click on the heading of the current cell's column does: sorts upwards, then
/// downwards, then restores the traveller's order.
void TravellerPane::SortByCurrentColumn() {
  QHeaderView* heads = flexTraveller->horizontalHeader();
  const int column = flexTraveller->currentIndex().column();
  if (column < 0) return;
  if (heads->sortIndicatorSection() != column) {
    heads->setSortIndicator(column, Qt::AscendingOrder);
  } else if (heads->sortIndicatorOrder() == Qt::AscendingOrder) {
    heads->setSortIndicator(column, Qt::DescendingOrder);
  } else {
    heads->setSortIndicator(-1, Qt::AscendingOrder);
  }
}

/// `row` of the traveller, whatever the grid is sorted by.
void TravellerPane::ChooseRow(int row) {
  const Traveller& traveller = results_.OfBoard();
  if (row < 0 || row >= static_cast<int>(traveller.rows.size())) return;
  const std::string names = traveller.rows.at(static_cast<std::size_t>(row)).NamesText();
  results_.ShowRecord(FindLinName(AddLinNames(traveller), names, row));
}

/// Marks the row of the record that is being looked at, by weight as well as by colour.
void TravellerPane::MarkRecord() {
  const int row = results_.Row();
  const QSignalBlocker names(cmbLinNames);
  cmbLinNames->setCurrentIndex(row);
  rows_->Mark(row);
  marking_ = true;
  const QModelIndex place = order_->mapFromSource(rows_->PlaceOf(row));
  if (!place.isValid()) {
    if (flexTraveller->selectionModel()->hasSelection()) flexTraveller->setCurrentIndex({});
    flexTraveller->clearSelection();
  } else if (flexTraveller->currentIndex().row() != place.row()) {
    flexTraveller->selectRow(place.row());
  }
  marking_ = false;
}

void TravellerPane::ShowPlace() {
  const Replay* record = results_.Record();
  lblLinPlace_->setText(record == nullptr ? QString() : ToQt(record->PlaceText()));
  lblLinPlace_->setAccessibleName(lblLinPlace_->text());
}

/// The width of what stands in a column.
int TravellerPane::WidthOfColumn(TravellerColumn column) const {
  QFont bold = flexTraveller->font();
  bold.setBold(true);
  const QFontMetricsF metrics(bold);  // the marked row's
  const QHeaderView* head = flexTraveller->horizontalHeader();
  const int place = static_cast<int>(column);
  int width = QFontMetrics(head->font())
                  .horizontalAdvance(order_->headerData(place, Qt::Horizontal).toString());
  if (place == head->sortIndicatorSection()) {
    width += head->style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, head);
  }
  for (int row = 0; row < rows_->rowCount(); ++row) {
    const QString text = rows_->index(row, place).data().toString();
    for (const QString& line : text.split(QLatin1Char('\n'))) {
      width = std::max(width, static_cast<int>(std::ceil(metrics.horizontalAdvance(line))));
    }
  }
  return width + kCellPadding;
}

/// Contracts and numbers are shown whole. The names of both sides share what is left: in one line
/// if they fit, even if the lead has to be left out for them, and otherwise in two.
void TravellerPane::TravellerResize() {
  using Column = TravellerColumn;
  rows_->SetTwoLines(false);
  int left = flexTraveller->viewport()->width();
  for (const Column column : {Column::Contract, Column::Score, Column::Points}) {
    const int width = WidthOfColumn(column);
    flexTraveller->setColumnWidth(static_cast<int>(column), width);
    left -= width;
  }
  const int names = WidthOfColumn(Column::NorthSouth) + WidthOfColumn(Column::EastWest);
  const int lead = WidthOfColumn(Column::Lead);
  const bool showLead = names + lead <= left;
  flexTraveller->setColumnHidden(static_cast<int>(Column::Lead), !showLead);
  if (showLead) {
    flexTraveller->setColumnWidth(static_cast<int>(Column::Lead), lead);
    left -= lead;
  }
  rows_->SetTwoLines(names > left);
  SetRowHeight(names > left ? 2 : 1);
  ShareNames(left);
}

/// Names that need more than the half of `width` have what the others leave, and are cut where that
/// is too little.
void TravellerPane::ShareNames(int width) {
  const int ours = WidthOfColumn(TravellerColumn::NorthSouth);
  const int theirs = WidthOfColumn(TravellerColumn::EastWest);
  const int least = QFontMetrics(flexTraveller->font()).height() * kLeastNames;
  const int first = std::max(
      least, std::clamp(width / 2, std::min(ours, width - theirs), std::max(ours, width - theirs)));
  flexTraveller->setColumnWidth(static_cast<int>(TravellerColumn::NorthSouth), first);
  flexTraveller->setColumnWidth(static_cast<int>(TravellerColumn::EastWest),
                                std::max(least, width - first));
}

bool TravellerPane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && shownEdition_ > 0) TravellerResize();
  if (watched == flexTraveller && event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->modifiers() == Qt::NoModifier && MoveAcross(key->key())) return true;
  }
  return FoldingSection::eventFilter(watched, event);
}

/// The cells take colours from the palette, so they are made again when it changes.
void TravellerPane::changeEvent(QEvent* event) {
  FoldingSection::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) shownEdition_ = 0;
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) SetSizes();
}

}  // namespace tricklet::ui
