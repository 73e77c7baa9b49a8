// The left column during play: the tricks, card by card.
#pragma once

#include "library/session.h"
#include "play/trick_grid.h"
#include "ui/style/section.h"

class QPushButton;
class QTableWidget;

namespace tricklet::ui {

/// A row for each trick, with the cards of West, North, East and South. The current trick stands
/// out and is always in view. Nothing in the pane moves while cards are played.
class TrickPane : public Section {
  Q_OBJECT

 public:
  /// What is left by `cmdStopPlay`.
  enum class Leaving { Play, FinishedPlay, Record };

  explicit TrickPane(QWidget* parent = nullptr);

  /// Fills the pane. `board` gives the deal's heading, `session` the library's name and the suits'
  /// colours, `leaving` the button's caption.
  void Show(const Session& session, const Board& board, const TrickGrid& grid, Leaving leaving);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 signals:
  /// `cmdStopPlay`: the person wants to leave the play, or the record.
  void StopAsked();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void BuildGrid();
  void ShowRow(int row, const TrickGrid& grid, const Settings& settings);
  void ShowClaim(int row, const TrickGrid& grid);
  void SetSizes();

  ElidedLabel* lblDeal_;
  QTableWidget* flexTricks_;
  QLabel* lblGiven_;
  QPushButton* cmdStopPlay_;
};

}  // namespace tricklet::ui
