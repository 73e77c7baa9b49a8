// The left column during play and in a record: the tricks, card by card.
#pragma once

#include "library/session.h"
#include "play/trick_grid.h"
#include "ui/style/section.h"

class QPushButton;
class QTableWidget;
class QTableWidgetItem;

namespace tricklet::ui {

class Actions;

/// A row for each trick, with the cards of West, North, East and South. The current trick stands
/// out and is always in view. Nothing in the pane moves while cards are played. In a record, a
/// click or Enter on a card asks for its place; in a play they do nothing, so that no card is taken
/// back by mistake.
class TrickPane : public Section {
  Q_OBJECT

 public:
  /// What is left by `cmdStopPlay`.
  enum class Leaving { Play, FinishedPlay, Record };

  explicit TrickPane(const Actions& actions, QWidget* parent = nullptr);

  /// Fills the pane. `board` gives the deal's heading, `session` the library's name and the suits'
  /// colours, `leaving` the button's caption.
  void Show(const Session& session, const Board& board, const TrickGrid& grid, Leaving leaving);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 signals:
  /// `cmdStopPlay`: the person wants to leave the play, or the record.
  void StopAsked();
  /// The place of a record after so many cards is to be shown.
  void PlaceAsked(int cards);
  /// The mouse or the keys have come to a card, by its number in the play; -1: to none.
  void Pointed(int number);

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildGrid();
  void ConnectGrid();
  int NumberAt(int row, int column) const;
  void Ask(int row, int column);
  void ShowHeads();
  QTableWidgetItem* MakeCard(Seat seat, const TrickGrid::Cell& cell, const Settings& settings,
                             int here) const;
  void ShowRow(int row, const TrickGrid& grid, const Settings& settings);
  void ShowClaim(int row, const TrickGrid& grid);
  void SetSizes();

  ElidedLabel* lblDeal_;
  QTableWidget* flexTricks_;
  QLabel* lblGiven_;
  QWidget* fraMistakes_;
  QPushButton* cmdPreviousMistake_;
  QPushButton* cmdNextMistake_;
  QPushButton* cmdStopPlay_;
  bool record_ = false;  // what is shown
};

}  // namespace tricklet::ui
