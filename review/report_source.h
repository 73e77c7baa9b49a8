// What a report of the current library is made from, gathered from its files.
#pragma once

#include <optional>

#include "library/session.h"
#include "review/session_report.h"

namespace tricklet {

/// Told when a library has no results to report on.
inline constexpr const char* kNothingToReport = "There are no results in this library";

/// Reads the results of the current library and the boards that have some. With `tables` those that
/// are complete and have no table get one first (`SupplyTables`), with progress. Nothing, after a
/// message, when there are no results or something cannot be read; nothing and no message when the
/// person has cancelled.
std::optional<ReportSource> GatherReport(Session& session, bool tables);

}  // namespace tricklet
