// What stands in the tables of frequencies.
#pragma once

#include "frequencies/deal_frequencies.h"
#include "ui/report/report_grid.h"

namespace tricklet::ui {

/// A row for each of `ShownRows`: observed and expected, as numbers and in per cent, with a bar for
/// what was observed and a mark on it for what is to be expected.
ReportGrid FrequencyGrid(const FrequencyTable& table);

}  // namespace tricklet::ui
