#include "ui/window/panes.h"

#include <utility>

#include <QScrollArea>

#include "ui/actions/panes_shown.h"
#include "ui/panes/auction_pane.h"
#include "ui/panes/contract_pane.h"
#include "ui/panes/edit_pane.h"
#include "ui/panes/library_pane.h"
#include "ui/panes/makeable_pane.h"
#include "ui/panes/notes_pane.h"
#include "ui/panes/review_pane.h"
#include "ui/panes/statistics_pane.h"
#include "ui/panes/traveller_pane.h"
#include "ui/panes/trick_pane.h"
#include "ui/style/progress_frame.h"
#include "ui/style/side_column.h"
#include "ui/table/table_view.h"
#include "ui/window/work_area.h"

namespace tricklet::ui {
namespace {

/// Below it not even scrolling helps.
constexpr QSize kLeastWindow(320, 240);

}  // namespace

Panes::Panes(Session& session, Commands& commands, const Actions& actions, Results& results,
             BoardSummaries& summaries)
    : library(new LibraryPane(session, summaries)),
      tricks(new TrickPane(actions)),
      review(new ReviewPane),
      edit(new EditPane(commands, actions)),
      statistics(new StatisticsPane),
      table(new TableView),
      auction(new AuctionPane),
      contract(new ContractPane(actions)),
      makeable(new MakeablePane),
      notes(new NotesPane(session)),
      traveller(new TravellerPane(results, actions)),
      progress(new ProgressFrame) {}

QWidget* Panes::Lay(QWidget* window) {
  left = new SideColumn(QStringLiteral("colLeft"), {library, tricks, review, edit, statistics});
  right =
      new SideColumn(QStringLiteral("colRight"), {auction, contract, makeable, notes, traveller});
  table->setObjectName(QStringLiteral("picTable"));
  table->setAccessibleName(TableView::tr("Table"));
  table->setFocusPolicy(Qt::StrongFocus);
  KeepRoom(table, true);
  area = new WorkArea(left, table, right, progress);
  auto* scroll = new QScrollArea(window);
  scroll->setObjectName(QStringLiteral("scrWorkArea"));
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidgetResizable(true);
  scroll->setMinimumSize(kLeastWindow);
  scroll->setWidget(area);
  return scroll;
}

void Panes::Show(const PanesShown& shown, const Settings& settings) {
  for (Section* section : {static_cast<Section*>(auction), static_cast<Section*>(makeable),
                           static_cast<Section*>(notes), static_cast<Section*>(traveller)}) {
    section->SetFromAfar(!shown.bars);
  }
  area->ShowMargin(shown.bars);
  area->SetWidths(settings.leftWidth, settings.rightWidth);
  KeepRoom(left, shown.leftRoom);
  KeepRoom(right, shown.rightRoom);
  KeepRoom(makeable, shown.makeableRoom);
  const std::pair<QWidget*, bool> panes[] = {
      {table, shown.table},           {left, shown.left},     {library, shown.library},
      {tricks, shown.tricks},         {review, shown.review}, {edit, shown.edit},
      {statistics, shown.statistics}, {right, shown.right},   {contract, shown.contract},
      {makeable, shown.makeable},     {notes, shown.notes},   {traveller, shown.traveller},
  };
  for (const auto& [pane, visible] : panes) pane->setVisible(visible);
}

QList<QWidget*> Panes::TabOrder() const {
  return library->TabOrder() + tricks->TabOrder() + review->TabOrder() + edit->TabOrder() +
         table->TabOrder() + auction->TabOrder() + contract->TabOrder() + makeable->TabOrder() +
         notes->TabOrder() + traveller->TabOrder();
}

}  // namespace tricklet::ui
