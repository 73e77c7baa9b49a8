// What has been done to the current board, step by step: to be undone and done again.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/board.h"
#include "generate/editing.h"

namespace tricklet {

/// One list of steps for the board that is current, until it is left. Cards and calls are what a
/// step changes; a makeable table follows its deal.
class BoardHistory {
 public:
  /// How many steps are kept; older ones are forgotten.
  static constexpr std::size_t kMostSteps = 1000;

  /// Takes notice of the board as it is after whatever may have changed it. `place` names where it
  /// is stored: another place begins a new list. `step` says in a word or two what has been done
  /// ("rotate"); when it is empty, a board with other cards or calls has been read afresh, which
  /// begins a new list too. A change back to what the last step began with takes that step back.
  void Note(const std::string& place, const Board& board, const EditHistory& edits,
            const std::string& step);

  /// The step that can be undone, or done again; empty when there is none.
  std::string UndoStep() const { return undo_.empty() ? std::string() : undo_.back().step; }
  std::string RedoStep() const { return redo_.empty() ? std::string() : redo_.back().step; }

  // These change nothing and return false when there is no such step. The board then counts as
  // unsaved exactly when it differs from what is stored. `edits` is what its own buttons undo.
  bool Undo(Board& board, EditHistory& edits);
  bool Redo(Board& board, EditHistory& edits);

  /// The board has other cards or calls than those that are stored.
  bool CanRevert() const;
  /// The board as it is stored; a step that can be undone.
  bool Revert(Board& board);

 private:
  struct Moment {
    Board board;
    EditHistory edits;
    std::string step;  // what was done then
  };

  bool Go(std::vector<Moment>& from, std::vector<Moment>& to, Board& board, EditHistory& edits);
  void Mark(Board& board) const;

  std::string place_;
  Board saved_;  // as it is stored
  Moment now_;
  std::vector<Moment> undo_;
  std::vector<Moment> redo_;
};

}  // namespace tricklet
