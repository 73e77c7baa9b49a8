// The list of boards, worked by mouse and keyboard.
#pragma once

#include <QTimer>
#include <QTreeView>

class QSortFilterProxyModel;

namespace tricklet::ui {

class BoardListDelegate;
class BoardListModel;

/// Rows of a `BoardListModel`, some of which may be left out. The chosen row is that of the current
/// board; choosing another one asks by `Chosen` and changes nothing. Up, Down, Home, End, Page Up
/// and Page Down move in the list, and digits go to the board of that number.
class BoardListView : public QTreeView {
  Q_OBJECT

 public:
  /// `rows` lies over `boards`.
  BoardListView(BoardListModel* boards, QSortFilterProxyModel* rows, QWidget* parent);

  /// Puts the choice on the row of the current board, and into sight where that is another one than
  /// before; nothing is chosen where the row is left out.
  void ShowCurrent(int boardNumber, bool fourColours);

  /// The board whose row is there, in pixels of the viewport; 0 where none is.
  int BoardAt(const QPoint& place) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void Chosen(int boardNumber);
  /// Enter: the person has chosen and is done here.
  void Left();
  /// The rows of these boards are in sight.
  void Seen(int first, int last);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void changeEvent(QEvent* event) override;

 private:
  int BoardOf(const QModelIndex& row) const;
  void PutBack();
  void ChooseCurrentRow();
  void TypeDigit(int digit);
  void GoToTyped();
  void SetColumnWidths();
  void TellSeen();
  int HeightOf(int rows) const;

  BoardListModel* boards_;
  QSortFilterProxyModel* rows_;
  BoardListDelegate* delegate_;
  int scoreWidth_ = 0;  // pixels
  int current_ = 0;     // board number
  int typed_ = 0;       // the number that is being typed
  QTimer typing_;
};

}  // namespace tricklet::ui
