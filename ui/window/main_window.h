// The main window: lays out the panes and routes what they ask for.
#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include <QMainWindow>

#include "library/session.h"
#include "ui/actions/action_table.h"
#include "ui/actions/window_state.h"
#include "ui/window/disk_watch.h"

class QLabel;

namespace tricklet {
class AuctionEntry;
class CardPlay;
class Replay;
}  // namespace tricklet

namespace tricklet::ui {

class Actions;
class AuctionPane;
class BackgroundTables;
class BestCardsFinder;
class BoardSummaries;
class Commands;
class ContractPane;
class DraftClock;
class EditControl;
class EditPane;
class LibraryPane;
class MainMenu;
class MakeablePane;
class PlayControl;
class ProgressFrame;
class Results;
class SideColumn;
class StatisticsPane;
class TableView;
class TravellerPane;
class TrickPane;
class Updates;
class WorkArea;

/// Everything that it shows is derived from the session by `Display`.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow(Session& session, Updates& updates);
  ~MainWindow() override;

  /// Draws the whole state.
  void Display();

  /// Imports the files one after another.
  void ImportFiles(const std::vector<std::filesystem::path>& files);
  /// Asks about changes that earlier windows have left unsaved.
  void OfferDrafts();

  /// Full screen with nothing but the table and what has been switched on beside it.
  void SetPresentation(bool on);

  /// Restore and save the window's place and size from one run of the program to the next.
  void RestorePlace();
  void SavePlace();

  /// Looks now for what other programs have done to the library, as it does from time to time.
  void LookAtDisk() { watch_->Look(); }

  /// Shows what a command has done in the status line.
  void Say(const QString& text);
  ProgressFrame* Progress() const { return progress_; }

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void LayOut();
  void Connect();
  void ConnectPlay();
  void ConnectEdit();
  void ConnectResults();
  void ShowFolder();
  void ConnectColumns();
  QString StatusText() const;
  DiskWatch::Leave LeaveToWatch() const;
  void ShowTitle();
  void DisplayDeal();
  void DisplayAuction();
  void DisplayPlay();
  void DisplayTable();
  void DisplayBidding(const AuctionEntry& entry);
  void DisplayRecord(const Replay& record);
  void ShowPlayOf(const Board& board, const CardPlay& play, const PerSeat<std::string>& names = {});
  void BeginEditing();
  void PlaceBesideAuction(QWidget* dialog);
  void PlaceBesideHands(QWidget* dialog);
  void SetTabOrder();
  void BuildStatusLine();
  void StyleStatusLine();
  void ShowNewVersion();
  void SetWorking(bool working);
  void ShowState();
  void ShowPanes();
  void ShowTricks();
  void CarryOut(WindowAsk what);
  void HideAll();
  void Hide(Seat seat);
  void ShowHidden();

  Session& session_;
  const Updates& updates_;
  PlayControl* play_;
  std::unique_ptr<EditControl> edit_;
  BackgroundTables* tables_;
  BestCardsFinder* best_;
  Results* results_;
  BoardSummaries* summaries_;
  Commands* commands_;
  DiskWatch* watch_;
  DraftClock* drafts_;
  Actions* actions_;
  MainMenu* menu_;
  LibraryPane* library_;
  TrickPane* tricks_;
  EditPane* editPane_;
  StatisticsPane* statistics_;
  TableView* table_;
  AuctionPane* auction_;
  ContractPane* contract_;
  MakeablePane* makeable_;
  TravellerPane* traveller_;
  ProgressFrame* progress_;
  SideColumn* left_ = nullptr;
  SideColumn* right_ = nullptr;
  WorkArea* area_ = nullptr;
  QLabel* status_ = nullptr;
  QLabel* newVersion_ = nullptr;
  WindowState state_;  // of the last display; what only the window knows is set here
  Qt::WindowStates stateBefore_;
};

}  // namespace tricklet::ui
