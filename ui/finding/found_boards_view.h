// The list of found boards.
#pragma once

#include <vector>

#include "ui/finding/found_boards_model.h"
#include "ui/style/rows_view.h"

namespace tricklet::ui {

/// Rows are chosen one by one or several at once; a click on a heading sorts by its column.
class FoundBoardsView : public RowsView {
  Q_OBJECT

 public:
  FoundBoardsView(FoundBoardsModel* boards, bool fourColours, QWidget* parent);

  /// The libraries of the boards are shown.
  void ShowLibraries(bool shown);

  /// The boards that are chosen, in the order of the list.
  std::vector<const FoundBoard*> Chosen() const;
  /// The one that the keys go on from; nullptr without any.
  const FoundBoard* Current() const;
  /// Chooses the row of the model, and brings it into sight; the first of the list for -1.
  void Choose(int row);

  void FitColumns() override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void ChoiceChanged();
  /// Enter or a double click on a row.
  void Entered();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FitNotes();

  FoundBoardsModel* boards_;
  FoundOrder* order_;
};

}  // namespace tricklet::ui
