// The tables of a simulation as the window shows them.
#pragma once

#include "simulation/simulation_run.h"
#include "ui/report/report_grid.h"

namespace tricklet::ui {

/// A row for each row of the table, with bars.
ReportGrid GridOf(const SimulationTable& table);

/// "Opening lead by West against 3NT by South".
QString TitleOf(const SimulationTable& table);

/// Declarer's tricks of the row, by deals; of the first row where there is no such row.
TrickCounts CountsOf(const SimulationTable& table, int row);
/// The tricks that make the contract of the row.
int NeededIn(const SimulationTable& table, int row);

}  // namespace tricklet::ui
