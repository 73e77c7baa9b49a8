// The tables of a session added up for those who played them.
#pragma once

#include <vector>

#include "review/session_report.h"

namespace tricklet {

/// The entrants of `seating`, in its order, with the figures of `tables`, whose `entrants` are its
/// indices. Those without a table have no boards and no plays.
std::vector<ReportEntrant> EntrantsOf(const Seating& seating,
                                      const std::vector<ReportTable>& tables);

/// Leaves out who has no table, puts the others into the order of a report, and changes the indices
/// in `tables` accordingly.
void ArrangeEntrants(std::vector<ReportEntrant>& entrants, std::vector<ReportTable>& tables);

}  // namespace tricklet
