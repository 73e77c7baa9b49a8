#include "ui/report/frequency_grid.h"

#include <QCoreApplication>

#include "core/text.h"
#include "frequencies/frequency_sheet.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

struct FrequencyWords {
  Q_DECLARE_TR_FUNCTIONS(DealFrequencies)
};

constexpr double kBarWidth = 14;

QString TipOf(const FrequencyRow& row, const QString& unit) {
  QString of = FrequencyWords::tr("of %1 %2").arg(row.of).arg(unit);
  if (!row.expected) return of;
  return FrequencyWords::tr("%1; %2 expected").arg(of, ToQt(DecimalText(*row.expected, 1)));
}

ReportCell NumberCell(double number, const std::string& text) {
  return {ToQt(text), number};
}

}  // namespace

ReportGrid FrequencyGrid(const FrequencyTable& table) {
  using Words = FrequencyWords;
  ReportGrid grid;
  grid.columns = {
      {ToQt(table.title), Words::tr("What is counted: %1").arg(ToQt(table.unit)), false, false},
      {Words::tr("Observed"),
       Words::tr("How many there are. The line across the bar is where it would end as expected."),
       true, false, CellBar::FromLeft, kBarWidth},
      {Words::tr("Observed %"), Words::tr("The same in per cent"), true, false},
      {Words::tr("Expected"),
       Words::tr("How many are to be expected of as many deals, counted over all ways to deal"),
       true, false},
      {Words::tr("Expected %"), Words::tr("The same in per cent"), true, false}};
  for (const FrequencyRow& row : ShownRows(table)) {
    std::vector<ReportCell> cells(grid.columns.size());
    cells[0] = {ToQt(row.name), NumberFromText<int>(row.name)};
    cells[1] = NumberCell(row.observed, std::to_string(row.observed));
    cells[1].tip = TipOf(row, ToQt(table.unit));
    cells[1].mark = row.expected;
    if (row.of > 0) cells[2] = NumberCell(row.observed, PercentText(row.observed, row.of));
    if (row.expected) {
      cells[3] = NumberCell(*row.expected, DecimalText(*row.expected, 1));
      cells[4] = NumberCell(*row.expected, PercentText(*row.expected, row.of));
    }
    grid.rows.push_back(std::move(cells));
  }
  return grid;
}

}  // namespace tricklet::ui
