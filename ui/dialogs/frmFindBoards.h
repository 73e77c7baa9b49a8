// The dialog that finds boards in one library or in all of them, and does something with them.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <QDialog>

#include "finding/board_place.h"
#include "finding/find_boards.h"
#include "library/session.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;

namespace tricklet::ui {

class BoardSearch;
class FoundBoardsModel;
class FoundBoardsView;
class ProgressFrame;

/// What was looked for when the dialog was closed, for the next time.
struct FindLook {
  std::string text;
  bool all = false;      ///< in all libraries
  std::string copiedTo;  ///< the library that boards were copied to last
};

/// Looks while the person types, beside the window's thread, and shows boards as they are found.
/// What it changes in libraries is on the disk at once; the session's board and library are those
/// of the session afterwards.
class frmFindBoards : public QDialog {
  Q_OBJECT

 public:
  /// It begins with `look` and leaves there what was looked for, which is to outlive the dialog.
  frmFindBoards(Session& session, FindLook& look, QWidget* parent);
  ~frmFindBoards() override;

  /// Does something with boards of the current library, by their numbers.
  using BoardsAction = std::function<void(const std::set<int>& numbers)>;
  void SetPrint(BoardsAction print) { print_ = std::move(print); }
  void SetPublish(BoardsAction publish) { publish_ = std::move(publish); }

  /// Where the person wants to go, once accepted.
  const std::optional<BoardPlace>& Place() const { return place_; }

  /// Closes; while work goes on that is cancelled first.
  void done(int result) override;

 private:
  QWidget* MakeHead();
  QWidget* MakeFoot();
  QPushButton* MakeButton(const char* name, const QString& text, const QString& tip,
                          void (frmFindBoards::*action)());
  void SetTabOrder();
  void SetFirstSize();

  void LookSoon();
  void Look();
  void Take(const std::vector<FoundBoard>& found, const FindProgress& progress);
  void TellBroken(const QString& what);
  void ShowCounts();
  void ShowState();

  std::vector<BoardPlace> Chosen() const;
  bool OfOneLibrary(const std::vector<BoardPlace>& boards) const;
  bool EnterLibraryOf(const std::vector<BoardPlace>& boards);
  void With(const BoardsAction& action);
  void GoToBoard();
  void Copy();
  void Renumber();
  void Delete();
  void Print();
  void Publish();

  Session& session_;
  FindLook& look_;
  BoardsAction print_;
  BoardsAction publish_;
  std::optional<BoardPlace> place_;
  std::optional<int> closing_;  // with this result, as soon as the work has ended
  FindProgress progressOfSearch_;
  QStringList broken_;
  QString fault_;                   // of what was typed
  std::optional<BoardPlace> keep_;  // chosen before a new search, to be chosen again
  FoundBoardsModel* found_;
  QTimer* timLook;
  QLineEdit* txtFind = nullptr;
  QPushButton* cmdAll = nullptr;
  FoundBoardsView* grdFound = nullptr;
  QLabel* lblFound = nullptr;
  ProgressFrame* progress_ = nullptr;
  QPushButton* cmdOpen = nullptr;
  QPushButton* cmdCopyTo = nullptr;
  QPushButton* cmdRenumber = nullptr;
  QPushButton* cmdDelete = nullptr;
  QPushButton* cmdPrint = nullptr;
  QPushButton* cmdPublish = nullptr;
  QPushButton* cmdClose = nullptr;
  BoardSearch* search_;  // last of what it gives to
};

}  // namespace tricklet::ui
