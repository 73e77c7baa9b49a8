#include "ui/report/report_page.h"

#include <algorithm>
#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "ui/report/par_scatter.h"
#include "ui/report/report_grids.h"
#include "ui/report/report_texts.h"
#include "ui/report/report_view.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// A result in the picture, from the point of view of `side`; nothing without par.
std::optional<ScatterPoint> PointOf(const ReportTable& table, Side side, const QString& name) {
  const auto par = table.ParOf(side);
  if (!par || !table.score) return std::nullopt;
  const int score = side == Side::NorthSouth ? *table.score : -*table.score;
  ScatterPoint point;
  point.par = score - par->total;
  point.score = score;
  point.text = ReportPage::tr("%1, score %2, par %3")
                   .arg(name, SignedText(point.score), SignedText(point.par));
  return point;
}

}  // namespace

ReportPage::ReportPage(Of what, bool fourColours, QWidget* parent) : QWidget(parent), what_(what) {
  const bool boards = what == Of::Boards;
  setObjectName(boards ? QStringLiteral("pagBoards") : QStringLiteral("pagEntrants"));
  const QString name = boards ? QStringLiteral("grdBoards") : QStringLiteral("grdEntrants");
  grdReport = new ReportView(name, fourColours, this);
  grdReport->setAccessibleName(boards ? tr("Boards") : tr("Entrants"));
  auto* halves = new QSplitter(Qt::Vertical, this);
  halves->setChildrenCollapsible(false);
  halves->addWidget(grdReport);
  halves->addWidget(MakeDetails(fourColours));
  halves->setStretchFactor(0, 1);
  halves->setStretchFactor(1, 1);
  auto* column = new QVBoxLayout(this);
  column->addWidget(halves);
  connect(grdReport, &ReportView::RowChosen, this, [this] {
    grdTables->Choose(-1);
    ShowDetails();
  });
  connect(grdTables, &ReportView::RowChosen, this, &ReportPage::PlaceChosen);
  connect(grdTables, &ReportView::Entered, this, [this] { GoTo(TableAt(grdTables->Chosen())); });
  if (boards) {
    connect(grdReport, &ReportView::Entered, this, [this] {
      if (Chosen() >= 0)
        GoTo(ReportPlace{report_->boards.at(static_cast<std::size_t>(Chosen())).boardNumber});
    });
  }
}

QWidget* ReportPage::MakeDetails(bool fourColours) {
  auto* details = new QWidget(this);
  lblChosen = new QLabel(details);
  lblChosen->setObjectName(QStringLiteral("lblChosen"));
  lblChosen->setTextFormat(Qt::PlainText);
  lblChosen->setWordWrap(true);
  lblChosen->setTextInteractionFlags(Qt::TextSelectableByMouse);
  grdTables = new ReportView(QStringLiteral("grdTables"), fourColours, details);
  grdTables->setAccessibleName(tr("Results"));
  picScatter = new ParScatter(details);
  connect(picScatter, &ParScatter::PointChosen, this, [this](int point) {
    (what_ == Of::Boards ? grdReport : grdTables)
        ->Choose(points_.at(static_cast<std::size_t>(point)));
  });
  auto* texts = new QVBoxLayout;
  texts->addWidget(lblChosen);
  texts->addWidget(grdTables, 1);
  auto* row = new QHBoxLayout(details);
  row->setContentsMargins(0, 0, 0, 0);
  row->addLayout(texts, 1);
  row->addWidget(picScatter);
  return details;
}

QList<QWidget*> ReportPage::TabOrder() const {
  return {grdReport, grdTables};
}

void ReportPage::Show(const std::shared_ptr<const SessionReport>& report) {
  report_ = report;
  grdReport->Show(what_ == Of::Boards ? BoardGrid(*report) : EntrantGrid(*report));
  if (what_ == Of::Entrants) {
    grdReport->setAccessibleName(EntrantsTitle(report->contestants));
  }
  if (Chosen() < 0) Choose(0);
  ShowDetails();
}

int ReportPage::Chosen() const {
  return grdReport->Chosen();
}

void ReportPage::Choose(int index) {
  grdReport->Choose(index);
}

void ReportPage::ShowDetails() {
  if (!report_ || Chosen() < 0) return;
  what_ == Of::Boards ? ShowBoard() : ShowEntrant();
  emit PlaceChosen();
}

void ReportPage::ShowEntrant() {
  const int chosen = Chosen();
  const ReportEntrant& entrant = report_->entrants.at(static_cast<std::size_t>(chosen));
  const QString name = EntrantText(*report_, chosen);
  lblChosen->setText(name + u'\n' + ContractsText(entrant));
  grdTables->setAccessibleName(tr("Results of %1").arg(name));
  grdTables->Show(TablesOfEntrant(*report_, chosen));
  points_.clear();
  std::vector<ScatterPoint> points;
  for (std::size_t at = 0; at < entrant.tables.size(); ++at) {
    const ReportTable& table = report_->tables.at(entrant.tables[at]);
    auto point = PointOf(table, SideAt(table, chosen).value_or(Side::NorthSouth),
                         tr("Board %1").arg(table.boardNumber));
    if (!point) continue;
    point->chosen = true;
    points_.push_back(static_cast<int>(at));
    points.push_back(std::move(*point));
  }
  picScatter->Show(std::move(points));
}

/// All results of the session, with those of the board filled.
void ReportPage::ShowBoard() {
  const auto chosen = static_cast<std::size_t>(Chosen());
  const ReportBoard& board = report_->boards.at(chosen);
  const QString name = tr("Board %1").arg(board.boardNumber);
  const QString text = BoardText(*report_, board);
  lblChosen->setText(text.isEmpty() ? name : name + QStringLiteral(" \u00b7 ") + text);
  grdTables->setAccessibleName(tr("Results of board %1").arg(board.boardNumber));
  grdTables->Show(TablesOfBoard(*report_, board));
  points_.clear();
  std::vector<ScatterPoint> points;
  for (std::size_t at = 0; at < report_->boards.size(); ++at) {
    for (const std::size_t table : report_->boards[at].tables) {
      auto point = PointOf(report_->tables.at(table), Side::NorthSouth,
                           tr("Board %1").arg(report_->boards[at].boardNumber));
      if (!point) continue;
      point->chosen = at == chosen;
      points_.push_back(static_cast<int>(at));
      points.push_back(std::move(*point));
    }
  }
  picScatter->Show(std::move(points));
}

const std::vector<std::size_t>& ReportPage::Tables() const {
  const auto chosen = static_cast<std::size_t>(Chosen());
  return what_ == Of::Boards ? report_->boards.at(chosen).tables
                             : report_->entrants.at(chosen).tables;
}

std::optional<ReportPlace> ReportPage::TableAt(int detail) const {
  if (!report_ || Chosen() < 0 || detail < 0) return std::nullopt;
  const auto& tables = Tables();
  if (static_cast<std::size_t>(detail) >= tables.size()) return std::nullopt;
  const ReportTable& table = report_->tables.at(tables[static_cast<std::size_t>(detail)]);
  return ReportPlace{table.boardNumber, static_cast<int>(table.row)};
}

std::optional<ReportPlace> ReportPage::Place() const {
  if (const auto table = TableAt(grdTables->Chosen())) return table;
  if (what_ == Of::Entrants || !report_ || Chosen() < 0) return std::nullopt;
  return ReportPlace{report_->boards.at(static_cast<std::size_t>(Chosen())).boardNumber};
}

void ReportPage::GoTo(std::optional<ReportPlace> place) {
  if (place) emit PlaceAsked(*place);
}

}  // namespace tricklet::ui
