// What the person can ask for, as calls of the engine.
#pragma once

#include <filesystem>
#include <vector>

#include <QObject>
#include <QPointer>

#include "library/session.h"

class QWidget;

namespace tricklet::ui {

/// The routes from menus, keys, panes and drops to the engine's procedures. Each command runs to
/// its end and is followed by `Done`, whatever came of it; a command that is asked for while
/// another one runs is not carried out.
class Commands : public QObject {
  Q_OBJECT

 public:
  /// Dialogs stand over `window`.
  Commands(Session& session, QWidget* window);

  void Import();
  void ImportFiles(const std::vector<std::filesystem::path>& files);
  void Export();
  void Save();
  void Exit();

  void SelectLibrary(int index);
  void CreateLibrary(const QString& name);
  void RenameLibrary();
  void RefreshLibraries();

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
  void ClearBoard();

  /// Turns a switch of the settings over and stores it.
  void Toggle(bool Settings::*setting, std::string_view key);
  void SetColourScheme(int scheme);
  void Options();

  void Help();
  void NewFeatures();
  void About();

 signals:
  void Done();

 private:
  template <class Procedure>
  void Run(const Procedure& procedure);
  void OpenDocument(const QString& fileName);

  Session& session_;
  QPointer<QWidget> window_;
  std::filesystem::path exportPath_;  // of the last export, where the next one begins
  bool running_ = false;
};

}  // namespace tricklet::ui
