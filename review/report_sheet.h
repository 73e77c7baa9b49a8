// A session report as tables of text: for the command line, for CSV and for windows.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "review/session_report.h"

namespace tricklet {

struct ReportColumn {
  std::string heading;  ///< short: "Decl"
  std::string meaning;  ///< "Tricks given away as declarer, per play"; the heading in CSV
  bool left = false;    ///< words, as opposed to a number
  bool brief = true;    ///< shown where there is little room; else in CSV alone
};

struct ReportSheet {
  std::vector<ReportColumn> columns;
  /// A cell for each column; empty where something is not known.
  std::vector<std::vector<std::string>> rows;
};

/// A row for each of `entrants`, indices of `SessionReport::entrants`. Means are per board or play.
ReportSheet EntrantSheet(const SessionReport& report, const std::vector<std::size_t>& entrants);

/// A row for each board.
ReportSheet BoardSheet(const SessionReport& report);

/// A row for each result of `board`, points from North-South's point of view.
ReportSheet ResultSheet(const SessionReport& report, const ReportBoard& board);

/// A row for each result of an entrant, points and tricks from its point of view.
ReportSheet EntrantResultSheet(const SessionReport& report, std::size_t entrant);

/// The brief columns that have any text, beneath their headings.
std::string AlignedSheet(const ReportSheet& sheet);
/// All columns beneath their meanings.
std::string CsvSheet(const ReportSheet& sheet);

}  // namespace tricklet
