// Cells of a report's tables.
#pragma once

#include <optional>

#include "review/session_report.h"
#include "ui/report/report_grid.h"

namespace tricklet::ui {

/// A text, sorted as texts are.
ReportCell TextCell(const QString& text);
/// A number, or nothing.
ReportCell CountCell(int count);
ReportCell CountCell(std::optional<int> count);
/// Points with their sign.
ReportCell PointsCell(std::optional<int> points);
/// The mean of points, which its tip explains.
ReportCell MeanCell(const MeanFigure& figure);
/// Tricks per play, which its tip explains.
ReportCell MeanCell(const GivenFigures& figure);
/// "7 of 9", sorted by the share; empty of none.
ReportCell ShareCell(int part, int whole);
/// A contract, sorted by its rank.
ReportCell ContractCell(const ReportTable& table);

}  // namespace tricklet::ui
