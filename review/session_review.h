// The plays of a session reviewed, all of them, on all cores.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "analysis/solver.h"
#include "library/session.h"
#include "review/session_report.h"

namespace tricklet {

struct SessionReview {
  ReportAnswers answers;  ///< what has been solved, whichever way it ended
  bool cancelled = false;
  std::string failure;  ///< the solver's; empty when there was none
};

/// Called on the thread of the caller with what has been solved so far.
using ReviewProgress = std::function<void(const ReportAnswers&)>;

/// Reviews the plays of `source`, which is of the current library, in batches beside, with progress
/// and Cancel through the session's `Host`; then the leads against contracts that fail by
/// one or two tricks double-dummy.
/// `shown` is called after each batch and may be empty. What the library has kept is not solved
/// again, and what has been solved is kept (review_cache.h), also when it ends early.
SessionReview ReviewSession(Session& session, Solver& solver, const ReportSource& source,
                            const ReviewProgress& shown);

struct ReportOutcome {
  /// Nothing where there is nothing to report or the person cancelled before there was.
  std::optional<SessionReport> report;
  bool cancelled = false;  ///< `report` lacks plays
  std::string failure;     ///< why it lacks them or there is none; empty, too, where that was told
};

/// All of it: gathers the current library's results, supplies missing tables, reviews the plays.
/// `shown` is called with the report as far as it goes: first without any play, then after each
/// batch.
ReportOutcome ReportSession(Session& session, Solver& solver,
                            const std::function<void(const SessionReport&)>& shown);

}  // namespace tricklet
