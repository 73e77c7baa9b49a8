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
#include "ui/window/panes.h"

namespace tricklet {
class AuctionEntry;
class CardPlay;
class Replay;
}  // namespace tricklet

namespace tricklet::ui {

class Actions;
class BackgroundTables;
class BestCardsFinder;
class BoardSummaries;
class Commands;
class DraftClock;
class EditControl;
class MainMenu;
class PlayControl;
class ProgramPlayer;
class ProgressFrame;
class Results;
class ReviewDisplay;
class StatusLine;
class Updates;

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
  ProgressFrame* Progress() const { return panes_.progress; }

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Connect();
  void ConnectPlay();
  void ConnectEdit();
  void ConnectResults();
  void ShowFolder();
  void ConnectColumns();
  QString StatusText() const;
  QString DropText() const;
  DiskWatch::Leave LeaveToWatch() const;
  void DisplayAgain();
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
  void SetWorking(bool working);
  void GatherState();
  void ShowState();
  void TellMistake(const QString& text);
  void CarryOut(WindowAsk what);
  void PlayOn();
  const Board* PlayedAuction() const;
  bool FinishTyping();
  void WriteNotes();
  void CopyDiagram();
  void HideAll();
  void Hide(Seat seat);
  void HideSide(bool declaring);
  void ShowHidden();

  Session& session_;
  const Updates& updates_;
  PlayControl* play_;
  std::unique_ptr<EditControl> edit_;
  BackgroundTables* tables_;
  BestCardsFinder* best_;
  ProgramPlayer* program_;
  Results* results_;
  BoardSummaries* summaries_;
  Commands* commands_;
  DiskWatch* watch_;
  DraftClock* drafts_;
  Actions* actions_;
  MainMenu* menu_;
  Panes panes_;
  ReviewDisplay* review_;
  StatusLine* status_;
  QString mistake_;    // what the status line says of a card; empty where it says something else
  WindowState state_;  // of the last display; what only the window knows is set here
  Qt::WindowStates stateBefore_;
};

}  // namespace tricklet::ui
