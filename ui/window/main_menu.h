// Menus and keys of the main window.
#pragma once

#include <QList>
#include <QObject>

#include "library/session.h"

class QAction;
class QActionGroup;
class QKeySequence;
class QMainWindow;
class QMenu;

namespace tricklet::ui {

class Commands;
class EditControl;
class PlayControl;
class Results;
class Updates;

/// Builds the menu bar. Its keys work while the menu bar is hidden too.
class MainMenu : public QObject {
  Q_OBJECT

 public:
  MainMenu(QMainWindow& window, Commands& commands, Results& results, const Updates& updates);

  /// Sets what is enabled and checked.
  void Show(const Session& session, const PlayControl& play, const EditControl& edit);

  /// Sets what follows from what is known of newer versions.
  void ShowUpdates();

  /// Enables the menus, or disables them while long work runs: no command can be given then.
  void SetEnabled(bool enabled);

 signals:
  void TravellerAsked();
  void PresentationAsked();
  void PresentationPanesAsked(bool shown);

 private:
  using Command = void (Commands::*)();

  QMenu* AddMenu(const QString& title);
  QAction* Add(QMenu* menu, const char* name, const QString& text, const QList<QKeySequence>& keys);
  QAction* Add(QMenu* menu, const char* name, const QString& text, const QList<QKeySequence>& keys,
               Command command);
  QAction* AddToggle(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                     bool Settings::*setting);
  void BuildFile();
  void BuildLibrary();
  void BuildBoard();
  void BuildHands();
  void BuildPlay();
  void BuildAnalysis();
  void BuildResults();
  void BuildView();
  void BuildColours(QMenu* view);
  void BuildOptionsAndHelp();
  void BuildUpdates(QMenu* help);
  void ShowPlay(const PlayControl& play);
  void ShowEdit(const PlayControl& play, const EditControl& edit);
  void ShowResults();

  QMainWindow& window_;
  Commands& commands_;
  Results& results_;
  const Updates& updates_;
  QList<QAction*> actions_;
  bool enabled_ = true;

  QAction* save_ = nullptr;
  QAction* pasteHand_ = nullptr;
  QList<QAction*> leaveBoard_;  // not while hands are edited
  QAction* edit_ = nullptr;
  QAction* swap_ = nullptr;
  QAction* randomFill_ = nullptr;
  QAction* fillFourth_ = nullptr;
  QAction* undoFill_ = nullptr;
  QAction* clearBoard_ = nullptr;
  QAction* undoClear_ = nullptr;
  QAction* bidding_ = nullptr;
  QAction* play_ = nullptr;
  QAction* undoCard_ = nullptr;
  QAction* claim_ = nullptr;
  QAction* gatherTrick_ = nullptr;
  QAction* traveller_ = nullptr;
  QAction* linForward_ = nullptr;
  QAction* linBack_ = nullptr;
  QAction* linNextTrick_ = nullptr;
  QAction* linPreviousTrick_ = nullptr;
  QAction* linLeave_ = nullptr;
  QAction* statistics_ = nullptr;
  QAction* makeable_ = nullptr;
  QAction* bestCards_ = nullptr;
  QAction* cardFaces_ = nullptr;
  QActionGroup* colours_ = nullptr;
  QAction* checkForUpdates_ = nullptr;  // null where the check is left out
  QAction* newVersion_ = nullptr;       // likewise
};

}  // namespace tricklet::ui
