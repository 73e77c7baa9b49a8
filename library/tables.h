// Makeable tables of stored boards.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "analysis/solver.h"
#include "library/session.h"

namespace tricklet {

/// Puts `table` into the board file `path`, of the current board or another one, if the deal in it
/// is still `hands`. False when it is
/// not, or the file is marked read-only, or it could not be read or written, or another program is
/// changing the library just now.
bool StoreTable(Session& session, const std::filesystem::path& path, const HandTable& hands,
                const MakeableTable& table);

/// The program has been given a solver; tells when it has not.
bool RequireSolver(const Session& session);

struct AnalysisOutcome {
  int computed = 0;           ///< tables stored
  int incomplete = 0;         ///< boards that are no complete deal, or cannot be read
  int unreadable = 0;         ///< those of them whose files the disk does not give
  std::string unreadableWhy;  ///< the reason of the first of these
  std::vector<std::filesystem::path> readOnly;  ///< left alone, as they are marked read-only
  bool cancelled = false;
  /// The solver's, or that of the disk, or that another program is changing the library; empty when
  /// there was none.
  std::string failure;
};

/// Computes the tables of the boards `first`..`last` that are in the current library: those that
/// have none, or all with `again`, but for those whose files are marked read-only. Solves in
/// batches; the boards of one are stored while the next is on the solver. The current board takes
/// its new table too.
AnalysisOutcome AnalyseBoards(Session& session, Solver& solver, int first, int last, bool again);

/// `mnuAnalyse`: the whole library, after `CheckSaveChanges`; tells how it ended.
void AnalyseLibrary(Session& session, Solver& solver, bool again = false);

/// Nothing has failed, though the person may have ended it early.
bool Faultless(const AnalysisOutcome& outcome);

/// How an analysis ended, in words: a line for each thing to report.
std::string AnalysisText(const AnalysisOutcome& outcome);

}  // namespace tricklet
