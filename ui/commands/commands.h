// What the person can ask for, as calls of the engine.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include <QObject>
#include <QPointer>

#include "core/holding.h"
#include "library/session.h"
#include "ui/dialogs/frmFindBoards.h"
#include "ui/dialogs/frmGenerate.h"
#include "ui/dialogs/frmReport.h"

class QWidget;

namespace tricklet {
class AuctionEntry;
struct ImportOutcome;
struct Looker;
struct ProgramTurn;
struct PublishChoices;
struct RecordedPlay;
}  // namespace tricklet

namespace tricklet::ui {

class EditControl;
class PlayControl;
class Updates;
class frmBidding;
class frmSwap;
enum class ProgramHands : std::uint8_t;

/// The routes from menus, keys, panes and drops to the engine's procedures. Each command runs to
/// its end and is followed by `Done`, whatever came of it; a command that is asked for while
/// another one runs is not carried out.
class Commands : public QObject {
  Q_OBJECT

 public:
  /// Dialogs stand over `window`.
  Commands(Session& session, PlayControl& play, EditControl& edit, Updates& updates,
           QWidget* window);

  /// `finish` takes over what is still being typed, before each command; false when that was
  /// refused, and then the command is not carried out.
  void SetFinishTyping(std::function<bool()> finish) { finishTyping_ = std::move(finish); }
  /// `giveUp` puts away what is still being typed: before what takes the hands away anyway.
  void SetGiveUpTyping(std::function<void()> giveUp) { giveUpTyping_ = std::move(giveUp); }
  /// `record` gives the LIN record of the current board; an empty text when it has none.
  void SetLinRecord(std::function<std::string()> record) { linRecord_ = std::move(record); }
  /// `faceDown` tells which hands lie face down on the table.
  void SetFaceDown(std::function<PerSeat<bool>()> faceDown) { faceDown_ = std::move(faceDown); }

  /// The auction that is being entered; nullptr while the auction dialog is closed.
  const AuctionEntry* Auction() const { return auction_; }

  /// A command runs, or its dialog is open.
  bool Running() const { return running_; }

  void Import();
  void ImportLin();
  /// `mnuOpen`: files of any type, several at once.
  void Open();
  /// What the clipboard or a drop brought: hand records, the address of some, or deals. One deal
  /// becomes that of the current board.
  void ImportText(const QString& text);
  void PasteRecords();
  /// One after another, until the person cancels one.
  void ImportFiles(const std::vector<std::filesystem::path>& files);
  void Export();
  /// `mnuPrint`: the dialog that prints sheets of the library's boards or stores them as files.
  void Print();
  /// `mnuReport`: the session of the library double-dummy; the person may go from there to a board
  /// and, by `RecordAsked`, to one of its results.
  void Report();
  /// `mnuSimulate`: what is not known of the board, dealt many times.
  void Simulate();
  /// `mnuFindBoards`: boards of this library or of all; the person may go from there to one.
  void FindBoards();
  /// The same, beginning with `text`.
  void FindBoardsBy(const QString& text);
  /// `mnuDealStatistics`: what the deals of the library look like.
  void DealStatistics();
  /// `mnuPublish`: the library as a web page.
  void Publish();
  void Save();
  void Exit();

  void SelectLibrary(int index);
  /// Leaves the play, during which no library can be named, and emits `NewLibraryAsked`.
  void NewLibrary();
  void CreateLibrary(const QString& name);
  void RenameLibrary();
  void RefreshLibraries();
  void ExportLibrary();
  void ExportLibraries();
  void ImportLibrary();
  void ImportLibraries();
  void MoveLibraries();
  void CopyLibrary();
  void DeleteLibrary();

  void SelectBoard(int boardNumber);
  void StepBoard(bool backward);
  void NextBoard() { StepBoard(false); }
  void PreviousBoard() { StepBoard(true); }
  void FirstBoard();
  void LastBoard();
  void GoToBoard();
  void SetMaxBoard(int boardNumber);
  void CopyHand();
  void PasteHand();

  /// Take back the last step of the board or of its play, and do it again.
  void Undo();
  void Redo();
  /// The board as it is stored.
  void Revert();

  /// `cmdEdit`: begins to edit the hands, or leaves it.
  void EditOrStop();
  /// `cmdSwap`: the dialog that exchanges and rotates.
  void Swap();
  void ClearHands();
  void UndoClear();
  void RandomFill();
  void UndoFill();
  void FillFourth();
  void MoveCard(Card card, std::optional<Seat> to);
  /// False when the text was refused.
  bool TypeHand(Seat seat, const QString& text);
  void SetEditMethod(EditMethod method);

  /// `cmdDDS`: asks by `TableAsked` for the double-dummy table of the current board.
  void AnalyseBoard();
  /// `mnuAnalyse`: computes every missing table of the library.
  void AnalyseLibrary();
  /// `cmdBSOL`: opens the online double-dummy page on the board; asks for the page's host first
  /// when it is not known yet.
  void OnlineSolver();

  /// `cmdGenerate`: fills boards of the library with random deals.
  void Generate();

  void Bidding();
  /// Starts the play, after the auction dialog where there is no auction yet; or leaves it.
  void PlayOrStop();
  /// The first `cards` cards of a record become the board's own play, of a table where `players`
  /// sat.
  void PlayOn(const RecordedPlay& record, int cards, const PerSeat<std::string>& players);
  // Followed by the play's `Changed` instead of `Done`.
  void PlayCard(Card card);
  void PlayOnlyCard();
  void UndoCard();
  void Claim();
  /// Asks by a dialog for whom and how many.
  void ClaimTricks();
  /// Asks for a name, and makes a record of the play in the library.
  void KeepPlay();
  void QuitTrick();
  /// The program plays one card for the hand on play, or all that is left.
  void ProgramCard();
  void BestLine();
  /// The program plays the defenders or the declarer and dummy from now on, or no more.
  void DefendBest();
  void DeclareBest();
  /// The cards that the program has found for its turn; none when the solver has failed.
  void PlayProgram(const ProgramTurn& turn, const std::vector<Card>& cards);

  /// Flips a switch of the settings and stores it.
  void Toggle(bool Settings::*setting);
  void SetColourScheme(ColourScheme scheme);
  void SetToolbarStyle(ToolbarStyle style);
  void Options();

  void Help();
  void NewFeatures();
  void CheckForUpdates();
  /// Opens the page of the newer version in the browser.
  void NewVersion();
  void About();

 signals:
  void TableAsked();
  /// The person wants to name a new library.
  void NewLibraryAsked();
  /// True before and false after work that copies whole libraries.
  void Waiting(bool waiting);
  void Done();
  /// True before work may begin during which the session's board can be shown, whose deal may
  /// become another one meanwhile: a run of the generator or an analysis. False when it is over.
  void Dealing(bool dealing);
  /// What the last command has done, where nothing else shows it.
  void Said(const QString& text);
  /// Before the auction dialog appears.
  void AuctionOpened(frmBidding* dialog);
  /// `Auction` has other calls than before, or is over.
  void AuctionChanged();
  void PlayStarted();
  void EditStarted();
  /// A dialog that is still open has changed the hands.
  void HandsChanged();
  /// The person wants to look at the record of this row of the current board's traveller.
  void RecordAsked(int row);
  /// Before the dialog appears.
  void SwapOpened(frmSwap* dialog);

 private:
  using Runner = void (Commands::*)(const std::function<void()>& procedure);

  bool Attempt(const std::function<void()>& procedure);
  void Run(const std::function<void()>& procedure);
  void RunUntyped(const std::function<void()>& procedure);
  void Leave(const std::function<void()>& procedure);
  void LeaveUnsaved(const std::function<void()>& procedure);
  void Copy(Runner run, const std::function<QString()>& copy);
  void Copy(Runner run, bool (*copy)(Session&), const QString& said);
  bool RunGenerator(QString& said);
  bool DealToCondition(QString& said);
  bool DealToConstraints(QString& said);
  void EnterAuction();
  void PublishBoards(const PublishChoices& proposed, QWidget* over);
  void AskProgram(bool toEnd);
  void ToggleProgram(ProgramHands hands);
  void TellNoCard();
  Looker Look() const;
  void Remember(const ImportOutcome& outcome);
  void OpenNewVersion();

  Session& session_;
  PlayControl& play_;
  EditControl& edit_;
  Updates& updates_;
  std::function<bool()> finishTyping_;
  std::function<void()> giveUpTyping_;
  std::function<std::string()> linRecord_;
  std::function<PerSeat<bool>()> faceDown_;
  const AuctionEntry* auction_ = nullptr;
  QPointer<QWidget> window_;
  std::filesystem::path exportPath_;   // of the last export, where the next one begins
  std::filesystem::path sheetFolder_;  // where sheets were saved last
  FindLook findLook_;                  // what was looked for last
  ReportLook reportLook_;              // where the last report was left
  GenerateChoices generateChoices_;    // of the last run, where the next one begins
  bool running_ = false;
};

}  // namespace tricklet::ui
