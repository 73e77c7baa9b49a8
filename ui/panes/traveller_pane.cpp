#include "ui/panes/traveller_pane.h"

#include <algorithm>
#include <cmath>

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyle>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/panes/traveller_model.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr int kLeastRows = 3;  // of the grid, before the column scrolls
constexpr int kRowPadding = 6;
constexpr int kCellPadding = 7;     // on both sides of a text, with a pixel for rounding
constexpr double kFontSize = 0.88;  // of the window's, so that the numbers fit beside each other
/// So that the pane takes the room that the column has left.
constexpr int kStretch = 100;

}  // namespace

TravellerPane::TravellerPane(Results& results, QWidget* parent)
    : Section(QStringLiteral("secTraveller"), parent),
      results_(results),
      cmdTraveller(new QToolButton(this)),
      fraTraveller(new QWidget(this)),
      rows_(new TravellerModel(this)),
      order_(new TravellerOrder(rows_)),
      flexTraveller(new QTableView(fraTraveller)),
      cmbLinNames(new QComboBox(fraTraveller)),
      lblLinPlace_(new ElidedLabel(fraTraveller)) {
  cmdTraveller->setObjectName(QStringLiteral("cmdTraveller"));
  cmdTraveller->setAccessibleName(tr("Show the traveller"));
  cmdTraveller->setAutoRaise(true);
  cmdTraveller->setCheckable(true);
  cmdTraveller->setFocusPolicy(Qt::StrongFocus);
  connect(cmdTraveller, &QToolButton::toggled, this, &TravellerPane::Expand);
  TitleRow()->addWidget(cmdTraveller);

  fraTraveller->setObjectName(QStringLiteral("fraTraveller"));
  auto* column = new QVBoxLayout(fraTraveller);
  column->setContentsMargins(0, 0, 0, 0);
  cmbLinNames->setObjectName(QStringLiteral("cmbLinNames"));
  cmbLinNames->setAccessibleName(tr("Play records"));
  cmbLinNames->setToolTip(tr("The table whose auction and play are shown"));
  cmbLinNames->setPlaceholderText(tr("Choose a play record"));
  cmbLinNames->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(cmbLinNames, &QComboBox::activated, &results_, &Results::ShowRecord);
  column->addWidget(cmbLinNames);
  BuildSteps(column);
  BuildGrid();
  column->addWidget(flexTraveller, 1);  // last, as its height gives way
  Body()->addWidget(fraTraveller, 1);
  cmdTraveller->setChecked(true);
}

void TravellerPane::BuildGrid() {
  flexTraveller->setObjectName(QStringLiteral("flexTraveller"));
  flexTraveller->setAccessibleName(tr("Traveller"));
  QFont small = font();
  small.setPointSizeF(small.pointSizeF() * kFontSize);
  flexTraveller->setFont(small);
  flexTraveller->setModel(order_);
  flexTraveller->setSelectionBehavior(QAbstractItemView::SelectRows);
  flexTraveller->setSelectionMode(QAbstractItemView::SingleSelection);
  flexTraveller->setShowGrid(false);
  flexTraveller->setTabKeyNavigation(false);
  flexTraveller->setWordWrap(false);
  flexTraveller->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  flexTraveller->verticalHeader()->hide();
  flexTraveller->verticalHeader()->setMinimumSectionSize(1);
  flexTraveller->verticalHeader()->setDefaultSectionSize(QFontMetrics(small).height() +
                                                         kRowPadding);
  QHeaderView* heads = flexTraveller->horizontalHeader();
  heads->setFont(small);
  heads->setMinimumSectionSize(1);
  heads->setSectionResizeMode(QHeaderView::Fixed);
  heads->setHighlightSections(false);
  heads->setSortIndicatorClearable(true);
  flexTraveller->setSortingEnabled(true);
  heads->setSortIndicator(-1, Qt::AscendingOrder);
  connect(heads, &QHeaderView::sortIndicatorChanged, this, &TravellerPane::TravellerResize);
  // The grid takes the height that is left in the column, but at least a few rows; with a preferred
  // height of its own it would make the column scroll.
  flexTraveller->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  const int row = flexTraveller->verticalHeader()->defaultSectionSize();
  flexTraveller->setMinimumHeight((kLeastRows + 2) * row + 2 * flexTraveller->frameWidth());
  auto* sort = new QShortcut(Qt::Key_Space, flexTraveller, nullptr, nullptr, Qt::WidgetShortcut);
  connect(sort, &QShortcut::activated, this, &TravellerPane::SortByCurrentColumn);
  connect(flexTraveller->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    const auto rows = flexTraveller->selectionModel()->selectedRows();
    if (!marking_ && !rows.isEmpty()) ChooseRow(order_->mapToSource(rows.first()).row());
  });
}

QToolButton* TravellerPane::AddStep(Step step, const char* name, const QString& text,
                                    const QString& tip, void (Results::*procedure)()) {
  auto* button = new QToolButton(fraTraveller);
  button->setObjectName(QString::fromLatin1(name));
  button->setText(text);
  button->setToolTip(tip);
  button->setAccessibleName(tip.section(QLatin1Char('('), 0, 0).trimmed());
  button->setFocusPolicy(Qt::StrongFocus);
  connect(button, &QToolButton::clicked, &results_, procedure);
  steps_.at(step) = button;
  return button;
}

void TravellerPane::BuildSteps(QVBoxLayout* column) {
  auto* row = new QHBoxLayout;
  row->setSpacing(4);
  row->addWidget(AddStep(PreviousTrick, "cmdLinPreviousTrick", tr("<<"),
                         tr("Back to the beginning of the trick (Alt+Shift+Left)"),
                         &Results::PreviousTrick));
  row->addWidget(
      AddStep(Back, "cmdLinBack", tr("<"), tr("One card back (Alt+Left)"), &Results::Back));
  row->addWidget(
      AddStep(Forward, "cmdLinForward", tr(">"), tr("One card on (Alt+Right)"), &Results::Forward));
  row->addWidget(AddStep(NextTrick, "cmdLinNextTrick", tr(">>"),
                         tr("On to the end of the trick (Alt+Shift+Right)"), &Results::NextTrick));
  lblLinPlace_->setObjectName(QStringLiteral("lblLinPlace"));
  MakeQuiet(lblLinPlace_);
  row->addWidget(lblLinPlace_, 1);
  row->addWidget(AddStep(Leave, "cmdLinLeave", tr("x"),
                         tr("Put the play record away (Ctrl+Shift+J)"), &Results::Leave));
  column->addLayout(row);
}

QList<QWidget*> TravellerPane::TabOrder() const {
  QList<QWidget*> order{cmdTraveller, cmbLinNames};
  for (QToolButton* step : steps_) order += step;
  return order + QList<QWidget*>{flexTraveller};
}

void TravellerPane::Toggle() {
  cmdTraveller->toggle();
}

void TravellerPane::Expand(bool expanded) {
  cmdTraveller->setText(expanded ? QStringLiteral("v") : QStringLiteral("^"));
  cmdTraveller->setToolTip(expanded ? tr("Hide the traveller (Ctrl+J)")
                                    : tr("Show the traveller (Ctrl+J)"));
  fraTraveller->setVisible(expanded);
  QSizePolicy policy = sizePolicy();
  policy.setVerticalStretch(expanded ? kStretch : 0);
  setSizePolicy(policy);
}

void TravellerPane::SetLinVisible(bool visible) {
  setVisible(visible);
}

void TravellerPane::Show(const Settings& settings) {
  SetLinVisible(results_.HasLinData());
  if (isHidden()) return;
  if (shownEdition_ != results_.Edition() || fourColours_ != settings.suitColour) {
    shownEdition_ = results_.Edition();
    fourColours_ = settings.suitColour;
    FillGrid(settings);
    FillNames();
  }
  MarkRecord();
  ShowSteps();
}

void TravellerPane::FillGrid(const Settings& settings) {
  const Traveller& traveller = results_.OfBoard();
  SetTitle(traveller.rows.empty() ? tr("No traveller for this board") : tr("Traveller"));
  rows_->Show(traveller, settings.suitColour, palette());
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
  if (row >= static_cast<int>(traveller.rows.size())) return;
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
  const QModelIndex place = order_->mapFromSource(rows_->index(row, 0));
  if (!place.isValid()) {
    flexTraveller->clearSelection();
    flexTraveller->setCurrentIndex({});
  } else if (flexTraveller->currentIndex().row() != place.row()) {
    flexTraveller->selectRow(place.row());
  }
  marking_ = false;
}

void TravellerPane::ShowSteps() {
  const Replay* record = results_.Record();
  const bool back = record != nullptr && record->BackEnabled();
  const bool forward = record != nullptr && record->ForwardEnabled();
  for (const Step step : {PreviousTrick, Back}) steps_.at(step)->setEnabled(back);
  for (const Step step : {Forward, NextTrick}) steps_.at(step)->setEnabled(forward);
  steps_.at(Leave)->setEnabled(record != nullptr);
  lblLinPlace_->setText(record == nullptr ? QString() : ToQt(record->PlaceText()));
  lblLinPlace_->setAccessibleName(lblLinPlace_->text());
}

/// Columns as wide as what stands in them; the names take what the grid has left.
void TravellerPane::TravellerResize() {
  QFont bold = flexTraveller->font();
  bold.setBold(true);
  const QFontMetricsF metrics(bold);  // the marked row's
  const QHeaderView* head = flexTraveller->horizontalHeader();
  const QFontMetrics heads(head->font());
  const int arrow = head->style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, head);
  int used = 0;
  for (int column = 0; column < kTravellerColumns; ++column) {
    int width = heads.horizontalAdvance(order_->headerData(column, Qt::Horizontal).toString());
    if (column == head->sortIndicatorSection()) width += arrow;
    for (int row = 0; row < rows_->rowCount(); ++row) {
      const QString text = rows_->At(rows_->index(row, column)).text;
      width = std::max(width, static_cast<int>(std::ceil(metrics.horizontalAdvance(text))));
    }
    width += kCellPadding;
    if (column == static_cast<int>(TravellerColumn::Names)) {
      width = std::max(width, flexTraveller->viewport()->width() - used);
    }
    flexTraveller->setColumnWidth(column, width);
    used += width;
  }
}

void TravellerPane::resizeEvent(QResizeEvent* event) {
  Section::resizeEvent(event);
  if (shownEdition_ > 0) TravellerResize();
}

/// The cells take colours from the palette, so they are made again when it changes.
void TravellerPane::changeEvent(QEvent* event) {
  Section::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) shownEdition_ = 0;
}

}  // namespace tricklet::ui
