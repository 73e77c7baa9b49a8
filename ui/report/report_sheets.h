// A report on paper.
#pragma once

#include <vector>

#include "core/settings.h"
#include "publish/sheet_tables.h"
#include "review/session_report.h"
#include "ui/print/sheets.h"

namespace tricklet::ui {

/// The entrants, the boards, and what is left out and why, as tables for paper.
std::vector<SheetTable> ReportTables(const SessionReport& report);

/// The sheets with those, on the paper of `print`, on its side.
Sheets ReportSheets(const SessionReport& report, const std::string& library,
                    const PrintSettings& print);

}  // namespace tricklet::ui
