// The left column's upper part: library and board.
#pragma once

#include <QWidget>

#include "library/session.h"

class QComboBox;
class QLabel;
class QPushButton;
class QToolButton;

namespace tricklet::ui {

class BoardList;
class BoardSummaries;
class Section;

/// Shows and chooses library, board and highest board. It asks by its signals and changes nothing:
/// when a choice was refused, the next `Show` puts the old one back.
class LibraryPane : public QWidget {
  Q_OBJECT

 public:
  LibraryPane(Session& session, BoardSummaries& summaries, QWidget* parent = nullptr);

  /// Shows the libraries, the boards and what is chosen; a name that is being typed is given up.
  void Show(const Session& session);

  /// Some name or number has been typed and not been taken yet.
  bool Typing(const Session& session) const;

  /// Makes the way to the next board stand out, or not.
  void OfferNext(bool offer);

  /// Puts the cursor into `cmbLibs`, ready for the name of a new library.
  void BeginNewLibrary();

  /// The list of the boards.
  BoardList* List() const { return list_; }

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 signals:
  void LibraryChosen(int index);
  void LibraryNamed(const QString& name);
  void BoardChosen(int boardNumber);
  void HighestChosen(int boardNumber);
  void StepAsked(bool backward);
  /// The person has chosen, or has given up: the keys are meant for the table.
  void Left();

 private:
  void BuildLibrary(Session& session);
  void BuildBoard();
  void BuildHighest();
  void ShowNames(const Session& session);
  void TakeName();
  void NameTyped(const QString& text);

  const Session& session_;
  Section* fraLibrary;
  QComboBox* cmbLibs;
  QPushButton* cmdChange;
  QLabel* lblLibrary;
  QToolButton* lblPrevious;
  QComboBox* cmbBoard;
  QToolButton* lblNext;
  QComboBox* cmbMaxBoard;
  BoardList* list_;
};

}  // namespace tricklet::ui
