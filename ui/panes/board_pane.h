// The left column's middle part: dealer, vulnerability, and what can be done with the board.
#pragma once

#include "core/board.h"
#include "ui/style/section.h"

class QGridLayout;
class QPushButton;

namespace tricklet::ui {

class Commands;
class EditControl;
class PlayControl;

/// Titled by dealer and vulnerability. The buttons give `commands`; each is enabled where its
/// command can be carried out.
class BoardPane : public Section {
  Q_OBJECT

 public:
  explicit BoardPane(Commands& commands, QWidget* parent = nullptr);

  void Show(const Board& board);
  /// Sets what depends on the play and the editing of the board: texts and what is enabled.
  void ShowPlay(const PlayControl& play, const EditControl& edit);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 private:
  Commands& commands_;
  QPushButton* cmdBidding;
  QPushButton* cmdPlay;
  QPushButton* cmdEdit;
  QPushButton* cmdSwap;
  QPushButton* cmdGenerate;
  QPushButton* cmdDDS;
  QPushButton* cmdBSOL;
  QPushButton* cmdSave;
};

}  // namespace tricklet::ui
