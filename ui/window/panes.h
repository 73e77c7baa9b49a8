// Everything that lies between the toolbar and the status line.
#pragma once

#include <QList>

#include "library/session.h"

class QWidget;

namespace tricklet::ui {

class Actions;
class AuctionPane;
class BoardSummaries;
class Commands;
class ContractPane;
class EditPane;
class LibraryPane;
class MakeablePane;
class NotesPane;
class ProgressFrame;
class Results;
class ReviewPane;
class SideColumn;
class StatisticsPane;
class TableView;
class TravellerPane;
class TrickPane;
class WorkArea;
struct PanesShown;

/// The table, the panes of the two columns beside it, and the display of long work below. They
/// belong to the widget that `Lay` returns.
class Panes {
 public:
  Panes(Session& session, Commands& commands, const Actions& actions, Results& results,
        BoardSummaries& summaries);

  /// Lays them out; to be called once. A window that is too small scrolls them as a whole.
  QWidget* Lay(QWidget* window);

  /// The only place where they are made visible or hidden.
  void Show(const PanesShown& shown, const Settings& settings);

  /// All controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

  LibraryPane* library;
  TrickPane* tricks;
  ReviewPane* review;
  EditPane* edit;
  StatisticsPane* statistics;
  TableView* table;
  AuctionPane* auction;
  ContractPane* contract;
  MakeablePane* makeable;
  NotesPane* notes;
  TravellerPane* traveller;
  ProgressFrame* progress;
  SideColumn* left = nullptr;
  SideColumn* right = nullptr;
  WorkArea* area = nullptr;
};

}  // namespace tricklet::ui
