// The tables of frequencies as text.
#pragma once

#include <string>
#include <vector>

#include "frequencies/deal_frequencies.h"

namespace tricklet {

/// "12.5" percent of `of`; empty where there is none.
std::string PercentText(double count, int of);

/// The rows worth a line: those that occurred, or that are expected at least 0.05 times. All where
/// nothing is expected.
std::vector<FrequencyRow> ShownRows(const FrequencyTable& table);

/// The tables in columns with a title and a verdict each, the verdict of all at the end.
std::string AlignedFrequencies(const DealFrequencies& frequencies);

/// Table, row, unit, counts and percentages: a line for each row of each table.
std::string CsvFrequencies(const DealFrequencies& frequencies);

}  // namespace tricklet
