#include "ui/report/report_sheets.h"

#include <utility>

#include <QCoreApplication>

#include "core/local_time.h"
#include "review/play_review.h"
#include "ui/report/report_grids.h"
#include "ui/report/report_texts.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Texts of this file are translated under this name.
struct Words {
  Q_DECLARE_TR_FUNCTIONS(SessionReport)
};

SheetTable SheetOf(SheetTableKind kind, const QString& title, const ReportGrid& grid) {
  SheetTable table;
  table.kind = kind;
  table.title = FromQt(title);
  table.foot = kDoubleDummyLabel;
  for (const ReportColumn& column : grid.columns) {
    table.columns.push_back({FromQt(column.heading), column.wide     ? ColumnKind::Names
                                                     : column.number ? ColumnKind::Number
                                                                     : ColumnKind::Word});
  }
  for (const auto& row : grid.rows) {
    auto& cells = table.rows.emplace_back();
    for (const ReportCell& cell : row) cells.push_back(FromQt(cell.text));
  }
  return table;
}

}  // namespace

std::vector<SheetTable> ReportTables(const SessionReport& report) {
  std::vector<SheetTable> tables{
      SheetOf(SheetTableKind::Entrants, EntrantsTitle(report.contestants), EntrantGrid(report)),
      SheetOf(SheetTableKind::Boards, Words::tr("Boards"), BoardGrid(report))};
  if (report.remarks.empty()) return tables;
  SheetTable remarks;
  remarks.kind = SheetTableKind::Remarks;
  remarks.title = FromQt(Words::tr("Remarks"));
  remarks.foot = kDoubleDummyLabel;
  remarks.columns = {{"", ColumnKind::Names}};
  for (const std::string& sentence : report.remarks) remarks.rows.push_back({sentence});
  tables.push_back(std::move(remarks));
  return tables;
}

Sheets ReportSheets(const SessionReport& report, const std::string& library,
                    const PrintSettings& print) {
  SheetChoices choices;
  choices.paper = print.paper;
  choices.colours = print.colours;
  choices.landscape = true;
  choices.title = library;
  choices.subtitle = TodayText();
  return {ReportTables(report), std::move(choices)};
}

}  // namespace tricklet::ui
