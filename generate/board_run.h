// A run that stores deals as boards side by side.
#pragma once

#include <functional>
#include <string>

#include "library/library_write.h"
#include "library/session.h"
#include "library/tables.h"

namespace tricklet {

/// Which boards of the current library a run fills, and how.
struct BoardRunPlan {
  int first = kFirstBoardNumber;  ///< 1..999
  int last = kFirstBoardNumber;   ///< not below `first`
  std::string command;            ///< what the folder of replaced boards names: `ReplacedBoards`
  /// Computes the tables of the boards, in batches, once all of them are stored. Without a solver
  /// in the session the boards have none.
  bool analyse = false;
};

struct BoardRunOutcome {
  int boardsStored = 0;
  bool refused = false;    ///< by the person, before anything was written
  bool cancelled = false;  ///< in mid-run: the boards up to then are stored
  bool failed = false;     ///< a board could not be stored, or one that it replaced could not be
                           ///< recycled; the person has been told why
  /// What to tell of replaced boards that the recycle bin did not take; empty when it took them.
  std::string notRecycled = {};
  /// Of the analysis, where that was asked for and the run came to its end.
  AnalysisOutcome tables = {};
  std::string told = {};  ///< to the person at the end; empty when nothing was
};

/// What was asked for is done, the tables included.
bool Succeeded(const BoardRunOutcome& outcome);

/// What a run stores its boards with.
class BoardStorer {
 public:
  BoardStorer(Session& session, LibraryWrite& write, BoardRunOutcome& outcome)
      : session_(session), write_(write), outcome_(outcome) {}

  /// Makes the session's board board `number`, without cards, to be dealt.
  void Begin(int number);
  /// Stores the session's board. False, after a message, when its file is marked read-only and
  /// stays as it is. Throws `Fault` when it cannot be stored.
  bool Store();

 private:
  Session& session_;
  LibraryWrite& write_;
  BoardRunOutcome& outcome_;
};

/// Lets `deal` store boards, under one display of progress, and loads the first of them then. Asks
/// first about unsaved changes, and once about overwriting. `deal` returns false when the person
/// has ended it. A board that cannot be stored ends the run; those before it stay. Tells at the end
/// what `remark` says then of it, what became of tables whose computation was cancelled or failed,
/// and where replaced boards are that the recycle bin did not take.
BoardRunOutcome RunOverBoards(Session& session, const BoardRunPlan& plan,
                              const std::function<bool(BoardStorer&)>& deal,
                              const std::function<std::string(const BoardRunOutcome&)>& remark);

}  // namespace tricklet
