// What stands in the tables of a report.
#pragma once

#include "review/session_report.h"
#include "ui/report/report_grid.h"

namespace tricklet::ui {

/// A row for each entrant, in their order.
ReportGrid EntrantGrid(const SessionReport& report);

/// A row for each board, in their order.
ReportGrid BoardGrid(const SessionReport& report);

/// The results of an entrant, from its own point of view, in the order of its `tables`.
ReportGrid TablesOfEntrant(const SessionReport& report, int entrant);

/// The results of a board, from North-South's point of view, in the order of its `tables`.
ReportGrid TablesOfBoard(const SessionReport& report, const ReportBoard& board);

}  // namespace tricklet::ui
