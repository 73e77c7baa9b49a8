// The list of boards with a box to find some of them.
#pragma once

#include <QWidget>

#include "library/session.h"

class QLabel;
class QLineEdit;

namespace tricklet::ui {

class BoardFilter;
class BoardListModel;
class BoardListView;
class BoardSummaries;

/// Shows the boards of the library and chooses one of them. It asks by its signals and changes
/// nothing: when a choice was refused, the next `Show` puts the old one back.
class BoardList : public QWidget {
  Q_OBJECT

 public:
  BoardList(const Session& session, BoardSummaries& summaries, QWidget* parent = nullptr);

  /// Shows the session's boards and which is the current one. Another library is shown as a whole.
  void Show();

  /// The rows, also for a list that has no other columns than `BoardColumn::Entry`.
  BoardListModel* Boards() const { return boards_; }

  /// Puts the cursor into `txtFindBoards`.
  void BeginFind();

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 signals:
  void BoardChosen(int boardNumber);
  /// The person is done with the list: the keys are meant for the table.
  void Left();
  /// No board of the list fits `text`: it is to be looked for in what boards hold.
  void SearchAsked(const QString& text);
  /// A menu for the current board, which the person has just chosen, is wanted there, in pixels of
  /// the screen.
  void MenuAsked(const QPoint& place);

 private:
  void BuildFind();
  void Find(const QString& text);
  void ShowFound();
  void GoToFound();
  void GoOrSearch();
  void Choose(int boardNumber);
  void AskForMenu(const QPoint& place);

  const Session& session_;
  BoardSummaries& summaries_;
  BoardListModel* boards_;
  BoardFilter* found_;
  QLineEdit* txtFindBoards;
  BoardListView* lstBoards;
  QLabel* lblFound;
  std::string library_;  // the name of the library that is shown
};

}  // namespace tricklet::ui
