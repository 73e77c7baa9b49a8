// What is published of a session: its boards, with all that belongs to each of them, as values.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/par.h"
#include "core/board.h"
#include "formats/results/lin_file.h"
#include "formats/results/ranking.h"
#include "formats/results/traveller.h"
#include "library/board_range.h"
#include "library/session.h"
#include "library/stored_boards.h"
#include "review/session_report.h"

namespace tricklet {

struct PublishedBoard : StoredBoard {
  std::optional<Par> par;  ///< of a complete board with a table
  std::string notes;       ///< UTF-8, lines divided by "\n"; empty where there are none
  Traveller traveller;     ///< without rows where there are no results
};

/// The plays of a session double-dummy.
struct PublishedReview {
  SessionReport report;   ///< of the boards that are published
  ReportAnswers answers;  ///< of all boards with results
};

/// The boards in the order of their numbers, and the results that they come from.
struct Published {
  std::vector<PublishedBoard> boards;
  LinFile results;
  std::string whyNoTables;  ///< that were to be computed and are missing; empty when none are
  std::optional<PublishedReview> review;  ///< where it was wanted and could be had
};

/// The ranking of those who have played the boards.
Ranking RankingOf(const Published& published);

/// What the person is told once the boards are published: which deals are incomplete, and, `tables`
/// being wanted, why some are missing. May be empty.
std::string RemarkOn(const Published& published, bool tables);

/// Told when a range has no board.
inline constexpr const char* kNothingToPublish = "There are no boards in this range";

/// Reads the boards of `range` that the current library has. With `tables` those that are complete
/// and have no table get one first, with progress: it is stored where the file may be written, else
/// it is in the answer alone. Nothing, after a message, when there is no board or one cannot be
/// read; nothing and no message when the person has cancelled.
std::optional<Published> GatherBoards(Session& session, const BoardRange& range, bool tables);

/// Adds the review of the plays, with progress. False when the person has cancelled; why there is
/// none otherwise, as where there are no results, comes in `failure`, else empty.
bool AddReview(Session& session, Published& published, std::string& failure);

}  // namespace tricklet
