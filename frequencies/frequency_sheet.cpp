#include "frequencies/frequency_sheet.h"

#include <algorithm>
#include <iterator>

#include "core/columns.h"
#include "core/csv.h"
#include "core/text.h"

namespace tricklet {
namespace {

std::string ExpectedText(const FrequencyRow& row, int decimals) {
  return row.expected ? DecimalText(*row.expected, decimals) : std::string();
}

std::string ExpectedPercent(const FrequencyRow& row) {
  return row.expected ? PercentText(*row.expected, row.of) : std::string();
}

}  // namespace

std::string PercentText(double count, int of) {
  constexpr double kPercent = 100;
  return of == 0 ? std::string() : DecimalText(kPercent * count / of, 1);
}

std::vector<FrequencyRow> ShownRows(const FrequencyTable& table) {
  constexpr double kLeast = 0.05;
  std::vector<FrequencyRow> rows;
  std::copy_if(table.rows.begin(), table.rows.end(), std::back_inserter(rows),
               [](const FrequencyRow& row) {
                 return row.observed > 0 || row.expected.value_or(1) >= kLeast;
               });
  return rows;
}

std::string AlignedFrequencies(const DealFrequencies& frequencies) {
  std::string text;
  for (const FrequencyTable& table : frequencies.tables) {
    std::vector<std::vector<std::string>> lines{{table.title, "Observed", "%", "Expected", "%"}};
    for (const FrequencyRow& row : ShownRows(table)) {
      lines.push_back({row.name, std::to_string(row.observed), PercentText(row.observed, row.of),
                       ExpectedText(row, 1), ExpectedPercent(row)});
    }
    text += AlignedLines(lines, {true, false, false, false, false});
    if (!table.verdict.empty()) text += table.verdict + "\n";
    text += "\n";
  }
  return text + frequencies.verdict + "\n";
}

std::string CsvFrequencies(const DealFrequencies& frequencies) {
  constexpr int kDecimals = 4;
  std::string text = CsvLine(
      {"Table", "Row", "Counted", "Of", "Observed", "Observed %", "Expected", "Expected %"});
  for (const FrequencyTable& table : frequencies.tables) {
    for (const FrequencyRow& row : table.rows) {
      text += CsvLine({table.title, row.name, table.unit, std::to_string(row.of),
                       std::to_string(row.observed), PercentText(row.observed, row.of),
                       ExpectedText(row, kDecimals), ExpectedPercent(row)});
    }
  }
  return text;
}

}  // namespace tricklet
