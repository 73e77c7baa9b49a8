#include "generate/board_history.h"

#include <utility>

namespace tricklet {
namespace {

bool SameDeal(const Board& a, const Board& b) {
  return a.hands == b.hands && a.calls == b.calls;
}

bool SameTable(const Board& a, const Board& b) {
  return a.makeableValid == b.makeableValid && (!a.makeableValid || a.makeable == b.makeable);
}

}  // namespace

void BoardHistory::Note(const std::string& place, const Board& board, const EditHistory& edits,
                        const std::string& step) {
  const bool same = SameDeal(board, now_.board);
  if (place != place_ || (step.empty() && !same)) {
    undo_.clear();
    redo_.clear();
    place_ = place;
    saved_ = board;
  } else if (!same && !undo_.empty() && SameDeal(board, undo_.back().board)) {
    redo_.push_back({now_.board, now_.edits, undo_.back().step});
    undo_.pop_back();
  } else if (!same) {
    undo_.push_back({now_.board, now_.edits, step});
    if (undo_.size() > kMostSteps) undo_.erase(undo_.begin());
    redo_.clear();
  }
  now_ = {board, edits, {}};
  if (!board.handChanged) saved_ = board;
}

/// A play ends with the first change of the board.
void BoardHistory::Mark(Board& board) const {
  board.handChanged = !SameDeal(board, saved_) || !SameTable(board, saved_);
  board.playMode = false;
}

bool BoardHistory::Go(std::vector<Moment>& from, std::vector<Moment>& to, Board& board,
                      EditHistory& edits) {
  if (from.empty()) return false;
  Moment then = std::move(from.back());
  from.pop_back();
  to.push_back({std::move(now_.board), std::move(now_.edits), then.step});
  board = then.board;
  Mark(board);
  edits = then.edits;
  now_ = {board, edits, {}};
  return true;
}

bool BoardHistory::Undo(Board& board, EditHistory& edits) {
  return Go(undo_, redo_, board, edits);
}

bool BoardHistory::Redo(Board& board, EditHistory& edits) {
  return Go(redo_, undo_, board, edits);
}

bool BoardHistory::CanRevert() const {
  return !SameDeal(now_.board, saved_);
}

bool BoardHistory::Revert(Board& board) {
  if (!CanRevert()) return false;
  board = saved_;
  return true;
}

}  // namespace tricklet
