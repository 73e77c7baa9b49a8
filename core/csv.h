// Tables as comma-separated values (RFC 4180), for spreadsheets.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tricklet {

/// One cell: in quotes where it has a comma, a quote or a line end. A text that a spreadsheet would
/// take as a formula (it begins with "=", "+", "-", "@", a tab or a carriage return and is no
/// number) gets an apostrophe before it, since the names in a results file are anybody's.
std::string CsvCell(std::string_view text);

/// The cells with commas between them, and CR LF.
std::string CsvLine(const std::vector<std::string>& cells);

}  // namespace tricklet
